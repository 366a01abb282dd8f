#include "forms/benefit_amounts.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <stdexcept>

#include "text/currency_text.h"

namespace lw {
namespace {

using text::Currency;

constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

Currency dollars(const char* amount) { return text::currencyFromText(amount); }
Currency raw(std::int64_t count) { return Currency::fromRaw(count); }

// ---- Both statements

TEST(NetBenefits, ArePaidLessRepaidAndFallShortOnlyBelowNought) {
    EXPECT_EQ(netBenefits(dollars("18,000.00"), dollars("1,000.50")), dollars("16999.50"));
    EXPECT_EQ(netBenefits(dollars("100"), dollars("100.0001")).raw(), -1);
    EXPECT_TRUE(netBenefitsFallShort(raw(-1)));
    EXPECT_FALSE(netBenefitsFallShort(Currency{}));
    EXPECT_FALSE(netBenefitsFallShort(raw(1)));
    EXPECT_THROW(netBenefits(raw(kMin), raw(1)), std::overflow_error);
}

TEST(NetBenefits, AreBoxFiveOfBothStatementsAndTheirFirstCheck) {
    SsaAmounts ssa{};
    ssa[2] = dollars("500");
    ssa[3] = dollars("700");
    workOutSsaAmounts(ssa);
    EXPECT_EQ(ssa[4], netBenefits(dollars("500"), dollars("700")));
    EXPECT_EQ(firstSsaShortfall(ssa), SsaShortfall::NetBenefits);
    RrbAmounts rrb{};
    rrb[4] = dollars("500");
    rrb[5] = dollars("700");
    workOutRrbAmounts(rrb);
    EXPECT_EQ(rrb[6], ssa[4]);
    EXPECT_EQ(firstRrbShortfall(rrb), RrbShortfall::NetBenefits);
    EXPECT_EQ(ssaShortfallReason(SsaShortfall::NetBenefits, "box 3"),
              rrbShortfallReason(RrbShortfall::NetBenefits));
}

// ---- SSA-1099

TEST(SsaAmounts, WorkedExample) {
    SsaAmounts a{};
    a[2] = dollars("18,000.00");
    a[6] = dollars("2,000.00");
    workOutSsaAmounts(a);
    EXPECT_EQ(a[4], dollars("18000"));  // net benefits
    EXPECT_EQ(a[16], dollars("2000"));  // total additions
    EXPECT_EQ(a[5], dollars("16000"));  // paid by check
    EXPECT_EQ(a[8], dollars("18000"));  // benefits for the tax year
    EXPECT_EQ(a[17], Currency{});
    EXPECT_EQ(a[0], dollars("18000"));
    EXPECT_EQ(firstSsaShortfall(a), SsaShortfall::None);
    EXPECT_EQ(benefitAmountText(a[5]), "$16,000.00");
}

TEST(SsaAmounts, EveryBoxTakesItsPart) {
    SsaAmounts a{};
    a[2] = dollars("30000.10");
    a[3] = dollars("1000.05");
    a[6] = dollars("2220");
    a[7] = dollars("300.33");
    a[13] = dollars("1500");
    a[9] = dollars("100");
    a[10] = dollars("200");
    a[11] = dollars("300.01");
    workOutSsaAmounts(a);
    EXPECT_EQ(a[4], dollars("29000.05"));
    EXPECT_EQ(a[17], dollars("600.01"));
    EXPECT_EQ(a[16], dollars("4020.33"));
    EXPECT_EQ(a[5], dollars("24979.72"));
    EXPECT_EQ(a[8], dollars("28400.04"));
    EXPECT_EQ(a[0], a[4]) << "benefits of the year plus the earlier years give the net back";
}

TEST(SsaAmounts, SumsAreExactWhereDoublesDrift) {
    // 0.1 + 0.2 is not 0.3 in binary; in ten-thousandths it is.
    SsaAmounts a{};
    a[2] = dollars("0.3");
    a[6] = dollars("0.1");
    a[7] = dollars("0.2");
    workOutSsaAmounts(a);
    EXPECT_EQ(a[16], dollars("0.3"));
    EXPECT_EQ(a[5], Currency{});
    EXPECT_EQ(firstSsaShortfall(a), SsaShortfall::None) << "exactly nought is not below it";
}

TEST(SsaAmounts, AmountsTypedWithMoreThanTwoDecimalsKeepFourInTheSums) {
    SsaAmounts a{};
    a[2] = dollars("100.00504");  // 100.0050
    a[3] = dollars("0.00495");    // 0.0050 (the tie goes to the even count)
    workOutSsaAmounts(a);
    EXPECT_EQ(a[4].raw(), 1000000);
    EXPECT_EQ(benefitAmountText(a[4]), "$100.00");
    a = SsaAmounts{};
    a[2] = dollars("10.005");
    workOutSsaAmounts(a);
    EXPECT_EQ(benefitAmountText(a[4]), "$10.01") << "the mask rounds the half cent away from nought";
}

TEST(SsaAmounts, ShortfallsInTheirOrder) {
    SsaAmounts a{};
    a[2] = dollars("100");
    a[3] = dollars("200");
    a[6] = dollars("500");
    a[9] = dollars("900");
    workOutSsaAmounts(a);
    EXPECT_EQ(firstSsaShortfall(a), SsaShortfall::NetBenefits)
        << "all three are below nought; the first wins";

    a = SsaAmounts{};
    a[2] = dollars("100");
    a[6] = dollars("100.01");
    a[9] = dollars("500");
    workOutSsaAmounts(a);
    EXPECT_EQ(firstSsaShortfall(a), SsaShortfall::PaidByCheck);

    a = SsaAmounts{};
    a[2] = dollars("100");
    a[11] = dollars("100.0001");
    workOutSsaAmounts(a);
    EXPECT_EQ(a[8].raw(), -1);
    EXPECT_EQ(firstSsaShortfall(a), SsaShortfall::BenefitsForYear);
}

TEST(SsaAmounts, NearTheLimitOfTheCount) {
    SsaAmounts a{};
    a[2] = raw(kMax);
    workOutSsaAmounts(a);
    EXPECT_EQ(a[4].raw(), kMax);
    EXPECT_EQ(a[5].raw(), kMax);
    EXPECT_EQ(benefitAmountText(a[4]), "$922,337,203,685,477.58");

    // The largest repayment against the largest negative payment still fits: kMin - (-kMax) is -1.
    a = SsaAmounts{};
    a[2] = raw(kMin);
    a[3] = raw(-kMax);
    workOutSsaAmounts(a);
    EXPECT_EQ(a[4].raw(), -1);
    EXPECT_EQ(firstSsaShortfall(a), SsaShortfall::NetBenefits);

    a = SsaAmounts{};
    a[2] = raw(kMax);
    a[9] = raw(kMax);
    workOutSsaAmounts(a);
    EXPECT_EQ(a[8].raw(), 0);
    EXPECT_EQ(a[0].raw(), kMax);
}

TEST(SsaAmounts, BeyondTheLimitThrows) {
    SsaAmounts a{};
    a[2] = raw(kMax);
    a[3] = raw(-1);
    EXPECT_THROW(workOutSsaAmounts(a), std::overflow_error);

    a = SsaAmounts{};
    a[2] = raw(1);
    a[6] = raw(kMax);
    a[7] = raw(1);
    EXPECT_THROW(workOutSsaAmounts(a), std::overflow_error) << "total additions past the top";

    a = SsaAmounts{};
    a[2] = raw(kMin);
    a[6] = raw(1);
    EXPECT_THROW(workOutSsaAmounts(a), std::overflow_error) << "paid by check past the bottom";
}

TEST(SsaAmounts, Reasons) {
    EXPECT_EQ(ssaShortfallReason(SsaShortfall::NetBenefits, "x"), "Box 5. Net Benefits... is LESS THAN ZERO");
    EXPECT_EQ(ssaShortfallReason(SsaShortfall::PaidByCheck, "x"),
              "Paid by Check or Direct Deposit is LESS THAN ZERO");
    EXPECT_EQ(ssaShortfallReason(SsaShortfall::BenefitsForYear, " Box 3. Benefits Paid in 2025"),
              " Box 3. Benefits Paid in 2025 is LESS THAN ZERO");
    EXPECT_EQ(
        benefitErrorMessage("WHY"),
        "SSA1099 - Error in Social Security Computations\r\nWHY\r\nMake corrections before continuing.");
}

// ---- RRB-1099

TEST(RrbAmounts, WorkedExample) {
    RrbAmounts a{};
    a[4] = dollars("5,000");
    a[5] = dollars("1,000");
    a[11] = dollars("300");
    a[12] = dollars("170");
    workOutRrbAmounts(a);
    EXPECT_EQ(benefitAmountText(a[6]), "$4,000.00");
    EXPECT_EQ(a[0], dollars("470"));
    EXPECT_EQ(firstRrbShortfall(a), RrbShortfall::None);

    a[11] = dollars("5,000");
    workOutRrbAmounts(a);
    EXPECT_EQ(a[0], dollars("5170"));
    EXPECT_EQ(firstRrbShortfall(a), RrbShortfall::NetLessLaterBoxes);
}

TEST(RrbAmounts, NetBelowNoughtComesFirst) {
    RrbAmounts a{};
    a[4] = dollars("100");
    a[5] = dollars("100.01");
    a[8] = dollars("50");
    workOutRrbAmounts(a);
    EXPECT_EQ(firstRrbShortfall(a), RrbShortfall::NetBenefits);
}

TEST(RrbAmounts, NetOfNought) {
    RrbAmounts a{};
    a[4] = dollars("100");
    a[5] = dollars("100");
    workOutRrbAmounts(a);
    EXPECT_EQ(a[6], Currency{});
    EXPECT_EQ(firstRrbShortfall(a), RrbShortfall::None) << "boxes 7 to 11 empty";
    a[10] = raw(1);
    workOutRrbAmounts(a);
    EXPECT_EQ(firstRrbShortfall(a), RrbShortfall::NetLessLaterBoxes) << "one ten-thousandth is enough";
}

TEST(RrbAmounts, Box6TakesNoPart) {
    RrbAmounts a{};
    a[4] = dollars("100");
    a[7] = dollars("1000000");
    workOutRrbAmounts(a);
    EXPECT_EQ(a[0], Currency{});
    EXPECT_EQ(firstRrbShortfall(a), RrbShortfall::None);
}

TEST(RrbAmounts, NearTheLimitOfTheCount) {
    RrbAmounts a{};
    a[4] = raw(kMax);
    a[12] = raw(kMax);
    workOutRrbAmounts(a);
    EXPECT_EQ(a[6].raw(), kMax);
    EXPECT_EQ(firstRrbShortfall(a), RrbShortfall::None) << "exactly nought left";

    a = RrbAmounts{};
    a[4] = raw(kMax);
    a[5] = raw(-1);
    EXPECT_THROW(workOutRrbAmounts(a), std::overflow_error);

    a = RrbAmounts{};
    a[4] = raw(kMax);
    a[11] = raw(kMin);
    workOutRrbAmounts(a);
    EXPECT_THROW(firstRrbShortfall(a), std::overflow_error) << "the net less the later boxes past the top";
}

TEST(RrbAmounts, Reasons) {
    EXPECT_EQ(rrbShortfallReason(RrbShortfall::NetBenefits), "Box 5. Net Benefits... is LESS THAN ZERO");
    EXPECT_EQ(rrbShortfallReason(RrbShortfall::NetLessLaterBoxes),
              "Box 5. Net Benefits MINUS total of\r\n--Boxes (7, 8, 9, 10 and 11)\r\nARE LESS THAN ZERO");
}

TEST(BenefitAmountText, EmptyFieldIsNought) {
    EXPECT_EQ(amountOfText(""), Currency{});
    EXPECT_EQ(amountOfText("$1,234.00"), dollars("1234"));
    EXPECT_THROW(amountOfText("ABC"), std::invalid_argument);
    EXPECT_EQ(benefitAmountText(dollars("0.5")), "$.50");
    EXPECT_EQ(benefitAmountText(dollars("-5")), "-$5.00");
    EXPECT_EQ(benefitAmountText(dollars("1234567.5")), "$1,234,567.50");
}

}  // namespace
}  // namespace lw
