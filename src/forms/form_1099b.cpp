#include "forms/form_1099b.h"

#include <memory>

#include "shell/form_registry.h"

namespace lw {

Form1099B::Form1099B(const ProgramParts& parts) : TaxForm("TF_1099B", parts) {}

void Form1099B::onLoad() {
    TaxForm::onLoad();
    // The field set-up has already made these fields unable to take the focus by their Tag.
    for (int i = kFirstOutOfScope; i <= kLastOutOfScope; ++i) {
        Control& box = at("Text1", i);
        box.alignment = 2;
        box.text = "OUT OF SCOPE";
        box.backColor = kOutOfScopeBack;
    }
}

void register1099BForm() {
    registerForm("TF_1099B", [](const ProgramParts& parts) { return std::make_unique<Form1099B>(parts); });
}

}  // namespace lw
