#include "text/currency_text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>

#include "text/masks.h"

namespace lw::text {
namespace {

constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

struct TextRow {
    const char* text;
    std::int64_t raw;
};

class CurrencyFromText : public ::testing::TestWithParam<TextRow> {};

TEST_P(CurrencyFromText, ReadsTheAmount) { EXPECT_EQ(currencyFromText(GetParam().text).raw(), GetParam().raw); }

INSTANTIATE_TEST_SUITE_P(
    Table, CurrencyFromText,
    ::testing::Values(
        TextRow{"0", 0}, TextRow{"1234", 12340000}, TextRow{"$1,234.50", 12345000}, TextRow{"1,234", 12340000},
        TextRow{"$.50", 5000}, TextRow{".5", 5000}, TextRow{"-$5.00", -50000}, TextRow{"$-5.00", -50000},
        TextRow{"($5.00)", -50000}, TextRow{"  $18,000.00  ", 180000000}, TextRow{"+7", 70000},
        TextRow{"1,2,3", 1230000}, TextRow{"0.00", 0}, TextRow{"-0.00", 0}, TextRow{"$0.0001", 1},
        // More than four decimals: to the nearest ten-thousandth, a tie to the even count.
        TextRow{"1.23456", 12346}, TextRow{"1.23454", 12345}, TextRow{"0.00005", 0}, TextRow{"0.00015", 2},
        TextRow{"0.00025", 2}, TextRow{"0.000250001", 3}, TextRow{"1.00005", 10000}, TextRow{"-0.00015", -2},
        TextRow{"0.000049999", 0}, TextRow{"0.0000001", 0}, TextRow{"12.345", 123450},
        // The ends of the range, as written and as the mask writes them.
        TextRow{"922337203685477.5807", kMax}, TextRow{"$922,337,203,685,477.58", 9223372036854775800},
        TextRow{"-922337203685477.5808", kMin}, TextRow{"922337203685477.58074", kMax},
        TextRow{"1e3", 10000000}));

class CurrencyTextNoAmount : public ::testing::TestWithParam<const char*> {};

TEST_P(CurrencyTextNoAmount, IsATypeMismatch) {
    EXPECT_THROW(currencyFromText(GetParam()), std::invalid_argument) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Table, CurrencyTextNoAmount,
                         ::testing::Values("", " ", "abc", "$", "-", "12a", "1.2.3", "$$5", "--5", "- 5",
                                           "5$", "1.000,00", "(5", "$abc", "1.5e", "$-", "()"));

class CurrencyTextTooLarge : public ::testing::TestWithParam<const char*> {};

TEST_P(CurrencyTextTooLarge, Overflows) {
    EXPECT_THROW(currencyFromText(GetParam()), std::overflow_error) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Table, CurrencyTextTooLarge,
                         ::testing::Values("922337203685477.5808", "-922337203685477.5809",
                                           "922337203685477.58075", "$922,337,203,685,478.00",
                                           "1000000000000000", "99999999999999999999999", "1e300"));

struct MaskRow {
    std::int64_t raw;
    const char* shown;
};

class BenefitMask : public ::testing::TestWithParam<MaskRow> {};

TEST_P(BenefitMask, ShowsEveryDigitOfTheCount) {
    EXPECT_EQ(formatCurrency(Currency::fromRaw(GetParam().raw), "$##,###.00"), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Table, BenefitMask,
    ::testing::Values(MaskRow{12340000, "$1,234.00"}, MaskRow{12345675000, "$1,234,567.50"},
                      MaskRow{-50000, "-$5.00"}, MaskRow{5000, "$.50"}, MaskRow{0, "$.00"},
                      MaskRow{50, "$.01"}, MaskRow{49, "$.00"}, MaskRow{-50, "-$.01"}, MaskRow{-49, "$.00"},
                      MaskRow{1250, "$.13"}, MaskRow{180000000, "$18,000.00"},
                      MaskRow{kMax, "$922,337,203,685,477.58"}, MaskRow{kMin, "-$922,337,203,685,477.58"},
                      MaskRow{kMax - 7, "$922,337,203,685,477.58"},
                      MaskRow{9999999999999999, "$1,000,000,000,000.00"}));

TEST(BenefitMask, KeepsTheDigitsADoubleWouldLose) {
    // Seventeen significant digits: formatNumber rounds to fifteen first, the money mask does not.
    const Currency amount = Currency::fromRaw(1234567890123456789);
    EXPECT_EQ(formatCurrency(amount, "$##,###.00"), "$123,456,789,012,345.68");
    EXPECT_EQ(formatNumber(amount.toDecimalString(), "$##,###.00"), "$123,456,789,012,346.00");
}

TEST(BenefitMask, ReadsBackWhatItWrites) {
    for (std::int64_t raw : {std::int64_t{0}, std::int64_t{100}, std::int64_t{-123400}, kMax - 5807, kMin + 5808}) {
        const std::string shown = formatCurrency(Currency::fromRaw(raw), "$##,###.00");
        EXPECT_EQ(currencyFromText(shown).raw(), raw) << shown;
    }
}

}  // namespace
}  // namespace lw::text
