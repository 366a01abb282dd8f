#include "forms/form_1099a.h"

#include <memory>

#include "shell/form_registry.h"
#include "text/case.h"

namespace lw {

namespace {
bool isBoxSix(const Control& label) { return label.name == "Label1" && label.index == 6; }
}  // namespace

Form1099A::Form1099A(const ProgramParts& parts) : TaxForm("TF_1099A", parts) {}

void Form1099A::paintLabelAsPaper(Control& label) {
    // White, and for box 6 the system's window colour, which is white as well.
    label.backColor = kWhite;
    label.opaque = isBoxSix(label);
}

// The labels alone come back: the first field, the status line and box 6 stay as the clip left them.
bool Form1099A::putBackAfterClip() {
    for (const auto& owned : controls()) {
        Control& c = *owned;
        if (c.kind != ControlKind::Label) continue;
        if ((c.name == "Label1" && !isBoxSix(c)) || text::startsWithNoCase(c.name, "ftr") ||
            text::startsWithNoCase(c.name, "RTL"))
            c.backColor = kButtonFace;
    }
    return true;
}

void register1099AForm() {
    registerForm("TF_1099A", [](const ProgramParts& parts) { return std::make_unique<Form1099A>(parts); });
}

}  // namespace lw
