// FormW2, the Wage and Tax Statement: box 4 follows box 3 and box 6 follows box 5, worked out with the
// Social Security and Medicare figures of the tax year in force; box 9 is there for tax year 2018 only.
#pragma once

#include "forms/tax_form.h"
#include "model/year_rates.h"

namespace lw {

class FormW2 : public TaxForm {
public:
    explicit FormW2(const ProgramParts& parts);

    void onLoad() override;
    // editField first; a box that stands then fills its tax box: 3 gives 4, 5 gives 6.
    void onValidate(Control& ctl, bool& cancel) override;
    // The verification-code rule of box 9.
    void onActivate() override;
    // A change of the tax year applies the rule of box 9 again; the boxes filled stay as they are.
    void afterYearChange() override;

    // Social security tax withheld (box 4) from Social security wages (box 3).
    void computeSocialSecurityTax(const Rates& rates);
    // Medicare tax withheld (box 6) from Medicare wages and tips (box 5).
    void computeMedicareTax(const Rates& rates);
};

// Makes TF_W2 known by name, in place of the standard tax form.
void registerW2Form();

}  // namespace lw
