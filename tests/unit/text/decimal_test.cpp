#include "text/decimal.h"

#include <gtest/gtest.h>

#include <string>

namespace lw::text {
namespace {

struct ParseRow {
    const char* text;
    bool negative;
    const char* digits;
    std::int64_t pointPos;
};

class ParseDecimal : public ::testing::TestWithParam<ParseRow> {};

TEST_P(ParseDecimal, ReadsDigitsAndPoint) {
    const auto value = parseDecimal(GetParam().text);
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->negative, GetParam().negative);
    EXPECT_EQ(value->digits, GetParam().digits);
    EXPECT_EQ(value->pointPos, GetParam().pointPos);
}

INSTANTIATE_TEST_SUITE_P(Table, ParseDecimal,
                         ::testing::Values(ParseRow{"1234.5", false, "12345", 4}, ParseRow{"0", false, "", 0},
                                           ParseRow{"-000.0100", true, "1", -1},
                                           ParseRow{" +5 ", false, "5", 1}, ParseRow{"1.5e3", false, "15", 4},
                                           ParseRow{"1.5E-3", false, "15", -2},
                                           ParseRow{"120", false, "12", 3}, ParseRow{".5", false, "5", 0},
                                           ParseRow{"5.", false, "5", 1}, ParseRow{"-0", true, "", 0}));

TEST(ParseDecimal, HugeExponentsAreCappedNotOverflowed) {
    const auto up = parseDecimal("1e99999999999999999999999");
    ASSERT_TRUE(up.has_value());
    EXPECT_GT(up->pointPos, 1'000'000);
    const auto down = parseDecimal("1e-99999999999999999999999");
    ASSERT_TRUE(down.has_value());
    EXPECT_LT(down->pointPos, -1'000'000);
}

struct RoundRow {
    const char* text;
    std::int64_t places;
    const char* integer;
    const char* fraction;  // as many digits as places, when places > 0
};

class RoundToPlaces : public ::testing::TestWithParam<RoundRow> {};

TEST_P(RoundToPlaces, RoundsHalvesAwayFromNought) {
    const RoundRow& row = GetParam();
    const Decimal value = roundToPlaces(*parseDecimal(row.text), row.places);
    EXPECT_EQ(integerDigits(value), row.integer);
    EXPECT_EQ(fractionDigits(value, static_cast<std::size_t>(std::max<std::int64_t>(row.places, 0))),
              row.fraction);
}

INSTANTIATE_TEST_SUITE_P(Table, RoundToPlaces,
                         ::testing::Values(RoundRow{"1.005", 2, "1", "01"}, RoundRow{"2.675", 2, "2", "68"},
                                           RoundRow{"-2.675", 2, "2", "68"},
                                           RoundRow{"1.004999", 2, "1", "00"},
                                           RoundRow{"9.995", 2, "10", "00"}, RoundRow{"999.5", 0, "1000", ""},
                                           RoundRow{"0.5", 0, "1", ""}, RoundRow{"0.49", 0, "", ""},
                                           RoundRow{"0.004", 2, "", "00"}, RoundRow{"0.005", 2, "", "01"},
                                           RoundRow{"0.0005", 2, "", "00"}, RoundRow{"1234.5", 0, "1235", ""},
                                           RoundRow{"1e3", 2, "1000", "00"}, RoundRow{"123", -2, "100", ""}));

TEST(RoundToSignificant, KeepsFifteenDigitsAndCarries) {
    const Decimal value = roundToSignificant(*parseDecimal("12345678901234567890"), 15);
    EXPECT_EQ(value.digits, "123456789012346");
    EXPECT_EQ(integerDigits(value), "12345678901234600000");
    const Decimal nines = roundToSignificant(*parseDecimal("9.9999999999999999"), 15);
    EXPECT_EQ(integerDigits(nines), "10");
    EXPECT_EQ(fractionDigits(nines, 3), "000");
}

}  // namespace
}  // namespace lw::text
