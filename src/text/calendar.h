#pragma once
// Days of the Gregorian calendar: the day of the week, and a number of days on or back. The C library's
// own calendar does the counting.

#include <optional>
#include <string>

namespace lw::text {

struct CalendarDay {
    int year = 1970;
    int month = 1;
    int day = 1;
    bool operator==(const CalendarDay& o) const { return year == o.year && month == o.month && day == o.day; }
};

// The day a text "mm/dd/yyyy" names, read month first; nothing when it names no day.
std::optional<CalendarDay> dayOf(const std::string& mmddyyyy);
// "Mon" to "Sun": the English abbreviation, whatever the machine's language.
std::string weekdayName(const CalendarDay& day);
CalendarDay plusDays(const CalendarDay& day, int days);
// "mm/dd/yyyy".
std::string dateText(const CalendarDay& day);

}  // namespace lw::text
