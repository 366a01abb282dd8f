// The program-wide values that `expect global` reads, by the names the program knows them by.
#include <cctype>
#include <functional>
#include <map>

#include "model/program.h"
#include "script/script_runner.h"
#include "script/script_words.h"
#include "shell/frame_form.h"
#include "text/case.h"

namespace lw::script {

namespace {

using ReadGlobal = std::function<std::string(const Globals&)>;
using ReadFrame = std::function<std::string(const FrameForm&)>;

struct NoCase {
    bool operator()(const std::string& a, const std::string& b) const {
        return text::toUpper(a) < text::toUpper(b);
    }
};

std::string shownFilter(std::string filter) {
    for (char& c : filter)
        if (c == '\0') c = '|';
    return utf8(filter);
}

const std::map<std::string, ReadGlobal, NoCase>& stateValues() {
    static const std::map<std::string, ReadGlobal, NoCase> values{
        {"FormKey", [](const Globals& g) { return utf8(g.document.formKey); }},
        {"CurrentFileName", [](const Globals& g) { return utf8(g.document.currentFileName); }},
        {"CurrentForm",
         [](const Globals& g) { return g.document.currentForm ? g.document.currentForm->name() : ""; }},
        {"FormRecord", [](const Globals& g) { return utf8(g.document.formRecord); }},
        {"LastFieldKey", [](const Globals& g) { return utf8(g.document.lastFieldKey); }},
        {"SaveResult",
         [](const Globals& g) {
             const std::optional<SaveOutcome>& outcome = g.document.lastSaveOutcome;
             return outcome ? std::to_string(static_cast<int>(*outcome)) : std::string();
         }},
        {"TaxYearIndex", [](const Globals& g) { return std::to_string(g.taxYear.index()); }},
        {"SSRate", [](const Globals& g) { return utf8(g.rates.socialSecurityRate.text()); }},
        {"SSMax", [](const Globals& g) { return utf8(g.rates.socialSecurityWageBase.text()); }},
        {"MCInitRate", [](const Globals& g) { return utf8(g.rates.medicareRate.text()); }},
        {"MCChgRateAfter", [](const Globals& g) { return utf8(g.rates.medicareChangePoint.text()); }},
        {"MCRateAfter", [](const Globals& g) { return utf8(g.rates.medicareRateAfter.text()); }},
        {"MCPartBPremium", [](const Globals& g) { return utf8(g.rates.partBPremium.text()); }},
        {"MCPartBIncome", [](const Globals& g) { return utf8(g.rates.partBIncomeLimit.text()); }},
        {"FilingStatus",
         [](const Globals& g) { return std::string(filingStatusWord(g.rates.filingStatus)); }},
        {"UserNameUC", [](const Globals& g) { return utf8(g.process.userNameUpper); }},
        {"ComputerNameUC", [](const Globals& g) { return utf8(g.process.computerNameUpper); }},
        {"CommandWords", [](const Globals& g) { return utf8(g.process.commandWords); }},
        {"bDebug", [](const Globals& g) { return flag(g.process.debug); }},
        {"bStartup", [](const Globals& g) { return flag(g.process.starting); }},
        {"bQuitting", [](const Globals& g) { return flag(g.process.quitting); }},
        {"UserInfFile", [](const Globals& g) { return utf8(g.edition.userInfFile); }},
        {"FormsInfFile", [](const Globals& g) { return utf8(g.edition.formsInfFile); }},
        {"SSMCInfFile", [](const Globals& g) { return utf8(g.edition.ssmcInfFile); }},
        {"K1HelpInfFile", [](const Globals& g) { return utf8(g.edition.k1HelpInfFile); }},
        {"PicturesFolder", [](const Globals& g) { return utf8(g.edition.picturesFolder); }},
        {"UserGuideFile", [](const Globals& g) { return utf8(g.edition.userGuideFile); }},
        {"FileExtension", [](const Globals& g) { return utf8(g.edition.fileExtension); }},
        {"FileFilter", [](const Globals& g) { return shownFilter(g.edition.fileFilter); }},
        {"LastOpenFolder", [](const Globals& g) { return utf8(g.choices.lastOpenFolder); }},
        {"LastSaveFolder", [](const Globals& g) { return utf8(g.choices.lastSaveFolder); }},
    };
    return values;
}

// What the frame itself keeps.
const std::map<std::string, ReadFrame, NoCase>& frameValues() {
    static const std::map<std::string, ReadFrame, NoCase> values{
        {"VersionMajor", [](const FrameForm& f) { return f.versionMajor; }},
        {"VersionFull", [](const FrameForm& f) { return f.versionFull; }},
        {"TaxFormsFolder", [](const FrameForm& f) { return utf8(f.taxFormsFolder); }},
        {"IconFile", [](const FrameForm& f) { return utf8(f.iconFile); }},
        {"DevAppFolder", [](const FrameForm& f) { return utf8(f.devAppFolder); }},
        {"DevSharedFolder", [](const FrameForm& f) { return utf8(f.devSharedFolder); }},
        {"FrameCaption", [](const FrameForm& f) { return utf8(f.caption); }},
        {"bTaskbarHidden", [](const FrameForm& f) { return flag(f.taskbarHidden); }},
    };
    return values;
}

// The digit between the brackets of NAME(d), when NAME( starts the name; -1 when it is not such a name.
int indexIn(const std::string& name, const std::string& array, char highest) {
    const std::string head = array + "(";
    if (!text::startsWithNoCase(name, head) || name.back() != ')') return -1;
    const std::string digits = name.substr(head.size(), name.size() - head.size() - 1);
    if (digits.size() != 1 || digits[0] < '0' || digits[0] > highest)
        throw ScriptError("bad index in " + name);
    return digits[0] - '0';
}

}  // namespace

std::string ScriptRunner::global(const std::string& name) const {
    const Globals& g = program_->g;
    if (const int slot = indexIn(name, "TaxYears", '3'); slot >= 0)
        return utf8(g.taxYear.textOf(static_cast<TaxYearChoice::Slot>(slot)));
    if (const int colour = indexIn(name, "LegendColors", '9'); colour >= 0)
        return std::to_string(g.edition.legendColors[static_cast<std::size_t>(colour)]);
    if (auto found = stateValues().find(name); found != stateValues().end()) return found->second(g);
    if (auto* frame = dynamic_cast<FrameForm*>(program_->desktop.frame()))
        if (auto found = frameValues().find(name); found != frameValues().end()) return found->second(*frame);
    throw ScriptError("unknown global " + name);
}

}  // namespace lw::script
