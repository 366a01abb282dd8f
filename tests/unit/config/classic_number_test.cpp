#include "config/classic_number.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace lw::config {
namespace {

struct PlainRow {
    const char* text;
    const char* plain;  // nullptr: no number
};

void PrintTo(const PlainRow& row, std::ostream* os) { *os << '"' << row.text << '"'; }

class PlainNumber : public ::testing::TestWithParam<PlainRow> {};

TEST_P(PlainNumber, ReadsTheFieldsNumbers) {
    const auto result = plainNumber(GetParam().text);
    if (GetParam().plain == nullptr) {
        EXPECT_FALSE(result.has_value()) << *result;
        EXPECT_FALSE(isClassicNumeric(GetParam().text));
    } else {
        ASSERT_TRUE(result.has_value());
        EXPECT_EQ(*result, GetParam().plain);
        EXPECT_TRUE(isClassicNumeric(GetParam().text));
    }
}

INSTANTIATE_TEST_SUITE_P(Table, PlainNumber,
                         ::testing::Values(PlainRow{"6.2", "6.2"}, PlainRow{"168,600.00", "168600.00"},
                                           PlainRow{"1,000,000", "1000000"}, PlainRow{"12.5-", "-12.5"},
                                           PlainRow{"-12.5", "-12.5"}, PlainRow{"+7", "7"},
                                           PlainRow{"7+", "7"}, PlainRow{" 7 ", "7"}, PlainRow{".5", ".5"},
                                           PlainRow{"5.", "5."}, PlainRow{"1e3", "1e3"},
                                           PlainRow{"1,5", "15"}, PlainRow{"5,", "5"}, PlainRow{"", nullptr},
                                           PlainRow{" ", nullptr}, PlainRow{".", nullptr},
                                           PlainRow{"-", nullptr}, PlainRow{"abc", nullptr},
                                           PlainRow{"1.2.3", nullptr}, PlainRow{",5", nullptr},
                                           PlainRow{"-5-", nullptr}, PlainRow{"$5", nullptr},
                                           PlainRow{"6.2%", nullptr}, PlainRow{"1.5,0", nullptr},
                                           PlainRow{"1e", nullptr}, PlainRow{"1e400", nullptr}));

struct RoundRow {
    const char* text;
    const char* whole;
};

void PrintTo(const RoundRow& row, std::ostream* os) { *os << '"' << row.text << '"'; }

class RoundHalfEven : public ::testing::TestWithParam<RoundRow> {};

TEST_P(RoundHalfEven, TiesGoToTheEvenNeighbour) {
    EXPECT_EQ(roundHalfEvenToWhole(GetParam().text), GetParam().whole);
}

INSTANTIATE_TEST_SUITE_P(Table, RoundHalfEven,
                         ::testing::Values(RoundRow{"168600.50", "168600"}, RoundRow{"168601.50", "168602"},
                                           RoundRow{"0.5", "0"}, RoundRow{"1.5", "2"}, RoundRow{"2.5", "2"},
                                           RoundRow{"2.51", "3"}, RoundRow{"2.49", "2"},
                                           RoundRow{"-2.5", "-2"}, RoundRow{"-3.5", "-4"},
                                           RoundRow{"999.5", "1000"}, RoundRow{"1,234.4", "1234"},
                                           RoundRow{"0.05", "0"}, RoundRow{"0.6", "1"}, RoundRow{"12", "12"},
                                           RoundRow{"1e3", "1000"}, RoundRow{"5e-1", "0"},
                                           RoundRow{"15e-1", "2"}, RoundRow{"5-", "-5"},
                                           RoundRow{"-0.4", "0"}));

TEST(RoundHalfEvenErrors, ATextThatIsNoNumberIsAMismatch) {
    EXPECT_THROW(roundHalfEvenToWhole("abc"), std::invalid_argument);
}

TEST(CompareDecimal, ComparesExactValues) {
    EXPECT_EQ(compareDecimal("1,000,000.00", "1,000,000.00"), 0);
    EXPECT_EQ(compareDecimal("1000000", "1,000,000.00"), 0);
    EXPECT_EQ(compareDecimal("1,000,000.01", "1,000,000.00"), 1);
    EXPECT_EQ(compareDecimal("999,999.99", "1,000,000.00"), -1);
    EXPECT_EQ(compareDecimal("3,000.01", "3,000.00"), 1);
    EXPECT_EQ(compareDecimal("3,000.001", "3,000.00"), 1);
    EXPECT_EQ(compareDecimal("-5", "3"), -1);
    EXPECT_EQ(compareDecimal("3", "-5"), 1);
    EXPECT_EQ(compareDecimal("-5", "-3"), -1);
    EXPECT_EQ(compareDecimal("0", "-0"), 0);
    EXPECT_EQ(compareDecimal(".00", "0.5"), -1);
    EXPECT_EQ(compareDecimal("12", "125"), -1);
}

TEST(FormatClassic, LeavesEmptyAndNonNumbersAsTheyStand) {
    EXPECT_EQ(formatClassic("", "###,###.00"), "");
    EXPECT_EQ(formatClassic("abc", "#######"), "abc");
    EXPECT_EQ(formatClassic("168,600.00", "#######"), "168600");
    EXPECT_EQ(formatClassic("168600", "###,###.00"), "168,600.00");
    EXPECT_EQ(formatClassic("0.4", "###,###.00"), ".40");
    EXPECT_EQ(formatClassic("168600.5", "#######"), "168601");
    EXPECT_EQ(formatClassic("106,000", "#######"), "106000");
}

}  // namespace
}  // namespace lw::config
