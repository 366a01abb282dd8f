#include "text/currency.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <stdexcept>

namespace lw::text {
namespace {

constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

struct FromDoubleRow {
    double value;
    std::int64_t raw;
};

class CurrencyFromDouble : public ::testing::TestWithParam<FromDoubleRow> {};

TEST_P(CurrencyFromDouble, RoundsToNearestTiesToEven) {
    EXPECT_EQ(Currency::fromDouble(GetParam().value).raw(), GetParam().raw);
}

INSTANTIATE_TEST_SUITE_P(
    Table, CurrencyFromDouble,
    ::testing::Values(FromDoubleRow{0.0, 0}, FromDoubleRow{1.0, 10000}, FromDoubleRow{1234.5678, 12345678},
                      FromDoubleRow{0.00025, 2}, FromDoubleRow{0.00035, 4}, FromDoubleRow{0.00005, 0},
                      FromDoubleRow{0.00045, 4}, FromDoubleRow{-0.00025, -2}, FromDoubleRow{-0.00035, -4},
                      FromDoubleRow{0.00026, 3}, FromDoubleRow{0.000249, 2}, FromDoubleRow{-1.23456, -12346},
                      // The product 0.00015 * 10000 is 1.4999999999999998, below the tie.
                      FromDoubleRow{0.00015, 1},
                      // And 1.00005 * 10000 is 10000.500000000002, above it.
                      FromDoubleRow{1.00005, 10001}, FromDoubleRow{900000000000000.0, 9000000000000000000}));

class CurrencyOutOfRange : public ::testing::TestWithParam<double> {};

TEST_P(CurrencyOutOfRange, Throws) { EXPECT_THROW(Currency::fromDouble(GetParam()), std::overflow_error); }

INSTANTIATE_TEST_SUITE_P(Table, CurrencyOutOfRange,
                         ::testing::Values(922337203685478.0, -922337203685478.0, 1e300, -1e300,
                                           std::numeric_limits<double>::infinity(),
                                           -std::numeric_limits<double>::infinity(),
                                           std::numeric_limits<double>::quiet_NaN()));

TEST(Currency, SumsAreExactWhereDoublesDrift) {
    Currency total;
    double drifting = 0.0;
    for (int i = 0; i < 10; ++i) {
        total += Currency::fromDouble(0.1);
        drifting += 0.1;
    }
    EXPECT_NE(drifting, 1.0);
    EXPECT_EQ(total, Currency::fromUnits(1));
    EXPECT_EQ(Currency::fromDouble(0.1) + Currency::fromDouble(0.2), Currency::fromDouble(0.3));
    EXPECT_EQ((Currency::fromDouble(100.01) - Currency::fromDouble(0.02)).toDecimalString(), "99.99");
}

TEST(Currency, UnitsAndRaw) {
    EXPECT_EQ(Currency::fromUnits(-3).raw(), -30000);
    EXPECT_EQ(Currency::fromRaw(12345).raw(), 12345);
    EXPECT_DOUBLE_EQ(Currency::fromRaw(12345).toDouble(), 1.2345);
    EXPECT_EQ(Currency().raw(), 0);
}

TEST(Currency, Comparisons) {
    const Currency small = Currency::fromRaw(-1);
    const Currency large = Currency::fromRaw(1);
    EXPECT_TRUE(small < large);
    EXPECT_TRUE(small <= large);
    EXPECT_TRUE(large > small);
    EXPECT_TRUE(large >= small);
    EXPECT_TRUE(small != large);
    EXPECT_FALSE(small == large);
    EXPECT_TRUE(large <= large);
    EXPECT_EQ(-small, large);
}

struct DecimalRow {
    std::int64_t raw;
    const char* text;
};

class CurrencyDecimalString : public ::testing::TestWithParam<DecimalRow> {};

TEST_P(CurrencyDecimalString, IsExact) {
    EXPECT_EQ(Currency::fromRaw(GetParam().raw).toDecimalString(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Table, CurrencyDecimalString,
                         ::testing::Values(DecimalRow{0, "0"}, DecimalRow{12345000, "1234.5"},
                                           DecimalRow{-1, "-0.0001"}, DecimalRow{10000, "1"},
                                           DecimalRow{-10000, "-1"}, DecimalRow{1010, "0.101"},
                                           DecimalRow{kMax, "922337203685477.5807"},
                                           DecimalRow{kMin, "-922337203685477.5808"}));

TEST(Currency, OverflowThrowsAndLeavesTheValue) {
    Currency top = Currency::fromRaw(kMax);
    EXPECT_THROW(top += Currency::fromRaw(1), std::overflow_error);
    EXPECT_EQ(top.raw(), kMax);
    Currency bottom = Currency::fromRaw(kMin);
    EXPECT_THROW(bottom -= Currency::fromRaw(1), std::overflow_error);
    EXPECT_EQ(bottom.raw(), kMin);
    EXPECT_THROW(-bottom, std::overflow_error);
    EXPECT_THROW(Currency::fromUnits(kMax / 10000 + 1), std::overflow_error);
    EXPECT_THROW(Currency::fromUnits(kMin / 10000 - 1), std::overflow_error);
    EXPECT_EQ(Currency::fromUnits(kMax / 10000).raw(), kMax / 10000 * 10000);
}

TEST(Currency, ToDoubleRoundTripsThroughFromDouble) {
    for (std::int64_t raw :
         {std::int64_t{0}, std::int64_t{1}, std::int64_t{-99999}, std::int64_t{123456789012}}) {
        EXPECT_EQ(Currency::fromDouble(Currency::fromRaw(raw).toDouble()).raw(), raw);
    }
}

}  // namespace
}  // namespace lw::text
