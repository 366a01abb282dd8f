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
    explicit Form1095A(const ProgramParts& parts);

    void onGotFocus(Control& ctl) override;
    void onKeyDown(Control& ctl, int& keyCode, int shift) override;
    void onKeyPress(Control& ctl, int& keyAscii) override;
    void onValidate(Control& ctl, bool& cancel) override;
    // The monthly amounts' tip names the F12 copy; the other amounts keep the tips they are drawn with.
    void giveMoneyTip(Control& field) const override;
    // Load TP puts both people in as recipient and spouse and again among the covered individuals.
    bool fillTaxpayers(const std::string& who, const TPInfoRec& a, const TPInfoRec& b) override;

    // The handlers by field index, as the key and focus events reach them.
    void onText1KeyPress(int index, int& keyAscii);
    void onText1Validate(int index, bool& cancel);
    // Text1(target) becomes the sum of the non-empty Text1(First) to Text1(Last) under "$###,###.00".
    // A text that is no amount is a fault (AppError 13); a sum beyond the currency's reach throws
    // std::overflow_error and leaves target as it was.
    void addUpColumn(int firstRow, int lastRow, int target);

    // The field that last took the focus.
    int lastIndex = 0;

    static constexpr MonthColumn kColumnA{38, 49, 50};
    static constexpr MonthColumn kColumnB{51, 62, 63};
    static constexpr MonthColumn kColumnC{64, 75, 76};

private:
    // F12 (or the character with its code): the remembered month's amount copied down its column.
    void copyDown(int index);
    // A total beyond reach: the field shows its own message, and the total claims no value.
    void showTotalOutOfReach(int index, int target);
};

// The column whose months hold index, or all zeros outside the three columns.
MonthColumn monthColumnOf(int index);

// Makes TF_1095A known by name.
void register1095AForm();

}  // namespace lw
