// One dollar sign for each amount: a box's printed "$" stands only beside a field whose text carries
// none of its own.
#include <gtest/gtest.h>

#include <string>

#include "catalogue/definitions.h"
#include "text/case.h"

namespace lw {
namespace {

// The masks of these types write "$" into the field's text.
bool writesItsOwnDollar(const std::string& tag) {
    const std::string type = text::toUpper(tag);
    return type == "MONEY" || type == "-MONEY" || type == "AMONEY";
}

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

TEST(DollarSigns, NoDrawnDollarSignStandsBesideAFieldThatWritesItsOwn) {
    int signs = 0;
    for (const EmbeddedDefinition& embedded : embeddedDefinitions()) {
        const FormDefinition* form = findDefinition(embedded.formName);
        ASSERT_NE(form, nullptr) << embedded.formName;
        for (const ControlDefinition& d : form->controls) {
            const Control& label = d.control;
            if (label.kind != ControlKind::Label || label.caption != "$") continue;
            ++signs;
            const Control* field = fieldBeside(*form, label);
            if (!field) continue;
            EXPECT_FALSE(writesItsOwnDollar(field->tag))
                << embedded.formName << ": a \"$\" at " << label.left << "," << label.top << " beside "
                << field->key() << " (" << field->tag << "), whose text has its own";
        }
    }
    EXPECT_GT(signs, 0) << "the boxes of amounts without a sign of their own keep theirs";
}

}  // namespace
}  // namespace lw
