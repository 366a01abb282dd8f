#pragma once
// The taxpayer sheet's own rules: ages at the end of the tax year, and the copy of its people into the
// store that the Load TP buttons read.

#include <string>

#include "model/tax_year_choice.h"

namespace lw {

class Form;
struct ProgramParts;
struct TaxpayerMemory;

// The calendar year of 12/31 of the tax year less the year of birth: no correction for the birthday,
// since none falls after December 31. "N/A" for the year 20XX. A negative age is returned as it is, with
// "One or more date(s) are invalid" in red on the form's status line.
std::string ageAtYearEnd(Form& form, const std::string& dob, const TaxYearChoice& taxYear);

// The age of one row of the sheet, from its date field into its age field. An empty date leaves the
// age as it was; a date in 20XX has no age.
void updateAge(Form& sheet, const std::string& dobIndex, const std::string& ageIndex,
               const TaxYearChoice& taxYear);

// Every row of the people table aged again on the sheet, as after a change of the tax year.
void updateAllAges(Form& sheet, const TaxpayerMemory& taxpayers, const TaxYearChoice& taxYear);

// Run by saveDataFile once a sheet's line is written: the two taxpayers from the document's line, the
// seven others from the fields of its current form, into the user's store in the order it has them.
void saveTaxpayerSheet(const ProgramParts& parts);

}  // namespace lw
