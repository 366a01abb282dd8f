#include "shell/tax_year.h"

#include <gtest/gtest.h>

#include "shell/startup.h"
#include "store/inf_store.h"
#include "store/user_inf.h"
#include "test_program.h"

namespace lw {
namespace {

using Slot = TaxYearChoice::Slot;

TEST(TaxYear, JanuaryAndFebruaryStillCountAsTheYearBefore) {
    EXPECT_EQ(thisTaxYear(DateTime{2026, 2, 28}), 2025);
    EXPECT_EQ(thisTaxYear(DateTime{2026, 3, 1}), 2026);
    EXPECT_EQ(thisTaxYear(DateTime{2026, 1, 1}), 2025);
    EXPECT_EQ(thisTaxYear(DateTime{2026, 12, 31}), 2026);
}

TEST(TaxYear, TheRememberedYearIsInForceWhenItIsOneOfTheFour) {
    const DateTime today{2026, 2, 28};
    EXPECT_EQ(rememberedTaxYear(today, ""), TaxYearChoice(2025));
    EXPECT_EQ(rememberedTaxYear(today, "2024"), TaxYearChoice(2025, Slot::LastYear));
    EXPECT_EQ(rememberedTaxYear(today, "2026"), TaxYearChoice(2025, Slot::NextYear));
    EXPECT_EQ(rememberedTaxYear(today, "20XX"), TaxYearChoice(2025, Slot::Placeholder));
    EXPECT_EQ(rememberedTaxYear(today, "2015"), TaxYearChoice(2025));
    EXPECT_EQ(rememberedTaxYear(DateTime{2026, 3, 1}, "2025"), TaxYearChoice(2026, Slot::LastYear));
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
    const TaxYearChoice& taxYear() { return test.program->g.taxYear; }
};

TEST_F(YearSetup, WithNothingRememberedThisYearIsInForceAndRemembered) {
    EXPECT_EQ(setUpTaxYears(test.program->parts), "2025");
    EXPECT_EQ(taxYear().textOf(Slot::LastYear), "2024");
    EXPECT_EQ(taxYear().textOf(Slot::ThisYear), "2025");
    EXPECT_EQ(taxYear().textOf(Slot::NextYear), "2026");
    EXPECT_EQ(taxYear().textOf(Slot::Placeholder), "20XX");
    EXPECT_EQ(taxYear().slot(), Slot::ThisYear);
    EXPECT_EQ(remembered(), "2025");
}

TEST_F(YearSetup, ARememberedPlaceholderYearSelectsTheFourthEntry) {
    writeUserInf(program().parts, "LastTaxYear", "20XX");
    EXPECT_EQ(setUpTaxYears(test.program->parts), "20XX");
    EXPECT_EQ(taxYear().index(), 3);
    EXPECT_EQ(taxYear().digits(), "XX");
    EXPECT_EQ(remembered(), "20XX");
}

TEST_F(YearSetup, AYearOutOfTheWindowFallsBackToThisYearAndIsOverwritten) {
    writeUserInf(program().parts, "LastTaxYear", "2015");
    EXPECT_EQ(setUpTaxYears(test.program->parts), "2015");
    EXPECT_EQ(taxYear().index(), 1);
    EXPECT_EQ(remembered(), "2025");
}

TEST_F(YearSetup, LastYearIsKept) {
    writeUserInf(program().parts, "LastTaxYear", "2024");
    setUpTaxYears(test.program->parts);
    EXPECT_EQ(taxYear().index(), 0);
    EXPECT_EQ(taxYear().digits(), "24");
}

}  // namespace
}  // namespace lw
