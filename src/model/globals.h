#pragma once
// The state of the running program, in parts by what they are; the program (the composition root) owns it.

#include <array>
#include <string>
#include <vector>

#include "model/edition_settings.h"
#include "model/open_document.h"
#include "model/process_state.h"
#include "model/tax_year_choice.h"
#include "model/taxpayer_memory.h"
#include "model/user_choices.h"
#include "model/year_rates.h"

namespace lw {

struct Globals {
    ProcessState process;
    EditionSettings edition;
    UserChoices choices;
    OpenDocument document;
    TaxpayerMemory taxpayers;

    // The tax year in force, and the cycle the operator changes it in.
    TaxYearChoice taxYear;

    // The figures of the tax year on the configuration form, and its filing status.
    Rates rates;
};

}  // namespace lw
