#include <chrono>
#include <string>

#include "fields/box_dollar_sign.h"
#include "fields_fixture.h"

namespace lw::test {
namespace {

struct EditRow {
    const char* tag;
    std::string typed;
    std::string shown;  // the field's text after leaving
    bool stands;
};

std::ostream& operator<<(std::ostream& os, const EditRow& r) {
    return os << r.tag << " \"" << r.typed << "\" -> \"" << r.shown << "\" "
              << (r.stands ? "stands" : "fails");
}

class AmountEdit : public FieldsTest, public ::testing::WithParamInterface<EditRow> {};

TEST_P(AmountEdit, RewritesTheAmountOrKeepsTheFocus) {
    Control& c = field(GetParam().tag, GetParam().typed);
    EXPECT_EQ(editFocused(c), GetParam().stands);
    EXPECT_EQ(c.text, GetParam().shown);
    if (GetParam().stands) {
        EXPECT_EQ(c.backColor, kWhite);
        EXPECT_EQ(c.foreColor, kBlack);
        EXPECT_EQ(status().caption, "");
    } else {
        // A failed amount shows the colour of Money, also where a negative amount is allowed.
        EXPECT_EQ(c.backColor, kLegend[3]);
        EXPECT_EQ(c.foreColor, kRed);
        EXPECT_EQ(status().caption, invalid(GetParam().typed));
        EXPECT_EQ(status().foreColor, kRed);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Money, AmountEdit,
    ::testing::Values(
        // The masks' own examples.
        EditRow{"MONEY", "0", "$.00", true}, EditRow{"MONEY", "0.5", "$.50", true},
        EditRow{"MONEY", "5", "$5.00", true}, EditRow{"MONEY", "1234.5", "$1,234.50", true},
        EditRow{"MONEY", "1234567.891", "$1,234,567.89", true}, EditRow{"SMONEY", "0", ".00", true},
        EditRow{"SMONEY", "0.5", ".50", true}, EditRow{"SMONEY", "5", "5.00", true},
        EditRow{"SMONEY", "1234.5", "1,234.50", true}, EditRow{"SMONEY", "1234567.891", "1,234,567.89", true},
        // Rounding on the amount as entered, halves away from nought.
        EditRow{"MONEY", "1.005", "$1.01", true}, EditRow{"MONEY", "2.675", "$2.68", true},
        EditRow{"MONEY", "1.999", "$2.00", true},
        // Dollar signs and commas wherever they stand.
        EditRow{"MONEY", "$1,2,3", "$123.00", true}, EditRow{"MONEY", "1,234,567", "$1,234,567.00", true},
        EditRow{"MONEY", "$$5$", "$5.00", true}, EditRow{"MONEY", ".", "$.00", true},
        EditRow{"MONEY", "5.", "$5.00", true}, EditRow{"MONEY", ".7", "$.70", true},
        EditRow{"MONEY", "$,", "$.00", true}, EditRow{"MONEY", "$123.45.6", "$123.45.6", false},
        EditRow{"MONEY", "..", "..", false}, EditRow{"MONEY", "12ab", "12ab", false},
        EditRow{"MONEY", "(5)", "(5)", false},
        // The mask is told by the exact Tag: a field tagged in lower case edits as money with a dollar sign.
        EditRow{"smoney", "5", "$5.00", true},
        // A sign or an exponent in pasted text: the pieces are numbers, the whole must convert too.
        EditRow{"MONEY", "+5", "$5.00", true}, EditRow{"MONEY", "-5", "-$5.00", true},
        EditRow{"MONEY", "1.5e2", "$150.00", true}, EditRow{"MONEY", "1e3", "1e3", false},
        EditRow{"MONEY", "1.-5", "1.-5", false}, EditRow{"MONEY", "1.5e400", "1.5e400", false},
        EditRow{"MONEY", " 5", "$5.00", true},
        // Amounts that may be negative.
        EditRow{"-MONEY", "(5)", "($5.00)", true}, EditRow{"-MONEY", "-5", "($5.00)", true},
        EditRow{"-MONEY", "5-", "$5.00", true}, EditRow{"-MONEY", "5", "$5.00", true},
        EditRow{"-MONEY", "(1234.5)", "($1,234.50)", true}, EditRow{"-MONEY", "-0", "($.00)", true},
        EditRow{"-MONEY", "0.5", "$.50", true}, EditRow{"-MONEY", "(1234567.891", "($1,234,567.89)", true},
        EditRow{"-MONEY", "$-1,000.10", "($1,000.10)", true},
        EditRow{"-MONEY", "1,000.10-", "$1,000.10", true}, EditRow{"-MONEY", "1-2", "$12.00", true},
        EditRow{"-MONEY", "-$1.2.3", "-$1.2.3", false}, EditRow{"-MONEY", "(x)", "(x)", false},
        // Amounts that may be unknown: only numeric text is an amount, U and UNK are spelt out.
        EditRow{"AMONEY", "U", "UNKNOWN", true}, EditRow{"AMONEY", "UNK", "UNKNOWN", true},
        EditRow{"AMONEY", "u", "u", true}, EditRow{"AMONEY", "UN", "UN", true},
        EditRow{"AMONEY", "$5", "$5", true}, EditRow{"AMONEY", "1234.5", "$1,234.50", true},
        EditRow{"AMONEY", "(5)", "(5)", true}));

TEST_F(FieldsTest, AnAmountCarriesItsOwnDollarSignUnlessItsBoxPrintsOne) {
    for (const char* tag : {"MONEY", "SMONEY", "-MONEY", "AMONEY", "money", "smoney"}) {
        Control& amount = field(tag, "1234.5");
        ASSERT_TRUE(editFocused(amount)) << tag;
        EXPECT_EQ(amount.text.find('$') == std::string::npos, takesBoxDollarSign(amount))
            << tag << " shows \"" << amount.text << "\"";
    }
}

TEST_F(FieldsTest, AnUnknownAmountTypedInLowerCaseReachesTheEditInCapitals) {
    Control& amount = field("AMONEY");
    type(amount, "u");
    EXPECT_EQ(amount.text, "U");
    EXPECT_TRUE(leave(amount));
    EXPECT_EQ(amount.text, "UNKNOWN");
}

TEST_F(FieldsTest, AFailedAmountKeepsTheFocusUntilItIsCleared) {
    Control& amount = field("-MONEY");
    amount.text = "(1.2.3)";
    EXPECT_FALSE(leave(amount));
    EXPECT_EQ(prog().desktop.focus(), &amount);
    EXPECT_EQ(amount.backColor, kLegend[3]);
    EXPECT_EQ(amount.foreColor, kRed);
    amount.text.clear();
    EXPECT_TRUE(leave(amount));
    EXPECT_EQ(amount.backColor, kWhite);
    EXPECT_EQ(amount.foreColor, kBlack);
}

TEST_F(FieldsTest, ANegativeAmountIsRepaintedAtOnce) {
    Control& amount = field("-MONEY", "(5)");
    const int before = ui.refreshes;
    EXPECT_TRUE(editMoneyNegativeOk(amount, editContext()));
    EXPECT_GT(ui.refreshes, before);
}

TEST_F(FieldsTest, TenThousandPastedCharactersFailClearly) {
    const auto started = std::chrono::steady_clock::now();
    for (const std::string& pasted : {std::string(10000, '9'), std::string(10000, 'A'),
                                      std::string(5000, '1') + "." + std::string(4999, '2'),
                                      "1." + std::string(9998, '.'), std::string(10000, '$')}) {
        Control& amount = field("MONEY");
        ui.clipboard = pasted;
        prog().desktop.setFocus(amount);
        prog().desktop.pressKey(0, keys::kCtrlMask, keys::kCtrlV);
        ASSERT_EQ(amount.text, pasted);
        if (pasted.front() == '$') {
            // Signs alone are an amount of nought.
            EXPECT_TRUE(leave(amount));
            EXPECT_EQ(amount.text, "$.00");
            continue;
        }
        EXPECT_FALSE(leave(amount)) << pasted.substr(0, 20);
        EXPECT_EQ(amount.text, pasted);
        EXPECT_EQ(status().caption, invalid(pasted));
        amount.text.clear();
        EXPECT_TRUE(leave(amount));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(10));
}

TEST_F(FieldsTest, LongCentsAreCutTo99DigitsAndRounded) {
    Control& amount = field("MONEY", "7." + std::string(9998, '9'));
    EXPECT_TRUE(editField(amount, editContext()));
    EXPECT_EQ(amount.text, "$8.00");
}

}  // namespace
}  // namespace lw::test
