// The names a screen reader gives the fields: the box and caption of the official form.
#include "catalogue/field_names.h"

#include <gtest/gtest.h>

#include <map>
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
}

TEST(FieldNames, TheCodeOfABoxUnderASubCaptionCarriesItsOwnBox) {
    Drawn w2("TF_W2");
    EXPECT_EQ(w2.nameOf("Text1", 15), "Box 12a, Code");
    EXPECT_EQ(w2.nameOf("Text1", 17), "Box 12b, Code") << "not the box 13 beside it";
    EXPECT_EQ(w2.nameOf("Text1", 18), "Box 12b, amount");
    EXPECT_EQ(w2.nameOf("Text1", 21), "Box 12d, Code");
}

TEST(FieldNames, TheLinesOfOneBoxAreToldApartByLineAndColumn) {
    Drawn w2("TF_W2");
    EXPECT_EQ(w2.nameOf("Text1", 23), "Box 14, Other, line 1");
    EXPECT_EQ(w2.nameOf("Text1", 26), "Box 14, Other, line 2, amount");
    EXPECT_EQ(w2.nameOf("Text1", 29), "Box 14, Other, line 4");
    EXPECT_EQ(w2.nameOf("Text1", 33), "Box 16, State wages, tips, etc., line 1");
    EXPECT_EQ(w2.nameOf("Text1", 40), "Box 16, State wages, tips, etc., line 2");
    EXPECT_EQ(w2.nameOf("Text1", 39), "Box 15, Employer's state ID number, line 2");
}

TEST(FieldNames, ACellOfATableIsNamedByItsRowAndColumn) {
    Drawn k1("TF_K11065");
    EXPECT_EQ(k1.nameOf("Text1", 13), "Item J, Loss, Ending");
    EXPECT_EQ(k1.nameOf("Text1", 22),
              "Item L, Partner's Capital Account Analysis, Beginning capital account");
    EXPECT_EQ(k1.nameOf("Text4", 1), "Box 14, Self-employment earnings (loss), line 2, code");
    EXPECT_EQ(k1.nameOf("Text5", 1), "Box 14, Self-employment earnings (loss), line 2, amount");
    EXPECT_EQ(k1.nameOf("Text1", 8),
              "Item H2, If the partner is a disregarded entity (DE), enter the partner's, Name");
}

TEST(FieldNames, FramesAndTitlesTellApartTheRepeatedPartsOfAForm) {
    Drawn sheet("F5_TPInfo");
    EXPECT_EQ(sheet.nameOf("Text1", 4), "Taxpayer 2 Information, SS/ITIN No.");
    EXPECT_EQ(sheet.nameOf("Text1", 3), "Taxpayer 2 Information, Name & Address") << "&& shows one &";
    EXPECT_EQ(sheet.nameOf("Text1", 27), "Others Persons (Dependents, etc.), SS/ITIN No., line 6");
    Drawn railroad("TF_RRB1099");
    EXPECT_EQ(railroad.nameOf("Text1", 14),
              "ANNUITIES OR PENSIONS BY THE RAILROAD RETIREMENT BOARD, Box 1, Claim Number and Payee Code");
    Drawn licenses("F3_DL");
    EXPECT_EQ(licenses.nameOf("Text1", 5), "Right license, Birth Date");
}

TEST(FieldNames, AFieldNoCaptionNamesIsNamedByItsTipOrItsOwnWords) {
    Drawn check("F4_CHK");
    EXPECT_EQ(check.nameOf("Text1", 1), "Routing number") << "a colon of the routing marks names nothing";
    EXPECT_EQ(check.nameOf("Text1", 3), "Name and address of the bank")
        << "not the payee's line above the rule";
    Drawn cards("F2_SS_ITIN");
    EXPECT_EQ(cards.nameOf("Text1", 6), "Card 4, number");
}

TEST(FieldNames, The1099INTsFieldsAreNamedAsOnThePaperForm) {
    Drawn form("TF_1099INT");
    EXPECT_EQ(form.nameOf("Text1", 2), "Box 1, Interest income");
    EXPECT_EQ(form.nameOf("Text1", 3), "Box 2, Early withdrawal penalty");
}

TEST(FieldNames, TheCellsOfALongGridAreNamedByTheirRowAndColumn) {
    Drawn form("TF_1095A");
    EXPECT_EQ(form.nameOf("Text1", 13), "Box 16, A. Covered individual name");
    EXPECT_EQ(form.nameOf("Text1", 33), "Box 20, A. Covered individual name");
    EXPECT_EQ(form.nameOf("Text1", 38), "Box 21, January, A. Monthly enrollment premiums");
    EXPECT_EQ(form.nameOf("Text1", 62),
              "Box 32, December, B. Monthly second lowest cost silver plan (SLCSP) premium");
    EXPECT_EQ(form.nameOf("Text1", 76),
              "Box 33, Annual Totals, C. Monthly advance payment of premium tax credit");
}

// Every field and check box of every drawn form has a name no other field of its form has; on a tax
// form, the name carries the box the field stands in.
TEST(FieldNames, EveryFieldOfEveryDrawnFormHasANameOfItsOwnThatCarriesItsBox) {
    for (const EmbeddedDefinition& embedded : embeddedDefinitions()) {
        Drawn drawn(embedded.formName);
        const bool taxForm = std::string(embedded.formName).rfind("TF_", 0) == 0;
        std::map<std::string, std::string> seen;
        for (const auto& [field, name] : fieldNamesOf(drawn.form)) {
            const std::string where = std::string(embedded.formName) + " " + field->key();
            EXPECT_FALSE(name.text.empty()) << where;
            const auto [before, fresh] = seen.emplace(name.text, field->key());
            EXPECT_TRUE(fresh) << where << " says \"" << name.text << "\" as " << before->second << " does";
            const bool entry = field->kind == ControlKind::TextBox || field->kind == ControlKind::CheckLabel;
            if (!taxForm || !entry) continue;
            ASSERT_NE(name.box, nullptr) << where;
            const std::string box = spokenWordsOf(*name.box);
            const std::string designation = box.substr(0, box.find(','));
            EXPECT_NE(name.text.find(designation), std::string::npos) << where << ": " << name.text;
        }
    }
}

}  // namespace
}  // namespace lw
