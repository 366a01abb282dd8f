#include <string>

#include "fields_fixture.h"

namespace lw::test {
namespace {

struct KeyRow {
    const char* tag;
    int key;
    int expected;  // the key as the field receives it; 0 is swallowed
};

std::ostream& operator<<(std::ostream& os, const KeyRow& r) {
    return os << "tag \"" << r.tag << "\" key " << r.key << " -> " << r.expected;
}

class KeyFilter : public FieldsTest, public ::testing::WithParamInterface<KeyRow> {};

TEST_P(KeyFilter, PassesChangesOrSwallowsTheKey) {
    Control& c = field(GetParam().tag);
    int key = GetParam().key;
    filterFieldKey(c, key);
    EXPECT_EQ(key, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, KeyFilter,
    ::testing::Values(
        // Backspace passes in every field.
        KeyRow{"YEAR", 8, 8}, KeyRow{"MONEY", 8, 8}, KeyRow{"AMONEY", 8, 8}, KeyRow{"", 8, 8},
        // Dates: digits, the divider, the hyphen and the X of the placeholder year.
        KeyRow{"DATE", '7', '7'}, KeyRow{"DATE", '/', '/'}, KeyRow{"DATE", '-', '-'},
        KeyRow{"DATE", 'X', 'X'}, KeyRow{"DATE", 'x', 'x'}, KeyRow{"DATEX", 'x', 'x'}, KeyRow{"DATE", 'A', 0},
        KeyRow{"DATE", '.', 0}, KeyRow{"DATE", 13, 0}, KeyRow{"Date", 'x', 'x'}, KeyRow{"Date", 'a', 0},
        // Money with a dollar sign or without.
        KeyRow{"MONEY", '0', '0'}, KeyRow{"MONEY", '$', '$'}, KeyRow{"MONEY", ',', ','},
        KeyRow{"MONEY", '.', '.'}, KeyRow{"MONEY", '-', 0}, KeyRow{"MONEY", '(', 0}, KeyRow{"MONEY", 'a', 0},
        KeyRow{"SMONEY", '9', '9'}, KeyRow{"SMONEY", ' ', 0}, KeyRow{"money", '5', '5'},
        KeyRow{"MONEY", 13, 0},
        // Money that may be negative.
        KeyRow{"-MONEY", '(', '('}, KeyRow{"-MONEY", ')', ')'}, KeyRow{"-MONEY", '-', '-'},
        KeyRow{"-MONEY", '4', '4'}, KeyRow{"-MONEY", '$', '$'}, KeyRow{"-MONEY", 'U', 0},
        // Unknown amounts: held against the number 9, so digits are refused and codes 0-9 pass.
        KeyRow{"AMONEY", '5', 0}, KeyRow{"AMONEY", '0', 0}, KeyRow{"AMONEY", 'u', 'U'},
        KeyRow{"AMONEY", 'k', 'K'}, KeyRow{"AMONEY", 'N', 'N'}, KeyRow{"AMONEY", '$', '$'},
        KeyRow{"AMONEY", '(', '('}, KeyRow{"AMONEY", '.', '.'}, KeyRow{"AMONEY", '-', 0},
        KeyRow{"AMONEY", 0, 0}, KeyRow{"AMONEY", 3, 3}, KeyRow{"AMONEY", 9, 9}, KeyRow{"AMONEY", 10, 0},
        KeyRow{"AMONEY", 13, 0}, KeyRow{"AMONEY", 22, 0},
        // Social Security and ITIN numbers.
        KeyRow{"TIN", '1', '1'}, KeyRow{"TIN", '-', '-'}, KeyRow{"TIN", 'X', 'X'}, KeyRow{"TIN", 'x', 'x'},
        KeyRow{"TIN", 'A', 0}, KeyRow{"TIN", ' ', 0},
        // Years: digits only.
        KeyRow{"YEAR", '2', '2'}, KeyRow{"YEAR", 'a', 0}, KeyRow{"YEAR", '/', 0}, KeyRow{"TAXYEAR", '0', '0'},
        KeyRow{"TAXYEAR1099G", '9', '9'}, KeyRow{"TaxYear1099G", 'x', 0}, KeyRow{"TAXYEAR", '-', 0},
        // The verification code: hexadecimal digits in either case and the hyphen.
        KeyRow{"VERIFICATION", 'a', 'a'}, KeyRow{"VERIFICATION", 'F', 'F'}, KeyRow{"VERIFICATION", 'f', 'f'},
        KeyRow{"VERIFICATION", 'g', 0}, KeyRow{"VERIFICATION", 'G', 0}, KeyRow{"VERIFICATION", '-', '-'},
        KeyRow{"VERIFICATION", '3', '3'},
        // Numbers with decimals, and whole numbers.
        KeyRow{"%", '-', '-'}, KeyRow{"%", ',', ','}, KeyRow{"%", '.', '.'}, KeyRow{"#.#", '7', '7'},
        KeyRow{"#.#", '(', 0}, KeyRow{"#", '.', '.'}, KeyRow{"#", ',', ','}, KeyRow{"#", '-', 0},
        KeyRow{"#", '1', '1'},
        // Every other tag: printable characters, Tab and Enter pass; lower case letters are raised.
        KeyRow{"EIN", 'a', 'A'}, KeyRow{"EIN", 'Z', 'Z'}, KeyRow{"TPNAME", 'a', 'A'},
        KeyRow{"TPNAME", 'z', 'Z'}, KeyRow{"TPNAME", 13, 13}, KeyRow{"ISSUER", 13, 13}, KeyRow{"", 'q', 'Q'},
        KeyRow{"", 9, 9}, KeyRow{"", 10, 0}, KeyRow{"", 3, 0}, KeyRow{"", 22, 0}, KeyRow{"", 24, 0},
        KeyRow{"", 31, 0}, KeyRow{"", 32, 32}, KeyRow{"", 127, 127}, KeyRow{"", 0xE0, 0xE0},
        KeyRow{"PHONE", '(', '('}, KeyRow{"K1HELP", 'b', 'B'}, KeyRow{"COMPUTED", '1', '1'},
        // The whole Tag is compared: a K-1 date with added text behind its dot is no date to the filter.
        KeyRow{"Date\xB7"
               "A",
               'a', 'A'},
        KeyRow{"DATE ", 'a', 'A'}));

TEST_F(FieldsTest, PastingIntoAMoneyFieldBypassesTheFilterAndIsCaughtOnLeaving) {
    Control& money = field("MONEY");
    ui.clipboard = "12ab";
    prog().desktop.setFocus(money);
    prog().desktop.pressKey(0, keys::kCtrlMask, keys::kCtrlV);
    EXPECT_EQ(money.text, "12ab");
    type(money, "q");  // a letter typed is refused
    EXPECT_EQ(money.text, "12ab");

    EXPECT_FALSE(leave(money));
    EXPECT_EQ(prog().desktop.focus(), &money);
    EXPECT_EQ(status().caption, invalid("12ab"));
    EXPECT_EQ(money.foreColor, kRed);
    EXPECT_EQ(money.backColor, kLegend[3]);
}

TEST_F(FieldsTest, OnTheCheckFormCopyAndPasteGoThroughTheFilterAndAreSwallowed) {
    FieldForm& check = openForm("F4_CHK", true);
    Control& payee = check.add(ControlKind::TextBox, "Text1", 0);
    payee.text = "ANN LEE";
    ui.clipboard = "PASTED";
    prog().desktop.setFocus(payee);
    payee.select(0, 3);
    prog().desktop.pressKey(0, keys::kCtrlMask, keys::kCtrlV);
    EXPECT_EQ(payee.text, "ANN LEE");
    prog().desktop.pressKey(0, keys::kCtrlMask, keys::kCtrlC);
    EXPECT_EQ(ui.clipboard, "PASTED");
}

TEST_F(FieldsTest, LeavingAFieldOfTheCheckFormMakesItWhiteAndKeepsItsTextColour) {
    FieldForm& check = openForm("F4_CHK", true);
    Control& amount = check.add(ControlKind::TextBox, "Text1", 0);
    amount.tag = "MONEY";
    amount.foreColor = kRed;
    prog().desktop.setFocus(amount);
    EXPECT_EQ(amount.backColor, kLegend[3]);
    prog().desktop.setFocus(check.at("Text2", 0));
    EXPECT_EQ(amount.backColor, kWhite);
    EXPECT_EQ(amount.foreColor, kRed);
}

TEST_F(FieldsTest, ADateFieldShowsBothXsAsTypedAndTheHyphenFailsOnLeaving) {
    Control& date = field("DATE");
    type(date, "12-31-20xX");
    EXPECT_EQ(date.text, "12-31-20xX");
    EXPECT_FALSE(leave(date));
    EXPECT_EQ(date.backColor, kLegend[6]);
    EXPECT_EQ(status().caption, invalid("12-31-20xX"));
}

TEST_F(FieldsTest, AnEinFieldTakesLettersInUpperCaseAndDecidesOnLeaving) {
    Control& ein = field("EIN");
    type(ein, "9a4");
    EXPECT_EQ(ein.text, "9A4");
    EXPECT_FALSE(leave(ein));
    EXPECT_EQ(status().caption, "First 3 Charaters MUST BE Numeric");
}

TEST_F(FieldsTest, ALowerCaseLetterInANameBlockShowsInUpperCaseAtOnce) {
    Control& name = field("TPNAME");
    name.multiLine = true;
    type(name, "a");
    EXPECT_EQ(name.text, "A");
    type(name, "nn\rlee");
    EXPECT_EQ(name.text, "ANN\r\nLEE");
}

TEST_F(FieldsTest, BackspaceWorksInAYearFieldThatTakesNothingButDigits) {
    Control& year = field("YEAR");
    type(year, "20x24");
    EXPECT_EQ(year.text, "2024");
    prog().desktop.pressKey(keys::kBackspace, 0, keys::kBackspace);
    EXPECT_EQ(year.text, "202");
}

TEST_F(FieldsTest, EnterDoesNotBreakTheLineOfAMoneyField) {
    Control& money = field("MONEY");
    money.multiLine = true;
    type(money, "5\r");
    EXPECT_EQ(money.text, "5");
}

TEST_F(FieldsTest, ASentTabMovesTheFocusToTheNextField) {
    Control& first = field("");
    Control& second = field("");
    first.tabIndex = 100;
    second.tabIndex = 101;
    prog().desktop.setFocus(first);
    sendTabKey(*first.form);
    EXPECT_EQ(prog().desktop.focus(), &second);
}

}  // namespace
}  // namespace lw::test
