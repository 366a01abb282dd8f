#include "text/date_text.h"

#include <cstdio>
#include <stdexcept>

namespace lw::text {

namespace {

bool isLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int daysInMonth(int year, int month) {
    static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : kDays[month - 1];
}

}  // namespace

bool isCalendarDate(int year, int month, int day) {
    if (year < 1 || year > 9999 || month < 1 || month > 12) return false;
    return day >= 1 && day <= daysInMonth(year, month);
}

std::string formatDate(int year, int month, int day) {
    if (!isCalendarDate(year, month, day))
        throw std::invalid_argument("not a calendar date: " + std::to_string(year) + "-" +
                                    std::to_string(month) + "-" + std::to_string(day));
    char buffer[11];
    std::snprintf(buffer, sizeof buffer, "%02d/%02d/%04d", month, day, year);
    return buffer;
}

}  // namespace lw::text
