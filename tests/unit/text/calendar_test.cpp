#include "text/calendar.h"

#include <gtest/gtest.h>

namespace lw::text {
namespace {

TEST(Calendar, ATextNamesADayMonthFirst) {
    EXPECT_EQ(dayOf("02/29/2024"), (CalendarDay{2024, 2, 29}));
    EXPECT_FALSE(dayOf("02/29/2023"));
    EXPECT_FALSE(dayOf("13/01/2024")) << "month first: there is no thirteenth month";
    EXPECT_FALSE(dayOf("02/30/2024"));
    EXPECT_FALSE(dayOf("02/28/20XX"));
    EXPECT_FALSE(dayOf("2/28/2024")) << "always two digits";
}

TEST(Calendar, WeekdaysAreEnglishAbbreviations) {
    EXPECT_EQ(weekdayName({2024, 1, 1}), "Mon");
    EXPECT_EQ(weekdayName({2024, 6, 1}), "Sat");
    EXPECT_EQ(weekdayName({2023, 12, 24}), "Sun");
    EXPECT_EQ(weekdayName({2000, 2, 29}), "Tue");
}

TEST(Calendar, DaysOnAndBackCrossMonthsYearsAndLeapDays) {
    EXPECT_EQ(plusDays({2024, 1, 5}, -12), (CalendarDay{2023, 12, 24}));
    EXPECT_EQ(plusDays({2024, 2, 28}, 1), (CalendarDay{2024, 2, 29}));
    EXPECT_EQ(plusDays({2023, 2, 28}, 1), (CalendarDay{2023, 3, 1}));
    EXPECT_EQ(plusDays({2024, 12, 31}, 1), (CalendarDay{2025, 1, 1}));
    EXPECT_EQ(dateText({2024, 3, 7}), "03/07/2024");
}

}  // namespace
}  // namespace lw::text
