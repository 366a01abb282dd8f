#include "forms/form_1095bc.h"

#include <memory>

#include "fields/key_press.h"
#include "model/keys.h"
#include "shell/form_registry.h"

namespace lw {

EnterMovesOnForm::EnterMovesOnForm(const std::string& name) : TaxForm(name) {}

void EnterMovesOnForm::onKeyPress(Control& ctl, int& keyAscii) {
    if (isFieldArray(ctl) && keyAscii == keys::kEnter) {
        sendTabKey(*this);
        keyAscii = 0;
    }
    TaxForm::onKeyPress(ctl, keyAscii);
}

void register1095BCForms() {
    for (const char* name : {"TF_1095B", "TF_1095C"})
        registerForm(name, [name] { return std::make_unique<EnterMovesOnForm>(name); });
}

}  // namespace lw
