#pragma once
// Date fields: what was typed becomes MM/DD/YYYY, and the year is held to the form's tax year.

#include <string>

#include "model/control.h"
#include "model/tax_year_choice.h"

namespace lw {

// Brings the text to MM/DD/YYYY; false when it is no date. The placeholder year 20XX is a year too.
bool formatDateText(Control& ctl);
// requiredYear is empty for any date, or the tax year the date must lie in. A date in 20XX takes the year
// the form shows, or `inForce` on a form that shows none. The value is corrected, not refused, when its
// year is wrong; the operator is told.
bool editDate(Control& ctl, const TaxYearChoice& inForce, const std::string& requiredYear);

}  // namespace lw
