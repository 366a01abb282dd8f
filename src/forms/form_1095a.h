// Form1095A, the Health Insurance Marketplace Statement: the three money columns of Part III (A premiums,
// B second lowest cost silver plan, C advance payments) add their twelve months into a total, F12 copies
// a month's amount to the months below it, and Enter moves to the next field.
#pragma once

#include "forms/tax_form.h"

namespace lw {

// One money column: its twelve months and its total.
struct MonthColumn {
    int first = 0;
    int last = 0;
    int total = 0;
};

class Form1095A : public TaxForm {
public:
    Form1095A();

    void onGotFocus(Control& ctl) override;
    void onKeyDown(Control& ctl, int& keyCode, int shift) override;
    void onKeyPress(Control& ctl, int& keyAscii) override;
    void onValidate(Control& ctl, bool& Cancel) override;
    // The monthly amounts' tip names the F12 copy; the other amounts keep the tips they are drawn with.
    void giveMoneyTip(Control& field) const override;
    // Load TP puts both people in as recipient and spouse and again among the covered individuals.
    bool fillTaxpayers(const std::string& who, const TPInfoRec& a, const TPInfoRec& b) override;

    // The handlers by field index, as the key and focus events reach them.
    void onText1KeyPress(int Index, int& keyAscii);
    void onText1Validate(int Index, bool& Cancel);
    // Text1(Target) becomes the sum of the non-empty Text1(First) to Text1(Last) under "$###,###.00".
    // A text that is no amount is a fault (AppError 13); a sum beyond the currency's reach throws
    // std::overflow_error and leaves Target as it was.
    void AddEmUp(int First, int Last, int Target);

    // The field that last took the focus.
    int iLastIndex = 0;

    static constexpr MonthColumn kColumnA{38, 49, 50};
    static constexpr MonthColumn kColumnB{51, 62, 63};
    static constexpr MonthColumn kColumnC{64, 75, 76};

private:
    // F12 (or the character with its code): the remembered month's amount copied down its column.
    void copyDown(int Index);
    // A total beyond reach: the field shows its own message, and the total claims no value.
    void showTotalOutOfReach(int Index, int Target);
};

// The column whose months hold Index, or all zeros outside the three columns.
MonthColumn monthColumnOf(int Index);

// Makes TF_1095A known by name.
void register1095AForm();

}  // namespace lw
