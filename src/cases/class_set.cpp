#include "cases/class_set.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

#include "cases/batched_disk.h"
#include "cases/case_documents.h"
#include "cases/dice.h"
#include "cases/household.h"
#include "cases/operator_script.h"
#include "config/rates.h"
#include "render/render_job.h"
#include "script/script_runner.h"
#include "store/atomic_file.h"
#include "store/file_bytes.h"
#include "store/inf_store.h"
#include "store/scratch_folder.h"

namespace lw::cases {

namespace {

namespace fs = std::filesystem;

constexpr int kMostCases = 500;

std::string caseName(int number, int count) {
    std::string digits = std::to_string(number);
    const std::size_t width = std::max<std::size_t>(2, std::to_string(count).size());
    return "case-" + std::string(width - std::min(width, digits.size()), '0') + digits;
}

bool canWriteInto(const std::string& folder) {
    std::error_code ec;
    fs::create_directories(folder, ec);
    if (!fs::is_directory(folder, ec)) return false;
    const fs::path probe = fs::path(folder) / ".ledgerwick-cases-probe";
    {
        std::ofstream out(probe);
        if (!(out << "x")) return false;
    }
    fs::remove(probe, ec);
    return true;
}

bool writeWhole(const fs::path& file, const std::string& content) {
    std::string error;
    return store::writeFileAtomically(file, content, error);
}

// The operator of each case sits down at a moment of its own, from 08:00 on the tax year's June 15, a
// minute and a second after the one before: the license numbers the forms stamp from the clock then
// differ from case to case.
std::string clockOfCase(int year, int number) {
    const int seconds = 8 * 3600 + (number - 1) * 61;
    char time[16];
    std::snprintf(time, sizeof time, "%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
    return std::to_string(year) + "-06-15 " + time;
}

// The page writer stamps a PDF with the moment it wrote it; the case's own clock stands there instead, in
// a stamp as long as the one it replaces, so that the same seed makes the same case.pdf.
bool stampWithClock(const fs::path& pdf, const std::string& clock) {
    std::string bytes;
    if (!store::readFileBytes(pdf, bytes)) return false;
    const std::string key = "/CreationDate (D:";
    const std::size_t at = bytes.rfind(key);
    const std::size_t end = at == std::string::npos ? at : bytes.find(')', at);
    if (end == std::string::npos) return true;
    std::string stamp;
    for (char c : clock)
        if (c >= '0' && c <= '9') stamp += c;
    // The written stamp ends in its zone: Z for universal time, or an offset such as +01'00'.
    const std::size_t from = at + key.size();
    stamp += end - from == stamp.size() + 1 ? "Z" : "+00'00'";
    if (stamp.size() != end - from) return true;
    bytes.replace(from, stamp.size(), stamp);
    return writeWhole(pdf, bytes);
}

// The boxes, reports and failed checks of a played script: what a trainer needs of its output.
std::string whatWentWrong(const std::string& played) {
    std::istringstream lines(played);
    std::string line, told;
    while (std::getline(lines, line))
        for (const char* start : {"box ", "report ", "FAIL ", "ERROR "})
            if (line.rfind(start, 0) == 0) told += "  " + line + "\n";
    return told.empty() ? played : told;
}

}  // namespace

std::string userRootFolder() {
    if (const char* root = std::getenv("LEDGERWICK_ROOT"); root && *root) return root;
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data)
        return std::string(data) + "/ledgerwick";
    const char* home = std::getenv("HOME");
    return std::string(home ? home : ".") + "/.local/share/ledgerwick";
}

std::string profileFileFor(const std::string& shippedFolder, const std::string& userRoot) {
    const fs::path own = fs::path(userRoot) / "LedgerwickInfFiles" / "CaseProfiles.inf";
    std::error_code ec;
    if (!userRoot.empty() && fs::is_regular_file(own, ec)) return own.string();
    return (fs::path(shippedFolder) / "CaseProfiles.inf").string();
}

ClassSet::ClassSet(ClassSetOptions options, std::string shippedFolder, std::string userRoot)
    : options_(std::move(options)), shippedFolder_(std::move(shippedFolder)) {
    if (options_.count < 1 || options_.count > kMostCases)
        throw ClassSetRefused{"the count must be a number from 1 to " + std::to_string(kMostCases)};
    if (options_.edition != "Venturo" && options_.edition != "OthAgcy")
        throw ClassSetRefused{"the edition must be Venturo or OthAgcy"};
    profileFile_ = profileFileFor(shippedFolder_, userRoot);
    try {
        lists_ = readCaseLists((fs::path(shippedFolder_) / "CaseLists.inf").string());
        profiles_ = readProfiles(profileFile_);
    } catch (const std::exception& e) {
        throw ClassSetRefused{e.what()};
    }
    for (const std::string& name : options_.profiles) {
        const Profile* found = nullptr;
        for (const Profile& profile : profiles_)
            if (profile.name == name) found = &profile;
        if (!found) {
            std::string known;
            for (const Profile& profile : profiles_) known += (known.empty() ? "" : ", ") + profile.name;
            throw ClassSetRefused{"there is no profile \"" + name + "\" (the profiles are " + known + ")"};
        }
        chosen_.push_back(found);
    }
    if (chosen_.empty())
        for (const Profile& profile : profiles_) chosen_.push_back(&profile);
    const std::string ssmc = (fs::path(shippedFolder_) / "SSMC.inf").string();
    const std::string year = std::to_string(options_.year);
    const Rates rates = readYearRates(year, ssmc, FilingStatus::NotChosen);
    const std::optional<text::Currency> base = rates.socialSecurityWageBase.value();
    if (options_.year < 1900 || options_.year > 2999 || !base || rates.socialSecurityRate.text().empty())
        throw ClassSetRefused{"there are no Social Security and Medicare figures for the year " + year +
                              " in " + ssmc};
    // Whole dollars, the cents cut off.
    socialSecurityMax_ = base->raw() / text::Currency::kScale;
    if (store::ScratchFolder("ledgerwick-cases").path().empty())
        throw ClassSetRefused{"no temporary folder can be made (see TMPDIR) for the program to work in"};
    if (options_.out.empty() || !canWriteInto(options_.out))
        throw ClassSetRefused{"the folder \"" + options_.out + "\" cannot be written"};
}

std::string ClassSet::executableName() const { return "Ledgerwick_" + options_.edition; }
std::string ClassSet::extension() const { return options_.edition == "Venturo" ? ".venturo" : ".taxForm"; }

const Profile& ClassSet::profileOfCase(int number) const {
    // One profile asked for, or several in turn, so a mixed set holds every kind evenly.
    return *chosen_[static_cast<std::size_t>(number - 1) % chosen_.size()];
}

int ClassSet::make(std::ostream& log, const std::function<void(int, int)>& progress) {
    int failed = 0;
    answers_.clear();
    const fs::path out(options_.out);
    // The key of an earlier set in this folder would not fit the cases made now, should this set stop
    // half way: it goes first, and the new key comes when every case is made.
    std::error_code gone;
    fs::remove(out / "answers.csv", gone);
    fs::remove(out / "answers.md", gone);
    // Cases half made by a set that was stopped are no cases.
    for (const auto& entry : fs::directory_iterator(out, gone)) {
        const std::string name = entry.path().filename().string();
        if (name.rfind("case-", 0) == 0 && entry.path().extension() == ".partial")
            fs::remove_all(entry.path(), gone);
    }
    {
        BatchedDisk batched;
        for (int number = 1; number <= options_.count; ++number) {
            if (!makeCase(number, log)) ++failed;
            if (progress) progress(number, options_.count);
        }
    }
    if (!BatchedDisk::syncAllUnder(out)) {
        log << "ledgerwick-cases: the cases could not be put on the disk under " << options_.out << "\n";
        ++failed;
    }
    if (!writeWhole(out / "answers.csv", answersCsv(answers_)) ||
        !writeWhole(out / "answers.md", answersMarkdown(answers_, options_.year))) {
        log << "ledgerwick-cases: the answer key could not be written into " << options_.out << "\n";
        ++failed;
    }
    return failed;
}

bool ClassSet::makeCase(int number, std::ostream& log) {
    const std::string name = caseName(number, options_.count);
    const fs::path finished = fs::path(options_.out) / name;
    const fs::path staging = fs::path(options_.out) / (name + ".partial");
    std::error_code ec;
    fs::remove_all(staging, ec);
    fs::create_directories(staging, ec);
    auto giveUp = [&](const std::string& why) {
        log << "ledgerwick-cases: " << name << " was not made: " << why << "\n";
        fs::remove_all(staging, ec);
        return false;
    };
    if (ec) return giveUp("its folder cannot be made");

    const std::uint64_t seed = caseSeed(options_.seed, number);
    Dice dice(seed);
    const Profile& profile = profileOfCase(number);
    const Household household = makeHousehold(profile, options_.year, lists_, dice);

    store::ScratchFolder disk("ledgerwick-cases");
    if (disk.path().empty()) return giveUp("no temporary folder");
    const std::string clock = clockOfCase(options_.year, number);
    OperatorScript script(disk.path(), clock, executableName());
    CaseWriting writing{household, lists_, dice, script, staging.string(), socialSecurityMax_};
    writeTaxpayerSheet(writing);
    for (const DocumentRule& rule : profile.documents) {
        const long long count =
            std::min(dice.between(rule.count.lo, rule.count.hi), mostDocuments(rule.kind, household));
        for (int i = 0; i < count; ++i) writeDocument(writing, rule, i);
    }
    std::ostringstream played;
    int status = 0;
    {
        // One program runs in a process at a time: this one ends before the pages are drawn.
        std::istringstream input(script.text());
        script::ScriptRunner runner(played, shippedFolder_);
        status = runner.run(input);
    }
    if (status != 0 || played.str().find("\nreport ") != std::string::npos)
        return giveUp("the program did not take its documents as written:\n" + whatWentWrong(played.str()));

    if (options_.pdf) {
        render::RenderOptions pages;
        pages.edition = executableName();
        pages.year = options_.year;
        pages.pdf = (staging / "case.pdf").string();
        for (const auto& entry : fs::directory_iterator(staging))
            if (entry.path().extension() == extension()) pages.files.push_back(entry.path().string());
        std::sort(pages.files.begin(), pages.files.end());
        // The taxpayer sheet leads the case, as a trainer hands it out.
        std::stable_partition(pages.files.begin(), pages.files.end(), [](const std::string& file) {
            return fs::path(file).filename().string().find("_TPINFO_") != std::string::npos;
        });
        std::ostringstream quiet, trouble;
        if (render::renderDocuments(pages, shippedFolder_, quiet, trouble) != 0)
            return giveUp("its pages could not be drawn: " + trouble.str());
        if (!stampWithClock(pages.pdf, clock)) return giveUp("its case.pdf could not be written");
    }
    CaseAnswers answers;
    try {
        answers = readCaseAnswers(staging.string(), extension());
    } catch (const std::exception& e) {
        return giveUp(e.what());
    }
    answers.caseName = name;
    answers.profile = profile.name;
    answers.filingStatus = household.filingStatus();
    // A case made before under the same name gives way only to a whole new one.
    fs::remove_all(finished, ec);
    fs::rename(staging, finished, ec);
    if (ec) return giveUp("it could not be moved into place");
    answers_.push_back(answers);
    return true;
}

}  // namespace lw::cases
