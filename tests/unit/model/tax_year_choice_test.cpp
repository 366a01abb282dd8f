#include "model/tax_year_choice.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

using Slot = TaxYearChoice::Slot;

TEST(TaxYearChoice, BeforeSetUpEveryYearIsEmptyAndNoneCanBeChosen) {
    TaxYearChoice none;
    EXPECT_FALSE(none.isSetUp());
    for (Slot slot : {Slot::LastYear, Slot::ThisYear, Slot::NextYear, Slot::Placeholder})
        EXPECT_EQ(none.textOf(slot), "") << static_cast<int>(slot);
    EXPECT_EQ(none.text(), "");
    EXPECT_EQ(none.digits(), "");
    EXPECT_EQ(none.number(), std::nullopt);
    EXPECT_FALSE(none.isPlaceholder());
    EXPECT_EQ(none.index(), 1) << "This Year is the slot in force from the start";
    EXPECT_FALSE(none.choose(""));
    EXPECT_FALSE(none.choose("20XX"));
    EXPECT_EQ(none, TaxYearChoice{});
}

TEST(TaxYearChoice, TheFourYearsStandAroundThisYear) {
    const TaxYearChoice year(2025);
    EXPECT_TRUE(year.isSetUp());
    EXPECT_EQ(year.textOf(Slot::LastYear), "2024");
    EXPECT_EQ(year.textOf(Slot::ThisYear), "2025");
    EXPECT_EQ(year.textOf(Slot::NextYear), "2026");
    EXPECT_EQ(year.textOf(Slot::Placeholder), "20XX");
    EXPECT_EQ(year.slot(), Slot::ThisYear);
    EXPECT_EQ(year.index(), 1);
    EXPECT_EQ(year.text(), "2025");
    EXPECT_EQ(year.digits(), "25");
    EXPECT_EQ(year.number(), 2025);
    EXPECT_FALSE(year.isPlaceholder());
}

TEST(TaxYearChoice, EachSlotInForceGivesItsOwnYear) {
    EXPECT_EQ(TaxYearChoice(2025, Slot::LastYear).number(), 2024);
    EXPECT_EQ(TaxYearChoice(2025, Slot::LastYear).digits(), "24");
    EXPECT_EQ(TaxYearChoice(2025, Slot::NextYear).number(), 2026);
    EXPECT_EQ(TaxYearChoice(2025, Slot::NextYear).index(), 2);
    EXPECT_EQ(TaxYearChoice(2000, Slot::LastYear).text(), "1999");
    EXPECT_EQ(TaxYearChoice(2000, Slot::LastYear).digits(), "99");
}

TEST(TaxYearChoice, ThePlaceholderHasTwoLettersForDigitsAndNoNumber) {
    const TaxYearChoice year(2025, Slot::Placeholder);
    EXPECT_TRUE(year.isPlaceholder());
    EXPECT_EQ(year.text(), "20XX");
    EXPECT_EQ(year.digits(), "XX");
    EXPECT_EQ(year.number(), std::nullopt);
    EXPECT_EQ(year.index(), 3);
}

TEST(TaxYearChoice, TheCycleRunsThisNextPlaceholderLastAndKeepsTheYears) {
    TaxYearChoice year(2025);
    const char* const expected[] = {"2026", "20XX", "2024", "2025", "2026"};
    const int indexes[] = {2, 3, 0, 1, 2};
    for (int step = 0; step < 5; ++step) {
        year = year.next();
        EXPECT_EQ(year.text(), expected[step]) << "step " << step;
        EXPECT_EQ(year.index(), indexes[step]) << "step " << step;
        EXPECT_EQ(year.textOf(Slot::ThisYear), "2025");
    }
    EXPECT_EQ(TaxYearChoice{}.next().index(), 2) << "the slot moves on before set-up too";
}

TEST(TaxYearChoice, AYearIsChosenByItsSpellingOnly) {
    TaxYearChoice year(2025);
    EXPECT_TRUE(year.choose("2026"));
    EXPECT_EQ(year.slot(), Slot::NextYear);
    EXPECT_TRUE(year.choose("20XX"));
    EXPECT_TRUE(year.isPlaceholder());
    EXPECT_TRUE(year.choose("2024"));
    EXPECT_EQ(year.slot(), Slot::LastYear);
    EXPECT_FALSE(year.choose("2015"));
    EXPECT_FALSE(year.choose("24"));
    EXPECT_FALSE(year.choose("20xx"));
    EXPECT_FALSE(year.choose(""));
    EXPECT_EQ(year, TaxYearChoice(2025, Slot::LastYear)) << "a failed choice changes nothing";
    EXPECT_NE(year, TaxYearChoice(2026, Slot::LastYear));
}

}  // namespace
}  // namespace lw
