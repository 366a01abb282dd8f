// TaxpayerSheetForm, the taxpayer sheet: the people of a case, their numbers, birth dates and ages at the end
// of the tax year. Saving it also fills the store that the Load TP buttons of every other form read.
#pragma once

#include "forms/tax_form.h"

namespace lw {

class TaxpayerSheetForm : public TaxForm {
public:
    explicit TaxpayerSheetForm(const ProgramParts& parts);

    void onLoad() override;
    // Copy, paste and cut pass unfiltered; every other key goes through the keystroke filter.
    void onKeyPress(Control& ctl, int& keyAscii) override;
    // The field's edit; then a number is compared with the others, and a birth date gives its age.
    void onValidate(Control& ctl, bool& cancel) override;
    // Every age is counted again at the end of the new year, and the captions say which year.
    void afterYearChange() override;
    // On the screen the sheet fills the frame's height and shows its instructions.
    void giveOwnLook() override;
    // The sheet is where the people come from: Load TP does not fill it.
    bool takesTaxpayers() const override { return false; }
    bool fillTaxpayers(const std::string&, const TPInfoRec&, const TPInfoRec&) override { return true; }
    // The second taxpayer stands in the file name by last name.
    OtherInFileName otherInFileName() const override { return OtherInFileName::LastName; }
    // A saved sheet fills the store that Load TP reads.
    void afterSaved() override;
    // An opened sheet shows its banner in yellow, refills the store and counts its ages again.
    void beforeFileRead() override;
    void afterFileRead() override;
    void afterFileOpened() override;
    // On paper the sheet ends below the first block of people when the rows of the second are unused.
    bool cutToDocument() override;

private:
    void showAgeYear();
};

void registerTPInfoForm();

}  // namespace lw
