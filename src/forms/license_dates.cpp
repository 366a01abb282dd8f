#include "forms/license_dates.h"

#include <cstdio>

#include "model/app_error.h"
#include "text/pieces.h"

namespace lw {

namespace {

std::string twoDigits(int number) {
    char buffer[4];
    std::snprintf(buffer, sizeof buffer, "%02d", number);
    return buffer;
}

std::string monthDayOf(const text::CalendarDay& day) {
    return twoDigits(day.month) + "/" + twoDigits(day.day);
}

// The first of days 1 to 7 of the month that is the weekday, and `later` days on, appended as MM/DD. A
// year that is no number ("20XX") forms no date, and nothing is added.
void addMovingHoliday(std::string& holidayList, const std::string& year, const char* month,
                      const char* weekday, int later) {
    for (int day = 1; day <= 7; ++day) {
        const auto date = text::dayOf(std::string(month) + "/" + twoDigits(day) + "/" + year);
        if (!date || text::weekdayName(*date) != weekday) continue;
        holidayList += std::string(",") + month + "/" + twoDigits(day + later);
        return;
    }
}

// A day of the calendar, or the type mismatch the conversion of a text that is no date raises.
text::CalendarDay dateOrFault(const std::string& mmddyyyy) {
    const auto day = text::dayOf(mmddyyyy);
    if (!day) throw AppError(err::kTypeMismatch, "Type mismatch");
    return *day;
}

}  // namespace

void buildLicenseHolidays(UserChoices& choices, const TaxYearChoice& taxYear) {
    const std::string year = taxYear.text();
    addMovingHoliday(choices.holidayList, year, "01", "Mon", 14);
    addMovingHoliday(choices.holidayList, year, "09", "Mon", 0);
    addMovingHoliday(choices.holidayList, year, "11", "Thu", 21);
    choices.holidays = text::split(choices.holidayList, ",");
}

bool isLicenseHoliday(const std::vector<std::string>& holidays, const std::string& monthAndDay) {
    for (const std::string& holiday : holidays)
        if (holiday == monthAndDay) return true;
    return false;
}

bool isWeekend(const text::CalendarDay& dDate) {
    const std::string name = text::weekdayName(dDate);
    return name == "Sat" || name == "Sun";
}

text::CalendarDay shiftOffMidweek(const text::CalendarDay& dDate) {
    const std::string name = text::weekdayName(dDate);
    if (name == "Mon" || name == "Fri") return dDate;
    if (name == "Sat") return text::plusDays(dDate, -1);
    return text::plusDays(dDate, 1);
}

void fillLicenseDates(const std::string& license, const std::string& birthDate, int thisYear,
                      const std::vector<std::string>& holidays, Control& ctlIssue, Control& ctlExpire) {
    if (birthDate.empty()) {
        ctlIssue.text.clear();
        ctlExpire.text.clear();
        return;
    }
    const std::string monthDay = birthDate.substr(0, 6);
    ctlExpire.text = text::dateText(dateOrFault(monthDay + std::to_string(thisYear + 5)));

    const text::CalendarDay birthday = dateOrFault(monthDay + std::to_string(thisYear));
    text::CalendarDay d = text::plusDays(birthday, license == "1" ? -12 : -17);
    std::string monthAndDay = monthDayOf(d);
    for (;;) {
        if (isLicenseHoliday(holidays, monthAndDay)) {
            d = shiftOffMidweek(d);
            monthAndDay = monthDayOf(d);
        }
        if (!isWeekend(dateOrFault(monthAndDay + "/" + std::to_string(d.year)))) break;
        d = shiftOffMidweek(d);
        monthAndDay = monthDayOf(d);
    }
    ctlIssue.text = text::dateText(d);
}

}  // namespace lw
