// The names a screen reader gives the fields: the box and caption of the official form.
#include "catalogue/field_names.h"

#include <gtest/gtest.h>

#include <string>

#include "catalogue/definitions.h"

namespace lw {
namespace {

// A drawn form, made from its definition as the program makes it.
struct Drawn {
    explicit Drawn(const char* name) : form(name) { realizeDefinition(*findDefinition(name), form); }
    std::string nameOf(const char* control, int index = kNoIndex) {
        return accessibleNameOf(form, form.at(control, index));
    }
    Form form;
};

TEST(FieldNames, ABoxIsNamedByItsNumberAndCaption) {
    EXPECT_EQ(spokenCaption("1. Wages, tips, other compensation"), "Box 1, Wages, tips, other compensation");
    EXPECT_EQ(spokenCaption("12a See instructions"), "Box 12a, See instructions");
    EXPECT_EQ(spokenCaption("e. Employee's first name"), "Box e, Employee's first name");
    EXPECT_EQ(spokenCaption("9."), "Box 9");
    EXPECT_EQ(spokenCaption("Statutory\r\nemployee"), "Statutory employee");
    EXPECT_EQ(spokenCaption("OMB No. 1545-0008"), "OMB No. 1545-0008");
    EXPECT_EQ(spokenCaption("2025 Form"), "2025 Form") << "four digits are a year, not a box";
}

TEST(FieldNames, TheW2sFieldsAreNamedAsOnThePaperForm) {
    Drawn w2("TF_W2");
    EXPECT_EQ(w2.nameOf("Text1", 0), "Box a, Employee's social security number");
    EXPECT_EQ(w2.nameOf("Text1", 2), "Box 1, Wages, tips, other compensation");
    EXPECT_EQ(w2.nameOf("Text1", 6), "Box 4, Social security tax withheld");
    EXPECT_EQ(w2.nameOf("Text1", 13), "Box e, Employee's first name and initial");
    EXPECT_EQ(w2.nameOf("Check", 0), "Box 13, Statutory employee");
    EXPECT_EQ(w2.nameOf("Text1", 29), "Box 14, Other");
}

TEST(FieldNames, The1099INTsFieldsAreNamedAsOnThePaperForm) {
    Drawn form("TF_1099INT");
    EXPECT_EQ(form.nameOf("Text1", 2), "Box 1, Interest income");
    EXPECT_EQ(form.nameOf("Text1", 3), "Box 2, Early withdrawal penalty");
}

TEST(FieldNames, TheCellsOfALongGridAreNamedByTheirRowAndColumn) {
    Drawn form("TF_1095A");
    EXPECT_EQ(form.nameOf("Text1", 38), "A. Monthly enrollment premiums");
    EXPECT_EQ(form.nameOf("Text1", 62), "Box 32, December, B. Monthly second lowest cost silver plan (SLCSP) premium");
    EXPECT_EQ(form.nameOf("Text1", 76), "Box 33, Annual Totals, C. Monthly advance payment of premium tax credit");
}

TEST(FieldNames, EveryFieldAndCheckBoxOfEveryDrawnFormHasAName) {
    for (const EmbeddedDefinition& embedded : embeddedDefinitions()) {
        Drawn drawn(embedded.formName);
        for (const auto& owned : drawn.form.controls()) {
            const Control& c = *owned;
            const bool named = c.kind == ControlKind::TextBox || c.kind == ControlKind::CheckLabel;
            if (!named || !c.visible) continue;
            EXPECT_FALSE(accessibleNameOf(drawn.form, c).empty()) << embedded.formName << " " << c.key();
        }
    }
}

}  // namespace
}  // namespace lw
