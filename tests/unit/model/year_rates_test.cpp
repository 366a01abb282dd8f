#include "model/year_rates.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

namespace lw {
namespace {

using text::Currency;

std::optional<Currency> tenThousandths(std::int64_t count) { return Currency::fromRaw(count); }

struct FigureRow {
    const char* text;
    bool percentSignReadPast;
    std::optional<std::int64_t> value;  // in ten-thousandths
};

void PrintTo(const FigureRow& row, std::ostream* os) {
    *os << '"' << row.text << '"' << (row.percentSignReadPast ? " past %" : "");
}

class FigureReading : public ::testing::TestWithParam<FigureRow> {};

TEST_P(FigureReading, KeepsItsTextAndReadsItsValueOnce) {
    const FigureRow& row = GetParam();
    const RateFigure figure(row.text, row.percentSignReadPast);
    EXPECT_EQ(figure.text(), row.text) << "the text stays as it came, for the form and the file";
    if (row.value)
        EXPECT_EQ(figure.value(), tenThousandths(*row.value));
    else
        EXPECT_EQ(figure.value(), std::nullopt);
    const RateFigure copy = figure;
    EXPECT_EQ(copy.text(), figure.text());
    EXPECT_EQ(copy.value(), figure.value());
}

INSTANTIATE_TEST_SUITE_P(
    Table, FigureReading,
    ::testing::Values(FigureRow{"6.2", false, 62000}, FigureRow{"176100", false, 1761000000},
                      FigureRow{"176,100.00", false, 1761000000}, FigureRow{"$2,220.00", false, 22200000},
                      FigureRow{" 1.45 ", false, 14500}, FigureRow{"-5", false, -50000},
                      FigureRow{"1e5", false, 1000000000}, FigureRow{"6.2%", true, 62000},
                      FigureRow{"%6.2%", true, 62000}, FigureRow{"6.2%", false, std::nullopt},
                      // Beyond the ten-thousandth the digits as written round, ties to even.
                      FigureRow{"168600.12345", false, 1686001234}, FigureRow{"0.00015", false, 2},
                      FigureRow{"", false, std::nullopt}, FigureRow{"lots", false, std::nullopt},
                      FigureRow{"six", true, std::nullopt}, FigureRow{"12.5-", false, std::nullopt},
                      FigureRow{"(5)", false, std::nullopt}, FigureRow{"1.2.3", false, std::nullopt},
                      FigureRow{"1e400", false, std::nullopt}, FigureRow{"1e20", false, std::nullopt}));

TEST(RateFigure, AnEmptyFigureHasNoText) {
    const RateFigure none;
    EXPECT_EQ(none.text(), "");
    EXPECT_EQ(none.value(), std::nullopt);
}

TEST(Rates, EachItemSetsItsOwnFigure) {
    const RateItem items[] = {RateItem::SocialSecurityRate, RateItem::SocialSecurityWageBase,
                              RateItem::MedicareRate,       RateItem::MedicareChangePoint,
                              RateItem::MedicareRateAfter,  RateItem::PartBPremium,
                              RateItem::PartBIncomeLimit};
    Rates rates;
    int number = 1;
    for (RateItem item : items) rates.set(item, std::to_string(number++));
    EXPECT_EQ(rates.socialSecurityRate.text(), "1");
    EXPECT_EQ(rates.socialSecurityWageBase.text(), "2");
    EXPECT_EQ(rates.medicareRate.text(), "3");
    EXPECT_EQ(rates.medicareChangePoint.text(), "4");
    EXPECT_EQ(rates.medicareRateAfter.text(), "5");
    EXPECT_EQ(rates.partBPremium.text(), "6");
    EXPECT_EQ(rates.partBIncomeLimit.text(), "7");
    number = 1;
    for (RateItem item : items) {
        EXPECT_EQ(rates.figure(item).value(), Currency::fromUnits(number)) << number;
        ++number;
    }
}

TEST(Rates, OnlyTheSocialSecurityRateIsReadPastAPercentSign) {
    Rates rates;
    rates.set(RateItem::SocialSecurityRate, "6.2%");
    rates.set(RateItem::MedicareRate, "1.45%");
    rates.set(RateItem::MedicareRateAfter, "2.35%");
    EXPECT_EQ(rates.socialSecurityRate.value(), tenThousandths(62000));
    EXPECT_EQ(rates.medicareRate.value(), std::nullopt);
    EXPECT_EQ(rates.medicareRateAfter.value(), std::nullopt);
    EXPECT_EQ(rates.medicareRate.text(), "1.45%");
}

TEST(Rates, SettingAgainReplacesTextAndValueTogether) {
    Rates rates;
    rates.set(RateItem::SocialSecurityWageBase, "168,600");
    rates.set(RateItem::SocialSecurityWageBase, "lots");
    EXPECT_EQ(rates.socialSecurityWageBase.text(), "lots");
    EXPECT_EQ(rates.socialSecurityWageBase.value(), std::nullopt);
    rates.set(RateItem::SocialSecurityWageBase, "176100");
    EXPECT_EQ(rates.socialSecurityWageBase.value(), Currency::fromUnits(176100));
}

TEST(FilingStatusWords, EachStatusReadsBackFromTheWordWrittenForIt) {
    const FilingStatus all[] = {FilingStatus::NotChosen,         FilingStatus::Single,
                                FilingStatus::SingleByOption,    FilingStatus::SingleOnClosing,
                                FilingStatus::MarriedSeparately, FilingStatus::MarriedJointly};
    for (FilingStatus status : all)
        EXPECT_EQ(filingStatusOfWord(filingStatusWord(status)), status) << filingStatusWord(status);
    EXPECT_STREQ(filingStatusWord(FilingStatus::NotChosen), "");
    EXPECT_STREQ(filingStatusWord(FilingStatus::Single), "Single");
    EXPECT_STREQ(filingStatusWord(FilingStatus::SingleByOption), "SGL");
    EXPECT_STREQ(filingStatusWord(FilingStatus::SingleOnClosing), "S");
    EXPECT_STREQ(filingStatusWord(FilingStatus::MarriedSeparately), "MFS");
    EXPECT_STREQ(filingStatusWord(FilingStatus::MarriedJointly), "MFJ");
}

TEST(FilingStatusWords, AnyOtherWordIsNoStatus) {
    EXPECT_EQ(filingStatusOfWord("single"), FilingStatus::NotChosen);
    EXPECT_EQ(filingStatusOfWord("MFS "), FilingStatus::NotChosen);
    EXPECT_EQ(filingStatusOfWord("Married"), FilingStatus::NotChosen);
    EXPECT_EQ(Rates{}.filingStatus, FilingStatus::NotChosen);
}

}  // namespace
}  // namespace lw
