#include <string>

#include "fields_fixture.h"

namespace lw::test {
namespace {

class EmptyField : public FieldsTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(EmptyField, PassesTurnsWhiteAndBlackAndNoEditRuns) {
    Control& c = field(GetParam());
    c.backColor = kLegend[3];
    c.foreColor = kRed;
    status().caption = "Value Entered: [x] is INVALID";
    EXPECT_TRUE(editField(c, editContext()));
    EXPECT_EQ(c.text, "");
    EXPECT_EQ(c.backColor, kWhite);
    EXPECT_EQ(c.foreColor, kBlack);
    EXPECT_EQ(status().caption, "");
    EXPECT_TRUE(ui.modalForms.empty());
}

INSTANTIATE_TEST_SUITE_P(EveryType, EmptyField,
                         ::testing::Values("MONEY", "SMONEY", "-MONEY", "AMONEY", "#", "%", "#.#", "TIN",
                                           "EIN", "DATE", "DATEX", "YEAR", "TAXYEAR", "TAXYEAR1099G",
                                           "VERIFICATION", "TPNAME", "ISSUER", "PHONE", "SSMC", "COMPUTED",
                                           "K1", "K1HELP", "CHECKBOX", "1095C-14", "OUT OF SCOPE", ""));

struct UpperRow {
    const char* tag;
    std::string typed;
    std::string shown;
};

std::ostream& operator<<(std::ostream& os, const UpperRow& r) {
    return os << r.tag << " \"" << r.typed << "\"";
}

class UpperCasedOnly : public FieldsTest, public ::testing::WithParamInterface<UpperRow> {};

TEST_P(UpperCasedOnly, TheTextIsUpperCasedAndAlwaysStands) {
    Control& c = field(GetParam().tag, GetParam().typed);
    EXPECT_TRUE(editField(c, editContext()));
    EXPECT_EQ(c.text, GetParam().shown);
    EXPECT_EQ(c.backColor, kWhite);
}

INSTANTIATE_TEST_SUITE_P(
    OtherTypes, UpperCasedOnly,
    ::testing::Values(UpperRow{"TAXYEAR", "2o23", "2O23"}, UpperRow{"TaxYear1099G", "abc", "ABC"},
                      UpperRow{"ISSUER", "acme\r\nmain st", "ACME\r\nMAIN ST"}, UpperRow{"K1", "a1", "A1"},
                      UpperRow{"K1Help", "zz", "ZZ"}, UpperRow{"COMPUTED", "$1.2.3", "$1.2.3"},
                      UpperRow{"OUT OF SCOPE", "out", "OUT"}, UpperRow{"CheckBox", "x", "X"},
                      UpperRow{"1095C-14", "1a", "1A"}, UpperRow{"1095C-17", "ok", "OK"},
                      UpperRow{"SSMC", "0.062", "0.062"}, UpperRow{"", "caf\xE9", "CAF\xC9"},
                      // The whole Tag decides: added text behind the dot makes a date field plain text here.
                      UpperRow{"Date\xB7"
                               "A",
                               "1/2/2024x", "1/2/2024X"},
                      UpperRow{"MONEY ", "5a", "5A"}));

TEST_F(FieldsTest, TheStatusLineIsClearedBeforeTheEdit) {
    Control& c = field("MONEY", "5");
    status().caption = "Money: Dollar sign/commas optional";
    EXPECT_TRUE(editField(c, editContext()));
    EXPECT_EQ(status().caption, "");
}

TEST_F(FieldsTest, AFormWithoutAStatusLineUsesTheEditsToo) {
    Form& bare = prog().desktop.load(std::make_unique<Form>("F_BARE"));
    g().document.currentForm = &bare;
    Control& amount = bare.add(ControlKind::TextBox, "Text1", 0);
    amount.tag = "MONEY";
    amount.text = "1,5";
    EXPECT_TRUE(editField(amount, editContext()));
    EXPECT_EQ(amount.text, "$15.00");
    amount.text = "x";
    EXPECT_FALSE(editField(amount, editContext()));
    EXPECT_EQ(amount.backColor, kLegend[3]);
    EXPECT_TRUE(ui.modalForms.empty());
}

TEST_F(FieldsTest, ADateFieldIsEditedAsADateInAnyCaseOfItsTag) {
    Control& date = field("Date", "1/2/2024");
    EXPECT_TRUE(editField(date, editContext()));
    EXPECT_EQ(date.text, "01/02/2024");
    Control& bad = field("DATE", "01/02/24");
    EXPECT_FALSE(editField(bad, editContext()));
    EXPECT_EQ(bad.backColor, kLegend[6]);
    EXPECT_EQ(bad.foreColor, kRed);
}

TEST_F(FieldsTest, ADateOfAnyYearStandsInADateField) {
    Control& date = field("DATE", "06/30/1999");
    EXPECT_TRUE(editField(date, editContext()));
    EXPECT_EQ(date.text, "06/30/1999");
    EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(FieldsTest, ADateInTaxYearIsMovedToTheYearTheFormShows) {
    Control& date = field("DATEX", "3/7");
    EXPECT_TRUE(editField(date, editContext()));
    EXPECT_EQ(date.text, "03/07/2023");
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].number, 803);
    EXPECT_NE(
        ui.boxes[0].message.find("Date MUST match the Tax Year shown on the form\r\n03/07/2025 Changed to "
                                 "03/07/2023\r\n --- Make sure it is correct ---"),
        std::string::npos)
        << ui.boxes[0].message;

    // The year follows the form's labels, also after a change of year.
    form->at("TaxYear", 1).caption = "24";
    date.text = "06/30/1999";
    EXPECT_TRUE(editField(date, editContext()));
    EXPECT_EQ(date.text, "06/30/2024");
    date.text = "12/31/2024";
    EXPECT_TRUE(editField(date, editContext()));
    EXPECT_EQ(ui.boxes.size(), 2u);
}

TEST_F(FieldsTest, AFaultOfTheDispatcherItselfIsLoggedAndTheResultStands) {
    Form& bare = prog().desktop.load(std::make_unique<Form>("TF_NOYEAR"));
    g().document.currentForm = &bare;
    Control& date = bare.add(ControlKind::TextBox, "Text1", 0);
    date.tag = "DATEX";
    date.text = "3/7/2023";
    date.foreColor = kRed;
    EXPECT_TRUE(editField(date, editContext()));
    EXPECT_EQ(date.text, "3/7/2023");
    EXPECT_EQ(date.foreColor, kRed);  // the painting step was not reached
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->module, "M7_Edits:EditCtl");
    EXPECT_EQ(lastErrorReport()->number, "424");
}

TEST_F(FieldsTest, AFailedFieldWithoutTheFocusTakesItAndItsFocusLook) {
    Control& amount = field("-MONEY", "1.2.3");
    prog().desktop.setFocus(elsewhere());
    EXPECT_FALSE(editField(amount, editContext()));
    EXPECT_EQ(prog().desktop.focus(), &amount);
    EXPECT_EQ(amount.backColor, kLegend[4]);
    EXPECT_EQ(amount.foreColor, kRed);
}

TEST_F(FieldsTest, AFailedDateLeavesTheFocusWhereItIs) {
    Control& date = field("DATE", "13/45/2024");
    prog().desktop.setFocus(elsewhere());
    EXPECT_FALSE(editField(date, editContext()));
    EXPECT_EQ(prog().desktop.focus(), &elsewhere());
    EXPECT_EQ(date.text, "13/45/2024");
    EXPECT_EQ(date.backColor, kLegend[6]);
    EXPECT_EQ(status().caption, invalid("13/45/2024"));
}

TEST_F(FieldsTest, TheEditsCanBeCalledAlone) {
    Control& c = field("");
    c.text = "1234.5";
    EXPECT_TRUE(editMoney(c, editContext()));
    EXPECT_EQ(c.text, "$1,234.50");
    c.text = "(1)";
    EXPECT_TRUE(editMoneyNegativeOk(c, editContext()));
    EXPECT_EQ(c.text, "($1.00)");
    c.text = "1234";
    EXPECT_TRUE(editNumeric(c, editContext()));
    EXPECT_EQ(c.text, "1,234");
    c.text = "914";
    EXPECT_TRUE(editEin(c, editContext()));
    EXPECT_EQ(c.text, "91-4XXXXXX");
    c.text = "5551212";
    EXPECT_TRUE(editPhone(c));
    EXPECT_EQ(c.text, "(999) 555-1212");
    c.text = "a\r\nb";
    EXPECT_TRUE(editNameBlock(c));
    EXPECT_EQ(c.text, "A\r\nB");
}

}  // namespace
}  // namespace lw::test
