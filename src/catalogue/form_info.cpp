#include "catalogue/form_info.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "model/program.h"
#include "store/inf_store.h"
#include "text/number.h"
#include "text/pieces.h"

namespace lw {

std::string GetFormInfo(const std::string& Section, const std::string& Key) {
    std::string section = Section;
    if (Section != "SS_ITIN") {
        std::size_t underscore = Section.find('_');
        section = underscore == std::string::npos ? Section : Section.substr(underscore + 1);
        section.erase(std::remove(section.begin(), section.end(), '-'), section.end());
    }
    return store::ReadINF(section, Key, "", program().g.FormsInfFile);
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
    const std::string name = g.CurrentForm ? g.CurrentForm->name() : std::string();
    g.FormTitle = GetFormInfo(name, "FormName");
    g.RecordPrefix = GetFormInfo(name, "RecordPrefix");
    g.SSNIndex = GetFormInfo(name, "SSNIndex");
    g.NameAddrIndex = GetFormInfo(name, "NameAddrIndex");
    g.NameOnlyIndex = GetFormInfo(name, "NameOnlyIndex");
    g.DOBIndex = GetFormInfo(name, "DOBIndex");
    g.MedicareClaimNoIndex = GetFormInfo(name, "MedicareClaimNoIndex");
    g.MedicareNoIndex = GetFormInfo(name, "MedicareNoIndex");
    g.EINIndex = GetFormInfo(name, "EINIndex");
    g.OtherInfo = GetFormInfo(name, "OtherInfo");
    keepNumber(GetFormInfo(name, "FocusOnStartup"), g.FocusOnStartup);
    keepNumber(GetFormInfo(name, "FocusAfterTPButton"), g.FocusAfterTPButton);
}

}  // namespace lw
