#pragma once
// Date fields: what was typed becomes MM/DD/YYYY, and the year is held to the form's tax year.

#include <string>

#include "fields/edit_context.h"
#include "model/control.h"
#include "model/date_time.h"

namespace lw {

// Brings the text to MM/DD/YYYY; false when it is no date. A date without a year takes the year of `now`.
// The placeholder year 20XX is a year too.
bool formatDateText(Control& ctl, const DateTime& now);
// requiredYear is empty for any date, or the tax year the date must lie in. A date in 20XX takes the year
// the document's current form shows, or the tax year in force on a form that shows none. The value is
// corrected, not refused, when its year is wrong; the operator is told.
bool editDate(Control& ctl, const EditContext& context, const std::string& requiredYear);

}  // namespace lw
