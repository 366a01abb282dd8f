#include "catalogue/form_info.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "model/form.h"
#include "model/open_document.h"
#include "store/inf_store.h"
#include "text/number.h"
#include "text/pieces.h"

namespace lw {

std::string readFormInfo(const std::string& sectionName, const std::string& key,
                         const std::string& formsInfFile) {
    std::string section = sectionName;
    if (sectionName != "SS_ITIN") {
        std::size_t underscore = sectionName.find('_');
        section = underscore == std::string::npos ? sectionName : sectionName.substr(underscore + 1);
        section.erase(std::remove(section.begin(), section.end(), '-'), section.end());
    }
    return store::readInfValue(section, key, "", formsInfFile);
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

void loadFormInfo(OpenDocument& document, const std::string& formsInfFile) {
    const std::string name = document.currentForm ? document.currentForm->name() : std::string();
    CatalogueValues& values = document.catalogue;
    auto read = [&](const char* key) { return readFormInfo(name, key, formsInfFile); };
    values.formTitle = read("FormName");
    values.recordPrefix = read("RecordPrefix");
    values.ssnIndex = read("SSNIndex");
    values.nameAddrIndex = read("NameAddrIndex");
    values.nameOnlyIndex = read("NameOnlyIndex");
    values.dobIndex = read("DOBIndex");
    values.medicareClaimNoIndex = read("MedicareClaimNoIndex");
    values.medicareNoIndex = read("MedicareNoIndex");
    values.einIndex = read("EINIndex");
    values.otherInfo = read("OtherInfo");
    keepNumber(read("FocusOnStartup"), values.focusOnStartup);
    keepNumber(read("FocusAfterTPButton"), values.focusAfterTaxpayerButton);
}

}  // namespace lw
