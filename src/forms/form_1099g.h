#pragma once
// The 1099-G: the standard handlers, and box 3, the tax year of the box 2 amount, which on leaving is
// completed from two digits or sends the focus back.

#include "forms/tax_form.h"

namespace lw {

class Form1099G : public TaxForm {
public:
    explicit Form1099G(const ProgramParts& parts);

    void onLostFocus(Control& ctl) override;

    // Text1(5), tagged TaxYear1099G.
    static constexpr int kTaxYearBox = 5;
};

// Makes TF_1099G known by name.
void register1099GForm();

}  // namespace lw
