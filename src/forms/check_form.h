// CheckForm, a blank check with sample routing and account numbers: nothing on it is edited when left, and
// Clear brings the two sample numbers back.
#pragma once

#include "forms/tax_form.h"

namespace lw {

class CheckForm : public TaxForm {
public:
    explicit CheckForm(const ProgramParts& parts);

    // Every key, copy and paste included, goes through the keystroke filter.
    void onKeyPress(Control& ctl, int& keyAscii) override;
    // No edit on leaving: the check takes whatever the operator wrote.
    void onValidate(Control&, bool&) override {}
    // A left field turns white and keeps its text colour.
    void onLostFocus(Control& ctl) override;
    void refillAfterClear() override;
    // The payee's block in Tahoma 9; the other fields keep their drawn fonts.
    void styleTextBox(Control& box) override;
    // The bank is no part of the file name.
    OtherInFileName otherInFileName() const override { return OtherInFileName::Omitted; }
    // Load TP draws the check to both people of the household, at the address of the button's person.
    bool fillTaxpayers(const std::string& who, const TPInfoRec& a, const TPInfoRec& b) override;
};

void registerCheckForm();

}  // namespace lw
