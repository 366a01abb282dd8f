#pragma once
// The state of the running program, in parts by what they are; the program (the composition root) owns it.

#include <array>
#include <string>
#include <vector>

#include "model/edition_settings.h"
#include "model/open_document.h"
#include "model/process_state.h"
#include "model/taxpayer_memory.h"
#include "model/user_choices.h"

namespace lw {

struct Globals {
    ProcessState process;
    EditionSettings edition;
    UserChoices choices;
    OpenDocument document;
    TaxpayerMemory taxpayers;

    // The tax year: Last Year, This Year, Next Year and "20XX".
    std::array<std::string, 4> TaxYears{};
    int TaxYearIndex = 1;

    // Rates of the tax year in force, as text.
    std::string FilingStatus;
    std::string SSRate;
    std::string SSMax;
    std::string MCInitRate;
    std::string MCChgRateAfter;
    std::string MCRateAfter;
    std::string MCPartBPremium;
    std::string MCPartBIncome;
};

}  // namespace lw
