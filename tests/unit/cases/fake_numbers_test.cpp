#include <gtest/gtest.h>

#include <set>

#include "cases/dice.h"
#include "cases/fake_numbers.h"

namespace lw::cases {
namespace {

TEST(FakeNumbers, SocialSecurityNumbersHaveTheGroupNeverIssued) {
    Dice dice(1);
    std::set<std::string> seen;
    for (int i = 0; i < 5000; ++i) {
        const std::string number = socialSecurityNumber(dice);
        ASSERT_TRUE(isUnissuedSocialSecurityNumber(number)) << number;
        ASSERT_NE(number.substr(0, 3), "000");
        ASSERT_NE(number.substr(0, 3), "666");
        seen.insert(number);
    }
    EXPECT_GT(seen.size(), 4900u);
}

TEST(FakeNumbers, TaxpayerNumbersUseAMiddlePairOutsideTheIssuedRanges) {
    Dice dice(2);
    for (int i = 0; i < 2000; ++i) {
        const std::string number = individualTaxpayerNumber(dice);
        ASSERT_TRUE(isUnissuedTaxpayerNumber(number)) << number;
        ASSERT_FALSE(isUnissuedSocialSecurityNumber(number)) << number;
    }
}

TEST(FakeNumbers, EmployerNumbersStartWithAnUnassignedPrefix) {
    Dice dice(3);
    std::set<std::string> prefixes;
    for (int i = 0; i < 2000; ++i) {
        const std::string number = employerNumber(dice);
        ASSERT_TRUE(isUnassignedEmployerNumber(number)) << number;
        prefixes.insert(number.substr(0, 2));
    }
    EXPECT_EQ(prefixes.size(), 14u);
    EXPECT_FALSE(isUnassignedEmployerNumber("12-3456789"));
    EXPECT_FALSE(isUnassignedEmployerNumber("07-345678"));
}

TEST(FakeNumbers, TelephoneNumbersLieInTheFictionalBlock) {
    Dice dice(4);
    for (int i = 0; i < 500; ++i) {
        const std::string phone = telephoneNumber(dice, "217");
        ASSERT_EQ(phone.substr(0, 12), "(217) 555-01") << phone;
        ASSERT_EQ(phone.size(), 14u) << phone;
    }
}

TEST(FakeNumbers, RoutingNumbersCheckOutAndNameNoDistrict) {
    Dice dice(5);
    for (int i = 0; i < 500; ++i) {
        const std::string routing = routingNumber(dice);
        ASSERT_EQ(routing.size(), 9u);
        ASSERT_EQ(routing[0], '5');
        const int weights[] = {3, 7, 1, 3, 7, 1, 3, 7, 1};
        int sum = 0;
        for (int d = 0; d < 9; ++d) sum += (routing[static_cast<std::size_t>(d)] - '0') * weights[d];
        ASSERT_EQ(sum % 10, 0) << routing;
    }
}

TEST(Dice, TheSameSeedThrowsTheSameAndCasesStandApart) {
    Dice a(42), b(42);
    for (int i = 0; i < 100; ++i) ASSERT_EQ(a.between(-5, 1000000), b.between(-5, 1000000));
    EXPECT_NE(caseSeed(42, 1), caseSeed(42, 2));
    EXPECT_EQ(caseSeed(42, 7), caseSeed(42, 7));
    Dice c(9);
    for (int i = 0; i < 1000; ++i) {
        const long long n = c.between(3, 5);
        ASSERT_GE(n, 3);
        ASSERT_LE(n, 5);
    }
}

}  // namespace
}  // namespace lw::cases
