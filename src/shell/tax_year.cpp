#include "shell/tax_year.h"

#include "model/program.h"
#include "shell/startup.h"

namespace lw {

int thisTaxYear(const DateTime& today) { return today.month >= 3 ? today.year : today.year - 1; }

TaxYearChoice rememberedTaxYear(const DateTime& today, const std::string& remembered) {
    TaxYearChoice taxYear(thisTaxYear(today));
    if (!remembered.empty()) taxYear.choose(remembered);
    return taxYear;
}

std::string setUpTaxYears() {
    Globals& g = program().g;
    const std::string remembered = readUserInf("LastTaxYear");
    g.taxYear = rememberedTaxYear(program().platform.now(), remembered);
    writeUserInf("LastTaxYear", g.taxYear.text());
    return remembered.empty() ? g.taxYear.text() : remembered;
}

}  // namespace lw
