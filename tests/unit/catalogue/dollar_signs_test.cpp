// One dollar sign for each amount: the "$" of a box that holds a field is printed by one rule from the
// field's type, so no drawing places a "$" of its own beside a field.
#include <gtest/gtest.h>

#include <string>

#include "catalogue/definitions.h"

namespace lw {
namespace {

// The field a label stands beside: on the same line, starting where the label starts or just after it.
const Control* fieldBeside(const FormDefinition& form, const Control& label) {
    for (const ControlDefinition& d : form.controls) {
        const Control& c = d.control;
        if (!c.isTextBox()) continue;
        const bool sameLine = c.top < label.top + label.height && label.top < c.top + c.height;
        const bool justRight = c.left >= label.left && c.left <= label.left + label.width + 200;
        if (sameLine && justRight) return &c;
    }
    return nullptr;
}

TEST(DollarSigns, NoDrawingPlacesASignBesideAField) {
    for (const EmbeddedDefinition& embedded : embeddedDefinitions()) {
        const FormDefinition* form = findDefinition(embedded.formName);
        ASSERT_NE(form, nullptr) << embedded.formName;
        for (const ControlDefinition& d : form->controls) {
            const Control& label = d.control;
            if (label.kind != ControlKind::Label || label.caption != "$") continue;
            if (const Control* field = fieldBeside(*form, label))
                ADD_FAILURE() << embedded.formName << ": a drawn \"$\" at " << label.left << "," << label.top
                              << " beside " << field->key() << " (" << field->tag << ")";
        }
    }
}

}  // namespace
}  // namespace lw
