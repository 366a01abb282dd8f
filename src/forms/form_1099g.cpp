#include "forms/form_1099g.h"

#include <memory>

#include "shell/form_registry.h"
#include "text/case.h"

namespace lw {

Form1099G::Form1099G(const ProgramParts& parts) : TaxForm("TF_1099G", parts) {}

void Form1099G::onLostFocus(Control& ctl) {
    if (ctl.index == kTaxYearBox && text::equalsNoCase(ctl.name, "Text1")) {
        // Empty means the current tax year; four characters stand as typed; "24" means 2024.
        const std::size_t length = ctl.text.size();
        if (length == 2)
            ctl.text = "20" + ctl.text;
        else if (length != 0 && length != 4)
            setFocus(ctl);
    }
    TaxForm::onLostFocus(ctl);
}

void register1099GForm() {
    registerForm("TF_1099G", [](const ProgramParts& parts) { return std::make_unique<Form1099G>(parts); });
}

}  // namespace lw
