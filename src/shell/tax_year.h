#pragma once
// The tax year in force at start: This Year from today, the year remembered between runs.

#include <string>

#include "model/date_time.h"
#include "model/tax_year_choice.h"

namespace lw {

// This Year: the calendar year of today, except that January and February still count as the year before.
int thisTaxYear(const DateTime& today);
// The cycle of today's tax years with the remembered year in force, or This Year when the remembered one
// is empty or has fallen out of the cycle.
TaxYearChoice rememberedTaxYear(const DateTime& today, const std::string& remembered);
// Sets the program's tax year from today and the remembered LastTaxYear, and writes LastTaxYear back
// with the year in force. Returns the remembered text, or This Year when none was remembered: the
// configuration form shows its last two characters.
std::string setUpTaxYears();

}  // namespace lw
