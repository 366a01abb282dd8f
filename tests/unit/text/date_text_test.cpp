#include "text/date_text.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace lw::text {
namespace {

struct DateRow {
    int year;
    int month;
    int day;
    const char* text;
};

class FormatDate : public ::testing::TestWithParam<DateRow> {};

TEST_P(FormatDate, WritesMonthDayYear) {
    EXPECT_EQ(formatDate(GetParam().year, GetParam().month, GetParam().day), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Table, FormatDate,
                         ::testing::Values(DateRow{2024, 3, 7, "03/07/2024"},
                                           DateRow{1999, 12, 31, "12/31/1999"},
                                           DateRow{2024, 2, 29, "02/29/2024"},
                                           DateRow{2000, 2, 29, "02/29/2000"}, DateRow{5, 1, 1, "01/01/0005"},
                                           DateRow{9999, 12, 31, "12/31/9999"}));

struct BadDate {
    int year;
    int month;
    int day;
};

class NotACalendarDate : public ::testing::TestWithParam<BadDate> {};

TEST_P(NotACalendarDate, IsRefused) {
    EXPECT_FALSE(isCalendarDate(GetParam().year, GetParam().month, GetParam().day));
    EXPECT_THROW(formatDate(GetParam().year, GetParam().month, GetParam().day), std::invalid_argument);
}

INSTANTIATE_TEST_SUITE_P(Table, NotACalendarDate,
                         ::testing::Values(BadDate{2023, 2, 29}, BadDate{1900, 2, 29}, BadDate{2024, 13, 1},
                                           BadDate{2024, 0, 1}, BadDate{2024, 4, 31}, BadDate{2024, 1, 0},
                                           BadDate{0, 1, 1}, BadDate{10000, 1, 1}, BadDate{2024, -1, 5}));

}  // namespace
}  // namespace lw::text
