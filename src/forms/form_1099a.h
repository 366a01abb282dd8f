#pragma once
// The 1099-A: the standard handlers, and on paper a white page on which box 6's label alone keeps a
// background of its own; after a clip its labels take the panel's grey again.

#include "forms/tax_form.h"

namespace lw {

class Form1099A : public TaxForm {
public:
    explicit Form1099A(const ProgramParts& parts);

    void paintLabelAsPaper(Control& label) override;
    bool putBackAfterClip() override;
};

// Makes TF_1099A known by name.
void register1099AForm();

}  // namespace lw
