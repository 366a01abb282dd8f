#pragma once
// The tax year: Last Year, This Year, Next Year and 20XX, the one in force, and its memory between runs.

#include <string>

#include "model/date_time.h"

namespace lw {

// This Year: the calendar year of today, except that January and February still count as the year before.
int thisTaxYear(const DateTime& today);
// Fills TaxYears from today, and TaxYearIndex from the remembered LastTaxYear (index 1 when it is empty
// or has fallen out of the window); writes LastTaxYear back with the year in force. Returns the
// remembered text, or This Year when none was remembered: the configuration form shows its last two
// characters.
std::string setUpTaxYears();
// The year in force as the forms show it: the last two characters of its entry ("25", "XX").
std::string taxYearDigits();
// The next index of the cycle This Year, Next Year, 20XX, Last Year.
int nextTaxYearIndex(int index);

}  // namespace lw
