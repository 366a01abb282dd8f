#pragma once
// The tax year in force at start: This Year from today, the year remembered between runs.

#include <string>

#include "model/date_time.h"
#include "model/tax_year_choice.h"

namespace lw {

struct ProgramParts;

// This Year: the calendar year of today, except that January and February still count as the year before.
int thisTaxYear(const DateTime& today);
// The cycle of today's tax years with the remembered year in force, or This Year when the remembered one
// is empty or has fallen out of the cycle.
TaxYearChoice rememberedTaxYear(const DateTime& today, const std::string& remembered);
// Sets the tax year of the parts from the platform's today and the LastTaxYear the user INF file
// remembers for the user, and writes LastTaxYear back with the year in force. Returns the remembered text,
// or This Year when none was remembered: the configuration form shows its last two characters.
std::string setUpTaxYears(const ProgramParts& parts);

}  // namespace lw
