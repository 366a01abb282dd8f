// TF_1095B and TF_1095C, the health coverage statements of providers and employers: the standard
// handlers, with Enter moving on to the next field of their long grids.
#pragma once

#include <string>

#include "forms/tax_form.h"

namespace lw {

class EnterMovesOnForm : public TaxForm {
public:
    EnterMovesOnForm(const std::string& name, const ProgramParts& parts);

    void onKeyPress(Control& ctl, int& keyAscii) override;
};

// The provider's statement: Load TP fills the responsible individual.
class Form1095B : public EnterMovesOnForm {
public:
    explicit Form1095B(const ProgramParts& parts);

    bool fillTaxpayers(const std::string& who, const TPInfoRec& a, const TPInfoRec& b) override;
};

// The employer's statement: the narrow columns of its monthly grid in Arial Narrow 9, the rest in
// Tahoma 11.
class Form1095C : public EnterMovesOnForm {
public:
    explicit Form1095C(const ProgramParts& parts);

    void styleTextBox(Control& box) override;
    // Load TP fills the employee.
    bool fillTaxpayers(const std::string& who, const TPInfoRec& a, const TPInfoRec& b) override;
};

// Makes TF_1095B and TF_1095C known by name.
void register1095BCForms();

}  // namespace lw
