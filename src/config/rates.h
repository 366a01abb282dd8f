// The Social Security and Medicare figures of the tax year: read from SSMC.inf into the configuration
// form and the process-wide values, checked as they are typed, and written back on Save.
#pragma once

#include <string>

#include "model/form.h"
#include "model/year_rates.h"

namespace lw {

struct ProgramParts;

// The figures of a year as SSMC.inf holds them in the section of that year ("2025", "20XX"), each read
// once; the change point is the one of the filing status. A figure the file lacks is empty.
Rates readYearRates(const std::string& year, const std::string& ssmcFile, FilingStatus status);

// Fills the rate fields and captions of the configuration form from the section of its year, TaxYear(0)
// and TaxYear(1), in ssmcFile, and makes them the figures in force, under the filing status of rates.
void loadRates(Form& configureForm, const std::string& ssmcFile, Rates& rates);

// Edits of a rate field and an amount field: true when the text is good, and then rewritten to its
// normal form. A bad text is reported as a Data Error, the field keeps the focus, and false comes back.
bool checkRateField(Control& ctl);
bool checkRateAmountField(Control& ctl);

// The six fields by their edits in form order; the first that fails ends it with false.
bool validateAllRates(Form& configureForm);

// The figures for the W-2's computation (rates, wage base, change point), each as it is spelt through the
// edit of its field on the configuration form: false, with that edit's Data Error shown, when one cannot
// be used, as in a year that SSMC.inf has no figures for.
bool ratesInForce(const Rates& rates);

// Writes the six figures to the section of the form's year in ssmcFile when all of them pass, and makes
// them the figures in force. The frame's Save on the configuration form.
void storeRates(Form& configureForm, const std::string& ssmcFile, Rates& rates);

// When the figures on the form differ from the ones stored for the tax year in force, offers to save
// them; ends the program afterwards when the frame is quitting. Run as the frame closes with the
// configuration form on it.
void offerToSaveChangedRates(Form& configureForm, const ProgramParts& parts);

// One line of the table of changes: the item in 22 characters, the two values right-aligned in 9 each,
// then a line end. Longer texts stand whole.
std::string rateChangeRow(const std::string& item, const std::string& original, const std::string& current);

}  // namespace lw
