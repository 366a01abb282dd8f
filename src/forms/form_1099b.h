#pragma once
// The 1099-B: the standard handlers, and the contract boxes 8 to 11, which the training does not
// cover, marked as such when the form loads.

#include "forms/tax_form.h"

namespace lw {

class Form1099B : public TaxForm {
public:
    explicit Form1099B(const ProgramParts& parts);

    void onLoad() override;

    // Text1(21) to Text1(24): boxes 8, 9, 10 and 11.
    static constexpr int kFirstOutOfScope = 21;
    static constexpr int kLastOutOfScope = 24;
    static constexpr Color kOutOfScopeBack = 0x00DCDCDC;
};

// Makes TF_1099B known by name.
void register1099BForm();

}  // namespace lw
