#pragma once
// Date fields: what was typed becomes MM/DD/YYYY, and the year is held to the form's tax year.

#include <string>

#include "model/control.h"

namespace lw {

// Brings the text to MM/DD/YYYY; false when it is no date. The placeholder year 20XX is a year too.
bool formatDateText(Control& ctl);
// sRequiredYear is empty for any date, or the tax year the date must lie in. The value is corrected,
// not refused, when its year is wrong; the operator is told.
bool editDate(Control& ctl, const std::string& sRequiredYear);

}  // namespace lw
