#include "catalogue/form_info.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "model/program.h"
#include "store/inf_store.h"
#include "text/number.h"

namespace lw {

std::string GetFormInfo(const std::string& Section, const std::string& Key) {
    std::string section = Section;
    if (Section != "SS_ITIN") {
        std::size_t underscore = Section.find('_');
        section = underscore == std::string::npos ? Section : Section.substr(underscore + 1);
        section.erase(std::remove(section.begin(), section.end(), '-'), section.end());
    }
    return store::ReadINF(section, Key, "", program().g.edition.formsInfFile);
}

namespace {
// A 16-bit integer is kept only when the text is a number that fits; anything else leaves the old value.
void keepNumber(const std::string& text, int& target) {
    std::optional<double> value = text::toDouble(text);
    if (!value || *value < -32768.5 || *value > 32767.5) return;
    target = static_cast<int>(std::nearbyint(*value));
}
}  // namespace

void loadFormInfo() {
    Globals& g = program().g;
    const std::string name = g.document.currentForm ? g.document.currentForm->name() : std::string();
    g.document.catalogue.formTitle = GetFormInfo(name, "FormName");
    g.document.catalogue.recordPrefix = GetFormInfo(name, "RecordPrefix");
    g.document.catalogue.ssnIndex = GetFormInfo(name, "SSNIndex");
    g.document.catalogue.nameAddrIndex = GetFormInfo(name, "NameAddrIndex");
    g.document.catalogue.nameOnlyIndex = GetFormInfo(name, "NameOnlyIndex");
    g.document.catalogue.dobIndex = GetFormInfo(name, "DOBIndex");
    g.document.catalogue.medicareClaimNoIndex = GetFormInfo(name, "MedicareClaimNoIndex");
    g.document.catalogue.medicareNoIndex = GetFormInfo(name, "MedicareNoIndex");
    g.document.catalogue.einIndex = GetFormInfo(name, "EINIndex");
    g.document.catalogue.otherInfo = GetFormInfo(name, "OtherInfo");
    keepNumber(GetFormInfo(name, "FocusOnStartup"), g.document.catalogue.focusOnStartup);
    keepNumber(GetFormInfo(name, "FocusAfterTPButton"), g.document.catalogue.focusAfterTaxpayerButton);
}

}  // namespace lw
