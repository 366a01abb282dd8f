#include <string>

#include "fields_fixture.h"

namespace lw::test {
namespace {

struct NumberRow {
    const char* tag;
    std::string typed;
    std::string shown;
    bool stands;
};

std::ostream& operator<<(std::ostream& os, const NumberRow& r) {
    return os << r.tag << " \"" << r.typed << "\" -> \"" << r.shown << "\" "
              << (r.stands ? "stands" : "fails");
}

class NumberEdit : public FieldsTest, public ::testing::WithParamInterface<NumberRow> {};

TEST_P(NumberEdit, RewritesTheNumberOrKeepsTheFocus) {
    Control& c = field(GetParam().tag, GetParam().typed);
    EXPECT_EQ(editFocused(c), GetParam().stands);
    EXPECT_EQ(c.text, GetParam().shown);
    if (GetParam().stands) {
        EXPECT_EQ(c.backColor, kWhite);
        EXPECT_EQ(status().caption, "");
    } else {
        EXPECT_EQ(c.backColor, kLegend[std::string(GetParam().tag) == "YEAR" ? 9 : 5]);
        EXPECT_EQ(c.foreColor, kRed);
        EXPECT_EQ(status().caption, invalid(GetParam().typed));
    }
}

INSTANTIATE_TEST_SUITE_P(Whole, NumberEdit,
                         ::testing::Values(
                             // The masks' examples; nought shows no digit, and the field passes.
                             NumberRow{"#", "0", "", true}, NumberRow{"#", "0.5", "1", true},
                             NumberRow{"#", "5", "5", true}, NumberRow{"#", "1234.5", "1,235", true},
                             NumberRow{"#", "1234567.891", "1,234,568", true},
                             NumberRow{"#", "-0", "()", true}, NumberRow{"#", "-0.5", "(1)", true},
                             NumberRow{"#", "(5)", "(5)", true}, NumberRow{"#", "-1234.5", "(1,235)", true},
                             NumberRow{"#", "(1234567.891)", "(1,234,568)", true},
                             NumberRow{"#", "(5", "(5)", true}, NumberRow{"#", "5)", "5", true},
                             NumberRow{"#", "--5", "-(5)", true},
                             NumberRow{"#", "1234567890", "1,234,567,890", true},
                             NumberRow{"#", "1,234", "1,234", false}, NumberRow{"#", "abc", "abc", false},
                             NumberRow{"#", "-", "-", false}, NumberRow{"#", "1.2.3", "1.2.3", false}));

INSTANTIATE_TEST_SUITE_P(
    Decimals, NumberEdit,
    ::testing::Values(NumberRow{"%", "12.50", "12.50", true}, NumberRow{"%", "1234.500", "1,234.500", true},
                      NumberRow{"#.#", "1234", "1,234", true}, NumberRow{"%", "0.25", ".25", true},
                      NumberRow{"%", ".5", ".5", true}, NumberRow{"%", "7.", "7.", true},
                      // The sign stays in the number given to the mask: a double mark.
                      NumberRow{"%", "-1234", "-(1,234)", true}, NumberRow{"%", "(1234)", "-(1,234)", true},
                      NumberRow{"%", "(1234.5)", "-(1,234).5", true},
                      NumberRow{"#.#", "-3.14159", "-(3).14159", true},
                      NumberRow{"%", "1234.5678", "1,234.5678", true},
                      NumberRow{"%", "1.2.3", "1.2.3", false}, NumberRow{"#.#", "12a.5", "12a.5", false},
                      NumberRow{"%", "1,234.5", "1,234.5", false}));

INSTANTIATE_TEST_SUITE_P(Years, NumberEdit,
                         ::testing::Values(
                             // The clock stands in 2025.
                             NumberRow{"YEAR", "24", "2024", true}, NumberRow{"YEAR", "99", "2099", true},
                             NumberRow{"YEAR", "2031", "2031", true},
                             NumberRow{"YEAR", "1999", "1999", false}, NumberRow{"YEAR", "3", "3", true},
                             NumberRow{"YEAR", "123", "123", true}, NumberRow{"YEAR", "20x4", "20x4", false},
                             NumberRow{"Year", "25", "2025", true}));

TEST_F(FieldsTest, TheCenturyOfAYearIsThatOfTheMachinesClock) {
    platform.clock.year = 1999;
    Control& year = field("YEAR", "1999");
    EXPECT_TRUE(editField(year, editContext()));
    year.text = "24";
    EXPECT_TRUE(editField(year, editContext()));
    EXPECT_EQ(year.text, "1924");
    year.text = "2024";
    EXPECT_FALSE(editField(year, editContext()));
}

TEST_F(FieldsTest, TheDecimalEditPassesAnEmptyTextWhenCalledItself) {
    Control& empty = field("%");
    EXPECT_TRUE(editNumericDecimalOk(empty, editContext()));
    EXPECT_EQ(empty.text, "");
}

}  // namespace
}  // namespace lw::test
