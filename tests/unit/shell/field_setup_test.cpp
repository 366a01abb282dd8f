#include <gtest/gtest.h>

#include "fields/control_setup.h"
#include "model/app_error.h"
#include "test_program.h"

namespace lw {
namespace {

struct FieldSetup : ::testing::Test {
    testing::TestProgram test;
    Form form{"TF_SAMPLE"};

    void SetUp() override {
        test.start();
        test.program->g.document.currentForm = &form;
        test.program->g.document.formKey = "SAMPLE";
        form.add(ControlKind::Label, "labelMisc");
    }
    Control& field(const std::string& tag, int index = 0, const std::string& name = "Text1") {
        Control& c = form.add(ControlKind::TextBox, name, index);
        c.tag = tag;
        c.text = "abc";
        c.select(1, 1);
        return c;
    }
    Color legend(int i) { return legendColors()[static_cast<std::size_t>(i)]; }
    OpenDocument& document() { return test.program->g.document; }
    const LegendColors& legendColors() { return test.program->g.edition.legendColors; }
};

TEST_F(FieldSetup, TheLegendGivesTheFocusColourOfEachType) {
    EXPECT_EQ(legend(3), 0x0000FF00u);
    Control& money = field("MONEY");
    setUpControl(money, false, document(), legendColors());
    EXPECT_EQ(money.backColor, legend(3));
    Control& negative = field("-MONEY", 1);
    setUpControl(negative, false, document(), legendColors());
    EXPECT_EQ(negative.backColor, legend(4));
    Control& tin = field("TIN", 2);
    setUpControl(tin, false, document(), legendColors());
    EXPECT_EQ(tin.backColor, legend(1));
    Control& date = field("DATEX", 3);
    setUpControl(date, false, document(), legendColors());
    EXPECT_EQ(date.backColor, legend(6));
    EXPECT_EQ(date.maxLength, 10);
    Control& help = field("K1HELP", 4);
    setUpControl(help, false, document(), legendColors());
    EXPECT_EQ(help.backColor, legend(8));
}

TEST_F(FieldSetup, AYearFieldKeepsItsColourOnFocus) {
    Control& year = field("YEAR");
    year.backColor = kWhite;
    setUpControl(year, false, document(), legendColors());
    EXPECT_EQ(year.backColor, kWhite);
    EXPECT_EQ(year.maxLength, 4);
}

TEST_F(FieldSetup, AMixedCaseDateTakesTheOtherColourYetIsCentredAsADate) {
    Control& date = field("Date");
    setUpControl(date, true, document(), legendColors());
    EXPECT_EQ(date.alignment, 2);
    setUpControl(date, false, document(), legendColors());
    EXPECT_EQ(date.backColor, legend(9));
    EXPECT_EQ(date.maxLength, 10) << "the set-up, blind to case, saw a date";
}

TEST_F(FieldSetup, AnUntaggedFieldKeepsItsSelectionWhereANameBlockIsSelected) {
    Control& plain = field("");
    setUpControl(plain, false, document(), legendColors());
    EXPECT_EQ(plain.backColor, legend(9));
    EXPECT_EQ(plain.selStart(), 1);
    EXPECT_EQ(plain.selLength(), 1);
    Control& name = field("TPNAME", 1);
    setUpControl(name, false, document(), legendColors());
    EXPECT_EQ(name.backColor, legend(9));
    EXPECT_EQ(name.selStart(), 0);
    EXPECT_EQ(name.selLength(), 3)
        << "the whole text, as a text box reports a selection of 99 on three characters";
}

TEST_F(FieldSetup, TheTextBehindAMiddleDotIsNoPartOfTheType) {
    Control& help = field(
        "K1HELP\xB7"
        "A,B,C");
    setUpControl(help, false, document(), legendColors());
    EXPECT_EQ(help.backColor, legend(8));
    Control& mixed = field("K1Help", 1);
    setUpControl(mixed, false, document(), legendColors());
    EXPECT_EQ(mixed.backColor, legend(9));
    setUpControl(mixed, true, document(), legendColors());
    EXPECT_EQ(mixed.alignment, 2) << "every K1 type is centred";
}

TEST_F(FieldSetup, SetUpGivesAlignmentTipAndLength) {
    Control& money = field("SMONEY");
    setUpControl(money, true, document(), legendColors());
    EXPECT_EQ(money.alignment, 1);
    EXPECT_EQ(money.toolTipText, "Money: Dollar sign/commas optional");
    Control& unknown = field("AMONEY", 1);
    setUpControl(unknown, true, document(), legendColors());
    EXPECT_EQ(unknown.toolTipText, "U or UNK for UNKNOWN, Dollar sign/comma optional");
    Control& year = field("TAXYEAR1099G", 2);
    setUpControl(year, true, document(), legendColors());
    EXPECT_EQ(year.maxLength, 4);
    EXPECT_EQ(year.toolTipText, "TaxYear: Leave blank if current tax year, else enter YY or YYYY");
    Control& computed = field("COMPUTED", 3);
    computed.alignment = 1;
    setUpControl(computed, true, document(), legendColors());
    EXPECT_EQ(computed.alignment, 1) << "a computed field keeps the form's alignment";
    EXPECT_EQ(computed.backColor, legend(7));
    Control& box = field("CHECKBOX", 4);
    setUpControl(box, true, document(), legendColors());
    EXPECT_TRUE(box.fontBold);
    Control& phone = field("PHONE", 5);
    phone.toolTipText = "designer's tip";
    phone.alignment = 2;
    setUpControl(phone, true, document(), legendColors());
    EXPECT_EQ(phone.alignment, 0);
    EXPECT_EQ(phone.toolTipText, "designer's tip") << "a type without a tip keeps the designed one";
}

// A form with rules of its own for its fields, as the cards and the 1095-A have.
class OwnRulesForm : public Form, public FieldRules {
public:
    OwnRulesForm() : Form("TF_OWN") {}
    int untypedFieldAlignment() const override { return 2; }
    void giveMoneyTip(Control& field) const override { field.toolTipText = "own tip"; }
};

TEST_F(FieldSetup, AFieldWhoseTypeAlignsNothingTakesTheFormsAlignment) {
    Control& common = field("TPNAME");
    common.alignment = 2;
    setUpControl(common, true, document(), legendColors());
    EXPECT_EQ(common.alignment, 0);
    OwnRulesForm own;
    Control& centred = own.add(ControlKind::TextBox, "Text1", 0);
    centred.tag = "TPNAME";
    setUpControl(centred, true, document(), legendColors());
    EXPECT_EQ(centred.alignment, 2);
}

TEST_F(FieldSetup, AMoneyFieldTakesTheTipOfItsForm) {
    Control& common = field("MONEY");
    setUpControl(common, true, document(), legendColors());
    EXPECT_EQ(common.toolTipText, kMoneyTip);
    OwnRulesForm own;
    Control& money = own.add(ControlKind::TextBox, "Text1", 0);
    money.tag = "MONEY";
    setUpControl(money, true, document(), legendColors());
    EXPECT_EQ(money.toolTipText, "own tip");
    EXPECT_EQ(money.alignment, 1) << "the type's own alignment stands";
}

TEST_F(FieldSetup, TakingTheFocusPutsTheTipOnTheStatusLineAndNotesTheField) {
    Control& money = field("MONEY", 12);
    money.toolTipText = "Box 3";
    setUpControl(money, false, document(), legendColors());
    EXPECT_EQ(form.at("labelMisc").caption, "Box 3");
    EXPECT_EQ(test.program->g.document.lastFieldKey, "Text1:12");
    Control& rate = field("SSMC", kNoIndex, "txtSSRate");
    setUpControl(rate, false, document(), legendColors());
    EXPECT_EQ(test.program->g.document.lastFieldKey, "Text1:12") << "only the Text arrays are noted";
}

TEST_F(FieldSetup, AFieldOutOfScopeNeverTakesTheFocus) {
    Control& outside = field("OUT OF SCOPE");
    setUpControl(outside, true, document(), legendColors());
    EXPECT_EQ(outside.backColor, kOutOfScopeColor);
    EXPECT_EQ(outside.alignment, 2);
    EXPECT_FALSE(outside.canTakeFocus());
    EXPECT_THROW(setUpBackColor(outside, legendColors()), AppError);
}

}  // namespace
}  // namespace lw
