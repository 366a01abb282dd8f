#include "catalogue/form_info.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "model/program.h"
#include "store/inf_store.h"
#include "text/number.h"
#include "text/pieces.h"

namespace lw {

std::string readFormInfo(const std::string& sectionName, const std::string& key) {
    std::string section = sectionName;
    if (sectionName != "SS_ITIN") {
        std::size_t underscore = sectionName.find('_');
        section = underscore == std::string::npos ? sectionName : sectionName.substr(underscore + 1);
        section.erase(std::remove(section.begin(), section.end(), '-'), section.end());
    }
    return store::readInfValue(section, key, "", program().g.edition.formsInfFile);
}

std::optional<int> firstFieldIndex(const std::string& list) {
    const std::vector<std::string> pieces = text::split(list, ",");
    if (pieces.empty() || !text::isNumeric(pieces[0])) return std::nullopt;
    return static_cast<int>(*text::toDouble(pieces[0]));
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
    g.document.catalogue.formTitle = readFormInfo(name, "FormName");
    g.document.catalogue.recordPrefix = readFormInfo(name, "RecordPrefix");
    g.document.catalogue.ssnIndex = readFormInfo(name, "SSNIndex");
    g.document.catalogue.nameAddrIndex = readFormInfo(name, "NameAddrIndex");
    g.document.catalogue.nameOnlyIndex = readFormInfo(name, "NameOnlyIndex");
    g.document.catalogue.dobIndex = readFormInfo(name, "DOBIndex");
    g.document.catalogue.medicareClaimNoIndex = readFormInfo(name, "MedicareClaimNoIndex");
    g.document.catalogue.medicareNoIndex = readFormInfo(name, "MedicareNoIndex");
    g.document.catalogue.einIndex = readFormInfo(name, "EINIndex");
    g.document.catalogue.otherInfo = readFormInfo(name, "OtherInfo");
    keepNumber(readFormInfo(name, "FocusOnStartup"), g.document.catalogue.focusOnStartup);
    keepNumber(readFormInfo(name, "FocusAfterTPButton"), g.document.catalogue.focusAfterTaxpayerButton);
}

}  // namespace lw
