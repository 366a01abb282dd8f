#include "forms/form_1095bc.h"

#include <memory>

#include "fields/key_press.h"
#include "model/keys.h"
#include "shell/form_registry.h"
#include "taxpayer/load_tp.h"

namespace lw {

EnterMovesOnForm::EnterMovesOnForm(const std::string& name, const ProgramParts& parts)
    : TaxForm(name, parts) {
    sizesBorder_ = false;
    shadesPartLabels_ = true;
}

void EnterMovesOnForm::onKeyPress(Control& ctl, int& keyAscii) {
    if (isFieldArray(ctl) && keyAscii == keys::kEnter) {
        sendTabKey(*this);
        keyAscii = 0;
    }
    TaxForm::onKeyPress(ctl, keyAscii);
}

Form1095B::Form1095B(const ProgramParts& parts) : EnterMovesOnForm("TF_1095B", parts) {}

bool Form1095B::fillTaxpayers(const std::string&, const TPInfoRec& a, const TPInfoRec&) {
    fillTaxpayers1095B(*this, a);
    return true;
}

Form1095C::Form1095C(const ProgramParts& parts) : EnterMovesOnForm("TF_1095C", parts) {}

bool Form1095C::fillTaxpayers(const std::string&, const TPInfoRec& a, const TPInfoRec&) {
    fillTaxpayers1095C(*this, a);
    return true;
}

void Form1095C::styleTextBox(Control& box) {
    // The gaps at 35 and 48 to 78 are the form's own.
    const int i = box.index;
    const bool narrow =
        (i >= 10 && i <= 22) || (i >= 23 && i <= 34) || (i >= 36 && i <= 47) || (i >= 79 && i <= 91);
    if (narrow)
        setTextFont(box, "ArialNarrow", 9);
    else
        setTextFont(box, "Tahoma", 11);
}

void register1095BCForms() {
    registerForm("TF_1095B", [](const ProgramParts& parts) { return std::make_unique<Form1095B>(parts); });
    registerForm("TF_1095C", [](const ProgramParts& parts) { return std::make_unique<Form1095C>(parts); });
}

}  // namespace lw
