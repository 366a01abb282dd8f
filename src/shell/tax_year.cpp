#include "shell/tax_year.h"

#include "model/edition_settings.h"
#include "model/ports.h"
#include "model/process_state.h"
#include "model/program_parts.h"
#include "store/user_inf.h"

namespace lw {

int thisTaxYear(const DateTime& today) { return today.month >= 3 ? today.year : today.year - 1; }

TaxYearChoice rememberedTaxYear(const DateTime& today, const std::string& remembered) {
    TaxYearChoice taxYear(thisTaxYear(today));
    if (!remembered.empty()) taxYear.choose(remembered);
    return taxYear;
}

std::string setUpTaxYears(const ProgramParts& parts) {
    const std::string remembered = readUserInf(parts, "LastTaxYear");
    parts.taxYear = rememberedTaxYear(parts.platform.now(), remembered);
    writeUserInf(parts, "LastTaxYear", parts.taxYear.text());
    return remembered.empty() ? parts.taxYear.text() : remembered;
}

}  // namespace lw
