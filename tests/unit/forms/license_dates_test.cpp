#include "forms/license_dates.h"

#include <gtest/gtest.h>

#include <string>

#include "model/app_error.h"

namespace lw {
namespace {

// Today in 2024 and the tax year 2023, as the worked examples have them: the moving holidays are then
// 01/16, 09/04 and 11/23.
struct LicenseDates : ::testing::Test {
    UserChoices choices;
    TaxYearChoice taxYear;
    int thisYear = 0;
    Control issue;
    Control expire;

    void SetUp() override { setYears(2024, 2023); }
    void setYears(int today, int yearOfTax) {
        thisYear = today;
        taxYear = TaxYearChoice(yearOfTax + 1, TaxYearChoice::Slot::LastYear);
        choices.holidayList = kFixedHolidays;
        buildLicenseHolidays(choices, taxYear);
    }
    std::string issued(const std::string& license, const std::string& birth) {
        fillLicenseDates(license, birth, thisYear, choices.holidays, issue, expire);
        return issue.text;
    }
    bool isHoliday(const std::string& monthDay) const { return isLicenseHoliday(choices.holidays, monthDay); }
};

TEST_F(LicenseDates, TheMovingHolidaysOfTheTaxYearJoinTheFixedOnes) {
    EXPECT_EQ(choices.holidayList, "01/01,02/20,05/30,06/19,07/04,11/11,12/25,01/16,09/04,11/23");
    EXPECT_EQ(choices.holidays.size(), 10u);
    EXPECT_TRUE(isHoliday("11/23"));
    EXPECT_TRUE(isHoliday("02/20")) << "a fixed date in every year, whatever its weekday";
    EXPECT_FALSE(isHoliday("11/24"));
}

TEST_F(LicenseDates, ThePlaceholderYearAddsNoMovingHoliday) {
    taxYear = TaxYearChoice(2024, TaxYearChoice::Slot::Placeholder);
    choices.holidayList = kFixedHolidays;
    buildLicenseHolidays(choices, taxYear);
    EXPECT_EQ(choices.holidayList, kFixedHolidays);
    EXPECT_EQ(choices.holidays.size(), 7u);
}

TEST_F(LicenseDates, WorkedExamples) {
    EXPECT_EQ(issued("1", "06/13/1980"), "05/31/2024") << "06/01 is a Saturday: the Friday before";
    EXPECT_EQ(expire.text, "06/13/2029");
    EXPECT_EQ(issued("2", "06/18/1980"), "05/31/2024");
    EXPECT_EQ(issued("1", "07/16/1980"), "07/05/2024") << "07/04 is a holiday on a Thursday";
    EXPECT_EQ(issued("2", "07/01/1980"), "06/14/2024") << "a Friday and no holiday";
    EXPECT_EQ(issued("1", "01/13/1980"), "01/01/2024") << "a holiday on a Monday stays";
}

TEST_F(LicenseDates, AJanuaryBirthdayFallsBackIntoDecember) {
    // 12/24/2023 is a Sunday: the Monday after is Christmas, a holiday on a Monday, and stays.
    EXPECT_EQ(issued("1", "01/05/1980"), "12/25/2023");
    EXPECT_EQ(expire.text, "01/05/2029");
    // 12/19/2023 is a Tuesday and no holiday.
    EXPECT_EQ(issued("2", "01/05/1980"), "12/19/2023");
}

TEST_F(LicenseDates, AClearedBirthDateClearsBothDates) {
    issued("1", "06/13/1980");
    EXPECT_EQ(issued("1", ""), "");
    EXPECT_EQ(expire.text, "");
}

TEST_F(LicenseDates, AFebruary29BirthdayThatTheYearLacksIsAFault) {
    try {
        issued("1", "02/29/1980");  // 2029 has no February 29
        FAIL() << "no fault";
    } catch (const AppError& fault) {
        EXPECT_EQ(fault.number(), err::kTypeMismatch);
    }
    setYears(2027, 2026);  // 2032 has one, 2027 does not
    EXPECT_THROW(issued("1", "02/29/1980"), AppError);
}

TEST_F(LicenseDates, TheWeekdaysAreTheEnglishOnesWhateverTheMachinesLanguage) {
    EXPECT_TRUE(isWeekend({2024, 6, 1}));
    EXPECT_TRUE(isWeekend({2024, 6, 2}));
    EXPECT_FALSE(isWeekend({2024, 6, 3}));
    EXPECT_EQ(shiftOffMidweek({2024, 6, 1}), (text::CalendarDay{2024, 5, 31}));
    EXPECT_EQ(shiftOffMidweek({2024, 6, 2}), (text::CalendarDay{2024, 6, 3}));
    EXPECT_EQ(shiftOffMidweek({2024, 6, 3}), (text::CalendarDay{2024, 6, 3}));
    EXPECT_EQ(shiftOffMidweek({2024, 6, 4}), (text::CalendarDay{2024, 6, 5}));
    EXPECT_EQ(shiftOffMidweek({2024, 6, 7}), (text::CalendarDay{2024, 6, 7}));
}

// Every birthday of 2024 to 2027 under both licenses, against the rules stated as properties.
TEST_F(LicenseDates, EveryIssueDateOf2024To2027KeepsTheRules) {
    for (int year = 2024; year <= 2027; ++year) {
        setYears(year, year);
        for (text::CalendarDay birthday{year, 1, 1}; birthday.year == year;
             birthday = text::plusDays(birthday, 1)) {
            if (birthday.month == 2 && birthday.day == 29) continue;
            for (const char* license : {"1", "2"}) {
                const text::CalendarDay candidate = text::plusDays(birthday, license[0] == '1' ? -12 : -17);
                const std::string birth = text::dateText({1980, birthday.month, birthday.day});
                const auto issuedOn = text::dayOf(issued(license, birth));
                ASSERT_TRUE(issuedOn) << birth;
                SCOPED_TRACE(birth + " license " + license + " candidate " + text::dateText(candidate));
                EXPECT_FALSE(isWeekend(*issuedOn)) << "never a Saturday or a Sunday";
                const std::string day = text::weekdayName(candidate);
                char md[6];
                std::snprintf(md, sizeof md, "%02d/%02d", candidate.month, candidate.day);
                const bool holiday = isHoliday(md);
                text::CalendarDay expected = candidate;
                if (day == "Sat")
                    expected = text::plusDays(candidate, -1);
                else if (day == "Sun")
                    expected = text::plusDays(candidate, 1);
                else if (holiday && (day == "Tue" || day == "Wed" || day == "Thu"))
                    expected = text::plusDays(candidate, 1);
                EXPECT_EQ(*issuedOn, expected)
                    << "a weekday holiday moves only from Tuesday to Thursday, one day on";
                EXPECT_EQ(expire.text, text::dateText({year + 5, birthday.month, birthday.day}));
            }
        }
    }
}

}  // namespace
}  // namespace lw
