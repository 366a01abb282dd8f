#include "shell/tax_year.h"

#include "model/program.h"
#include "shell/startup.h"

namespace lw {

int thisTaxYear(const DateTime& today) { return today.month >= 3 ? today.year : today.year - 1; }

std::string setUpTaxYears() {
    Globals& g = program().g;
    std::string remembered = readUserInf("LastTaxYear");
    const int year = thisTaxYear(program().platform.now());
    g.TaxYears = {std::to_string(year - 1), std::to_string(year), std::to_string(year + 1), "20XX"};
    g.TaxYearIndex = 1;
    if (!remembered.empty()) {
        for (int i = 0; i < 4; ++i) {
            if (g.TaxYears[static_cast<std::size_t>(i)] == remembered) {
                g.TaxYearIndex = i;
                break;
            }
        }
    } else {
        remembered = g.TaxYears[1];
    }
    writeUserInf("LastTaxYear", g.TaxYears[static_cast<std::size_t>(g.TaxYearIndex)]);
    return remembered;
}

std::string taxYearDigits() {
    const Globals& g = program().g;
    const std::string& year = g.TaxYears[static_cast<std::size_t>(g.TaxYearIndex)];
    return year.size() >= 2 ? year.substr(year.size() - 2) : year;
}

int nextTaxYearIndex(int index) {
    switch (index) {
        case 0:
            return 1;
        case 1:
            return 2;
        case 2:
            return 3;
        default:
            return 0;
    }
}

}  // namespace lw
