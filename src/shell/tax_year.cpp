#include "shell/tax_year.h"

#include "model/edition_settings.h"
#include "model/ports.h"
#include "model/process_state.h"
#include "model/program_parts.h"
#include "store/inf_store.h"

namespace lw {

int thisTaxYear(const DateTime& today) { return today.month >= 3 ? today.year : today.year - 1; }

TaxYearChoice rememberedTaxYear(const DateTime& today, const std::string& remembered) {
    TaxYearChoice taxYear(thisTaxYear(today));
    if (!remembered.empty()) taxYear.choose(remembered);
    return taxYear;
}

std::string setUpTaxYears(const ProgramParts& parts) {
    // LastTaxYear stands in the user's section of the user INF file.
    const std::string& user = parts.process.userNameUpper;
    const std::string& userInfFile = parts.edition.userInfFile;
    const std::string remembered = store::readInfValue(user, "LastTaxYear", "", userInfFile);
    parts.taxYear = rememberedTaxYear(parts.platform.now(), remembered);
    store::writeInfValue(user, "LastTaxYear", parts.taxYear.text(), userInfFile);
    return remembered.empty() ? parts.taxYear.text() : remembered;
}

}  // namespace lw
