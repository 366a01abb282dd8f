#include "text/number.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lw::text {
namespace {

struct NumberRow {
    const char* text;
    double value;
};

class Numeric : public ::testing::TestWithParam<NumberRow> {};

TEST_P(Numeric, IsAcceptedWithItsValue) {
    EXPECT_TRUE(isNumeric(GetParam().text));
    const auto value = toDouble(GetParam().text);
    ASSERT_TRUE(value.has_value());
    EXPECT_DOUBLE_EQ(*value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Numeric,
    ::testing::Values(NumberRow{"0", 0}, NumberRow{"123", 123}, NumberRow{"-5", -5}, NumberRow{"+5", 5},
                      NumberRow{"1234.5", 1234.5}, NumberRow{".5", 0.5}, NumberRow{"5.", 5},
                      NumberRow{"-.25", -0.25}, NumberRow{"  42  ", 42}, NumberRow{"1e3", 1000},
                      NumberRow{"1E+3", 1000}, NumberRow{"2.5e-2", 0.025}, NumberRow{"-1.5E2", -150},
                      NumberRow{"00012", 12}, NumberRow{"0000000000000000000000000000001", 1},
                      NumberRow{"12345678901234567890", 12345678901234567890.0}, NumberRow{"1e-400", 0},
                      NumberRow{"1.7976931348623157e308", 1.7976931348623157e308}));

class NotNumeric : public ::testing::TestWithParam<const char*> {};

TEST_P(NotNumeric, IsRefused) {
    EXPECT_FALSE(isNumeric(GetParam()));
    EXPECT_FALSE(toDouble(GetParam()).has_value());
}

INSTANTIATE_TEST_SUITE_P(Table, NotNumeric,
                         ::testing::Values("", " ", ".", "-", "+", "-.", "1.2.3", "..5", "12a", "a12", "abc",
                                           "$5", "1,000", "(5)", "5-", "- 5", "1 2", "1e", "1e+", "e5", ".e5",
                                           "1e5.5", "0x10", "inf", "nan", "1e400", "-1e400", "\t5", "5%",
                                           "1d5"));

TEST(Numeric, NegativeNoughtKeepsItsSign) {
    const auto value = toDouble("-0");
    ASSERT_TRUE(value.has_value());
    EXPECT_TRUE(std::signbit(*value));
}

TEST(Numeric, IgnoresTheProcessLocale) {
    // The C locale is the fixed locale of the tests; a point is still the decimal mark under any other.
    EXPECT_DOUBLE_EQ(*toDouble("0.1"), 0.1);
    EXPECT_FALSE(isNumeric("0,1"));
}

}  // namespace
}  // namespace lw::text
