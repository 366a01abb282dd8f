#pragma once
// The dates of a training driver's license, worked out from the birth date alone: it expires on the
// birthday five years on, and was issued 12 days (the first license) or 17 days (the second) before this
// year's birthday, on a day moved off weekends and holidays.

#include <string>
#include <vector>

#include "model/control.h"
#include "model/tax_year_choice.h"
#include "model/user_choices.h"
#include "text/calendar.h"

namespace lw {

// The seven fixed holidays, set as the license form loads.
constexpr const char* kFixedHolidays = "01/01,02/20,05/30,06/19,07/04,11/11,12/25";

// Adds the third Monday of January, the first Monday of September and the fourth Thursday of November
// of the tax year to the choices' holiday list (none for 20XX), and splits the list into their holidays.
void buildLicenseHolidays(UserChoices& choices, const TaxYearChoice& taxYear);
// Whether the MM/DD is one of the holidays.
bool isLicenseHoliday(const std::vector<std::string>& holidays, const std::string& monthDay);
bool isWeekend(const text::CalendarDay& dDate);
// Monday and Friday stay; Saturday goes back a day; Sunday, Tuesday, Wednesday and Thursday go on a day.
text::CalendarDay shiftOffMidweek(const text::CalendarDay& dDate);
// license "1" or "2"; thisYear is today's year, and the issue date keeps off the holidays. An empty birth
// date empties both fields. A birthday that this year or the year of expiration does not have (February
// 29) is a fault of type mismatch, for the caller's handler.
void fillLicenseDates(const std::string& license, const std::string& birthDate, int thisYear,
                      const std::vector<std::string>& holidays, Control& ctlIssue, Control& ctlExpire);

}  // namespace lw
