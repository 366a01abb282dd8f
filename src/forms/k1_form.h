#pragma once
// The three Schedule K-1 forms: one design on a two-page tab control. Rows pair a code field (Text2,
// Text4) with its amount (Text3, Text5); a fixed row prints its box number, a coded row takes its code
// from the list of its box. The page on show follows the field in focus.

#include "forms/k1_design.h"
#include "forms/k1_help.h"
#include "forms/k1_paper.h"
#include "forms/tax_form.h"

namespace lw {

class K1Form : public TaxForm {
public:
    K1Form(const K1Design& design, const ProgramParts& parts);

    void onLoad() override;
    void onGotFocus(Control& ctl) override;
    void onLostFocus(Control& ctl) override;
    void onKeyDown(Control& ctl, int& keyCode, int Shift) override;
    void onKeyPress(Control& ctl, int& keyAscii) override;
    void onClick(Control& ctl, MouseButton button) override;
    // Tahoma 9, the text trimmed, and the code columns centred.
    void styleTextBox(Control& box) override;
    // The code fields get their box numbers back and the amounts their money checks.
    void refillAfterClear() override;
    // A K-1 is named only with its recipient's number and name, number first.
    bool requiredFieldsFilled(int& focusIndex) override;
    // A clip takes the half on show, lifted to the top without the tab strip, and gives the strip back.
    void beforeClip() override;
    bool cutToDocument() override;
    bool putBackAfterClip() override;
    // The half the people went to is shown for a second, then the focus goes back.
    void afterTaxpayerFill() override;

    // All of Text1, then the left column row by row, code before amount, then the right column.
    void setTabOrder();

    const K1Design& design() const { return design_; }

    static constexpr const char* kFixedTip = "This value can't be changed";
    static constexpr const char* kCodedTip = "Press any Function Key (F1 - F12) for list of valid entries.";
    static constexpr const char* kCodedHint = "Press ANY Function Key (F1 - F12) for list of valid entries.";

private:
    // The page turns to the field's side of the limit, then the field takes its focus look.
    void focusRoutine(Control& field, int limit);
    // The look at rest and the edit; leaving the last amount goes back to the top of the form.
    void leavingRoutine(Control& field, int count);
    void setUpCodeColumn(const char* array, const std::vector<K1CodedRows>& rows, const std::string& prefix);
    int limitOf(const Control& field) const;
    bool isCheckBoxField(const Control& ctl) const;

    const K1Design& design_;
    // The code fields' texts and the amounts' tags as the form loaded: Clear and the code list go back to
    // them.
    K1DesignValues designValues_;
    // The section asked of the code list and what it answered, the last time it was shown from here.
    K1HelpMembers codeListAnswer_;
    K1Tabs clipTabs_;  // the tab strip as the clip found it
};

// Makes TF_K11041, TF_K11065 and TF_K11120S known by name.
void registerK1Forms();

}  // namespace lw
