#include "text/calendar.h"

#include <ctime>

#include "text/date_text.h"

namespace lw::text {

namespace {

// Noon of the day in UTC, so that no change of clock can move it to another day.
std::time_t noonOf(const CalendarDay& day) {
    std::tm moment{};
    moment.tm_year = day.year - 1900;
    moment.tm_mon = day.month - 1;
    moment.tm_mday = day.day;
    moment.tm_hour = 12;
    return timegm(&moment);
}

CalendarDay dayAt(std::time_t time) {
    std::tm moment{};
    gmtime_r(&time, &moment);
    return {moment.tm_year + 1900, moment.tm_mon + 1, moment.tm_mday};
}

}  // namespace

std::optional<CalendarDay> dayOf(const std::string& text) {
    if (text.size() != 10 || text[2] != '/' || text[5] != '/') return std::nullopt;
    for (std::size_t i : {0u, 1u, 3u, 4u, 6u, 7u, 8u, 9u})
        if (text[i] < '0' || text[i] > '9') return std::nullopt;
    const CalendarDay day{std::stoi(text.substr(6, 4)), std::stoi(text.substr(0, 2)),
                          std::stoi(text.substr(3, 2))};
    if (!isCalendarDate(day.year, day.month, day.day)) return std::nullopt;
    return day;
}

std::string weekdayName(const CalendarDay& day) {
    static const char* const kNames[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    std::tm moment{};
    const std::time_t time = noonOf(day);
    gmtime_r(&time, &moment);
    return kNames[moment.tm_wday];
}

CalendarDay plusDays(const CalendarDay& day, int days) {
    return dayAt(noonOf(day) + static_cast<std::time_t>(days) * 24 * 60 * 60);
}

std::string dateText(const CalendarDay& day) { return formatDate(day.year, day.month, day.day); }

}  // namespace lw::text
