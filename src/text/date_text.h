// Dates as the program writes them: "mm/dd/yyyy".
#pragma once

#include <string>

namespace lw::text {

// A day of the Gregorian calendar, year 1 to 9999 (February 29 only in leap years).
bool isCalendarDate(int year, int month, int day);

// Two-digit month and day, four-digit year: (2024, 3, 7) gives "03/07/2024". Throws
// std::invalid_argument when isCalendarDate refuses the date.
std::string formatDate(int year, int month, int day);

}  // namespace lw::text
