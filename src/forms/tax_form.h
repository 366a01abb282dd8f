#pragma once
// A form of the catalogue with the standard handlers that nearly every form uses: the focus look, the
// keystroke filter, the edit on leaving, the white rest look, and the check boxes.

#include <string>

#include "shell/catalogue_form.h"

namespace lw {

class TaxForm : public CatalogueForm {
public:
    TaxForm(const std::string& name, const ProgramParts& parts);

    void onLoad() override;
    void onGotFocus(Control& ctl) override;
    void onKeyPress(Control& ctl, int& keyAscii) override;
    void onValidate(Control& ctl, bool& cancel) override;
    void onLostFocus(Control& ctl) override;
    void onClick(Control& ctl, MouseButton button) override;

    // The Check labels of this form answer clicks by the form's own rule.
    void onCheckClick(int index);

    // On paper no label keeps a background, but the shaded part headings of a form that keeps them.
    void paintLabelAsPaper(Control& label) override;

protected:
    // Most forms size their border to their drawing when they load; a form that keeps it as drawn clears
    // this in its constructor.
    bool sizesBorder_ = true;
    // Set by a form whose part headings (LabelPart) keep their shading on paper.
    bool shadesPartLabels_ = false;
};

// The typed text arrays of the forms: Text1 to Text5.
bool isFieldArray(const Control& ctl);

}  // namespace lw
