#include "text/currency_text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <stdexcept>

namespace lw::text {
namespace {

constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

struct TextRow {
    const char* text;
    std::int64_t raw;
};

class CurrencyFromText : public ::testing::TestWithParam<TextRow> {};

TEST_P(CurrencyFromText, ReadsTheAmountExactly) {
    const std::optional<Currency> value = currencyFromText(GetParam().text);
    ASSERT_TRUE(value.has_value()) << GetParam().text;
    EXPECT_EQ(value->raw(), GetParam().raw) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Table, CurrencyFromText,
    ::testing::Values(TextRow{"0", 0}, TextRow{"$.00", 0}, TextRow{"$1,234.50", 12345000},
                      TextRow{"1234.5", 12345000}, TextRow{" $5.00 ", 50000}, TextRow{"$1,2,3", 1230000},
                      TextRow{"-5", -50000}, TextRow{"($5.00)", -50000}, TextRow{"1e3", 10000000},
                      // More than four decimals: to the nearest ten-thousandth, ties to even.
                      TextRow{"1.23456", 12346}, TextRow{"0.00025", 2}, TextRow{"0.00035", 4},
                      TextRow{"0.000251", 3}, TextRow{"1.99999", 20000}, TextRow{"0.00004999", 0},
                      TextRow{"0.0000000000000000000000001", 0},
                      // The ends of the 64-bit count.
                      TextRow{"$922,337,203,685,477.5807", kMax}, TextRow{"922337203685477.58074", kMax},
                      TextRow{"-922337203685477.5808", kMin}, TextRow{"($922,337,203,685,477.5808)", kMin},
                      TextRow{"$9,999,999,999,999.00", 99999999999990000}));

class CurrencyFromBadText : public ::testing::TestWithParam<const char*> {};

TEST_P(CurrencyFromBadText, IsNoAmount) {
    EXPECT_FALSE(currencyFromText(GetParam()).has_value()) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Table, CurrencyFromBadText,
                         ::testing::Values("", " ", "$", ".", "1.2.3", "91-4XXXXXX", "abc", "(-5)", "5)",
                                           "(5", "12 34", "1e"));

class CurrencyFromHugeText : public ::testing::TestWithParam<const char*> {};

TEST_P(CurrencyFromHugeText, IsBeyondTheCount) {
    EXPECT_THROW(currencyFromText(GetParam()), std::overflow_error) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Table, CurrencyFromHugeText,
                         ::testing::Values("922337203685477.5808", "922337203685477.58075",
                                           "-922337203685477.5809", "$99,999,999,999,999,999.00", "1e20",
                                           "1e1000000"));

struct FormatRow {
    std::int64_t raw;
    const char* shown;
};

class CurrencyUnderMask : public ::testing::TestWithParam<FormatRow> {};

TEST_P(CurrencyUnderMask, ShowsEveryDigit) {
    EXPECT_EQ(formatCurrency(Currency::fromRaw(GetParam().raw), "$###,###.00"), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Table, CurrencyUnderMask,
                         ::testing::Values(FormatRow{0, "$.00"}, FormatRow{5000, "$.50"},
                                           FormatRow{50000, "$5.00"}, FormatRow{12345000, "$1,234.50"},
                                           FormatRow{12345678910, "$1,234,567.89"},
                                           // Halves of a cent go away from nought.
                                           FormatRow{12350, "$1.24"}, FormatRow{12349, "$1.23"},
                                           FormatRow{-12350, "-$1.24"},
                                           // Beyond fifteen digits nothing is rounded away.
                                           FormatRow{1199999999999998800, "$119,999,999,999,999.88"},
                                           FormatRow{kMax, "$922,337,203,685,477.58"},
                                           FormatRow{kMax - 50, "$922,337,203,685,477.58"},
                                           FormatRow{kMin, "-$922,337,203,685,477.58"}));

TEST(CurrencyText, ASumOfTwelveMonthsNearTheLimitIsExact) {
    Currency sum;
    const Currency month = *currencyFromText("$76,861,433,640,456.46");
    for (int i = 0; i < 12; ++i) sum += month;
    EXPECT_EQ(formatCurrency(sum, "$###,###.00"), "$922,337,203,685,477.52");
    EXPECT_THROW(sum += *currencyFromText("$.07"), std::overflow_error);
}

}  // namespace
}  // namespace lw::text
