#include "shell/tax_year.h"

#include <gtest/gtest.h>

#include "shell/startup.h"
#include "store/inf_store.h"
#include "test_program.h"

namespace lw {
namespace {

TEST(TaxYear, JanuaryAndFebruaryStillCountAsTheYearBefore) {
    EXPECT_EQ(thisTaxYear(DateTime{2026, 2, 28}), 2025);
    EXPECT_EQ(thisTaxYear(DateTime{2026, 3, 1}), 2026);
    EXPECT_EQ(thisTaxYear(DateTime{2026, 1, 1}), 2025);
    EXPECT_EQ(thisTaxYear(DateTime{2026, 12, 31}), 2026);
}

TEST(TaxYear, TheCycleRunsThisNextPlaceholderLast) {
    EXPECT_EQ(nextTaxYearIndex(1), 2);
    EXPECT_EQ(nextTaxYearIndex(2), 3);
    EXPECT_EQ(nextTaxYearIndex(3), 0);
    EXPECT_EQ(nextTaxYearIndex(0), 1);
    EXPECT_EQ(nextTaxYearIndex(7), 0);
}

struct YearSetup : ::testing::Test {
    testing::TestProgram test;
    void SetUp() override {
        test.platform.clock = DateTime{2026, 2, 28};
        test.start();
    }
    std::string remembered() {
        return store::readInfValue("TESTER", "LastTaxYear", "", test.program->g.edition.userInfFile);
    }
};

TEST_F(YearSetup, WithNothingRememberedThisYearIsInForceAndRemembered) {
    EXPECT_EQ(setUpTaxYears(), "2025");
    const Globals& g = test.program->g;
    EXPECT_EQ(g.TaxYears[0], "2024");
    EXPECT_EQ(g.TaxYears[1], "2025");
    EXPECT_EQ(g.TaxYears[2], "2026");
    EXPECT_EQ(g.TaxYears[3], "20XX");
    EXPECT_EQ(g.TaxYearIndex, 1);
    EXPECT_EQ(remembered(), "2025");
}

TEST_F(YearSetup, ARememberedPlaceholderYearSelectsTheFourthEntry) {
    writeUserInf("LastTaxYear", "20XX");
    EXPECT_EQ(setUpTaxYears(), "20XX");
    EXPECT_EQ(test.program->g.TaxYearIndex, 3);
    EXPECT_EQ(taxYearDigits(), "XX");
}

TEST_F(YearSetup, AYearOutOfTheWindowFallsBackToThisYearAndIsOverwritten) {
    writeUserInf("LastTaxYear", "2015");
    EXPECT_EQ(setUpTaxYears(), "2015");
    EXPECT_EQ(test.program->g.TaxYearIndex, 1);
    EXPECT_EQ(remembered(), "2025");
}

TEST_F(YearSetup, LastYearIsKept) {
    writeUserInf("LastTaxYear", "2024");
    setUpTaxYears();
    EXPECT_EQ(test.program->g.TaxYearIndex, 0);
    EXPECT_EQ(taxYearDigits(), "24");
}

}  // namespace
}  // namespace lw
