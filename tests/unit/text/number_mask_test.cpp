#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "text/masks.h"

namespace lw::text {
namespace {

struct MaskRow {
    const char* number;
    const char* mask;
    const char* expected;
};

void PrintTo(const MaskRow& row, std::ostream* os) {
    *os << '"' << row.number << "\" under \"" << row.mask << '"';
}

class FormatNumber : public ::testing::TestWithParam<MaskRow> {};

TEST_P(FormatNumber, LaysTheValueOutUnderTheMask) {
    EXPECT_EQ(formatNumber(GetParam().number, GetParam().mask), GetParam().expected);
}

// Every amount of the money and number edits under each of their masks.
INSTANTIATE_TEST_SUITE_P(
    MaskTable, FormatNumber,
    ::testing::Values(
        MaskRow{"0", "$###,###.00", "$.00"}, MaskRow{"0.5", "$###,###.00", "$.50"},
        MaskRow{"5", "$###,###.00", "$5.00"}, MaskRow{"1234.5", "$###,###.00", "$1,234.50"},
        MaskRow{"1234567.891", "$###,###.00", "$1,234,567.89"}, MaskRow{"0", "###,###.00", ".00"},
        MaskRow{"0.5", "###,###.00", ".50"}, MaskRow{"5", "###,###.00", "5.00"},
        MaskRow{"1234.5", "###,###.00", "1,234.50"}, MaskRow{"1234567.891", "###,###.00", "1,234,567.89"},
        MaskRow{"0", "($###,###.00)", "($.00)"}, MaskRow{"0.5", "($###,###.00)", "($.50)"},
        MaskRow{"5", "($###,###.00)", "($5.00)"}, MaskRow{"1234.5", "($###,###.00)", "($1,234.50)"},
        MaskRow{"1234567.891", "($###,###.00)", "($1,234,567.89)"}, MaskRow{"0", "###,###,###", ""},
        MaskRow{"0.5", "###,###,###", "1"}, MaskRow{"5", "###,###,###", "5"},
        MaskRow{"1234.5", "###,###,###", "1,235"}, MaskRow{"1234567.891", "###,###,###", "1,234,568"},
        MaskRow{"0", "(###,###,###)", "()"}, MaskRow{"0.5", "(###,###,###)", "(1)"},
        MaskRow{"5", "(###,###,###)", "(5)"}, MaskRow{"1234.5", "(###,###,###)", "(1,235)"},
        MaskRow{"1234567.891", "(###,###,###)", "(1,234,568)"}));

INSTANTIATE_TEST_SUITE_P(
    HalvesAwayFromNought, FormatNumber,
    ::testing::Values(MaskRow{"1.005", "$###,###.00", "$1.01"}, MaskRow{"2.675", "$###,###.00", "$2.68"},
                      MaskRow{"1.999", "$###,###.00", "$2.00"}, MaskRow{"1.994", "$###,###.00", "$1.99"},
                      MaskRow{"0.125", "###,###.00", ".13"}, MaskRow{"0.135", "###,###.00", ".14"},
                      MaskRow{"999999.995", "$###,###.00", "$1,000,000.00"}, MaskRow{"2.5", "#######", "3"},
                      MaskRow{"1.5", "#######", "2"}, MaskRow{"0.4999", "#######", ""},
                      MaskRow{"0.004", "$###,###.00", "$.00"},
                      MaskRow{"1.00499999999999999", "###,###.00", "1.01"}));

INSTANTIATE_TEST_SUITE_P(
    NegativeValues, FormatNumber,
    ::testing::Values(MaskRow{"-1234", "(###,###,###)", "-(1,234)"},
                      MaskRow{"-1234", "###,###,###", "-1,234"}, MaskRow{"-5", "$###,###.00", "-$5.00"},
                      MaskRow{"-2.675", "###,###.00", "-2.68"}, MaskRow{"-0.5", "###,###,###", "-1"},
                      MaskRow{"-1.005", "($###,###.00)", "-($1.01)"},
                      // A value that rounds to nought shows no sign.
                      MaskRow{"-0.4", "###,###,###", ""}, MaskRow{"-0.001", "$###,###.00", "$.00"},
                      MaskRow{"-0", "###,###.00", ".00"}));

INSTANTIATE_TEST_SUITE_P(
    SignsExponentsAndBlanks, FormatNumber,
    ::testing::Values(MaskRow{"+5", "$###,###.00", "$5.00"}, MaskRow{"1e3", "$###,###.00", "$1,000.00"},
                      MaskRow{"1.5E-2", "###,###.00", ".02"}, MaskRow{" 12 ", "#######", "12"},
                      MaskRow{".5", "$###,###.00", "$.50"}, MaskRow{"5.", "$###,###.00", "$5.00"},
                      MaskRow{"0.", "$###,###.00", "$.00"}, MaskRow{"00012", "###,###,###", "12"}));

INSTANTIATE_TEST_SUITE_P(
    WholeNumberMasks, FormatNumber,
    ::testing::Values(MaskRow{"0", "#######", ""}, MaskRow{"123", "#######", "123"},
                      MaskRow{"160200", "#######", "160200"}, MaskRow{"1234567.5", "#######", "1234568"},
                      MaskRow{"123456789", "#######", "123456789"}, MaskRow{"1", "00#", "001"},
                      MaskRow{"7", "00#", "007"}, MaskRow{"12", "00#", "012"}, MaskRow{"123", "00#", "123"},
                      MaskRow{"1234", "00#", "1234"}, MaskRow{"0", "00#", "000"}, MaskRow{"5", "#0#", "05"},
                      MaskRow{"0", "#,##0.00", "0.00"}, MaskRow{"0.5", "#,##0.00", "0.50"}));

// Digits the placeholders cannot hold come out at the leftmost one, grouped all the way.
INSTANTIATE_TEST_SUITE_P(LongIntegers, FormatNumber,
                         ::testing::Values(MaskRow{"1234567890", "###,###,###", "1,234,567,890"},
                                           MaskRow{"1234567890123", "$###,###.00", "$1,234,567,890,123.00"},
                                           MaskRow{"1234567", "#,##", "1,234,567"},
                                           MaskRow{"1234567", "##", "1234567"}));

// More than fifteen digits keep fifteen, rounded.
INSTANTIATE_TEST_SUITE_P(
    HugeValues, FormatNumber,
    ::testing::Values(MaskRow{"12345678901234567890", "###,###,###", "12,345,678,901,234,600,000"},
                      MaskRow{"1234567890123.456", "###,###.00", "1,234,567,890,123.46"},
                      MaskRow{"12345678901234.567", "###,###.00", "12,345,678,901,234.60"},
                      MaskRow{"999999999999999.9", "#######", "1000000000000000"},
                      MaskRow{"-99999999999999999999", "(###,###,###)", "-(100,000,000,000,000,000,000)"},
                      MaskRow{"1e-300", "$###,###.00", "$.00"},
                      MaskRow{"0.1234567890123456789", "0.0000000000000000000", "0.1234567890123460000"}));

INSTANTIATE_TEST_SUITE_P(DecimalPlaceholders, FormatNumber,
                         ::testing::Values(MaskRow{"1.5", "#.##", "1.5"}, MaskRow{"1", "#.##", "1."},
                                           MaskRow{"1.5", "0.0#", "1.5"}, MaskRow{"1.234", "0.0#", "1.23"},
                                           MaskRow{"2", "0.0#", "2.0"},
                                           MaskRow{"1.5", "0.00 USD", "1.50 USD"},
                                           MaskRow{"5", "$.00", "$5.00"},
                                           MaskRow{"5", "Total #", "Total 5"}));

class FormatNumberRefused : public ::testing::TestWithParam<const char*> {};

TEST_P(FormatNumberRefused, Throws) {
    EXPECT_THROW(formatNumber(GetParam(), "$###,###.00"), std::invalid_argument);
}

INSTANTIATE_TEST_SUITE_P(Table, FormatNumberRefused,
                         ::testing::Values("", " ", ".", "-", "abc", "1.2.3", "$5", "1,234", "12a", "1e400",
                                           "(5)"));

}  // namespace
}  // namespace lw::text
