#pragma once
// A class set: cases made one after another into a folder, each complete or absent, then the answer key.

#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cases/answer_key.h"
#include "cases/case_lists.h"
#include "cases/case_profiles.h"

namespace lw::cases {

struct ClassSetOptions {
    int count = 0;
    std::uint64_t seed = 0;
    int year = 0;
    std::string out;
    std::vector<std::string> profiles;  // empty: every profile, in turn
    std::string edition = "Venturo";    // or OthAgcy
    bool pdf = false;
};

// Why a class set cannot be made; its text is the message for the trainer.
struct ClassSetRefused {
    std::string why;
};

class ClassSet {
public:
    // Reads the lists and profiles (the trainer's own CaseProfiles.inf under `userRoot` first) and checks
    // the options. Throws ClassSetRefused for a count out of range, an unknown profile, a year without
    // figures, a folder that cannot be written, or a list or profile file that cannot be read.
    ClassSet(ClassSetOptions options, std::string shippedFolder, std::string userRoot);

    // Makes every case; `progress` hears after each (number, count). Returns the number of cases that
    // failed; each failure is told on `log`.
    int make(std::ostream& log, const std::function<void(int, int)>& progress = {});

    const std::vector<Profile>& profiles() const { return profiles_; }
    std::string profileFile() const { return profileFile_; }

private:
    bool makeCase(int number, std::ostream& log);
    const Profile& profileOfCase(int number) const;
    std::string executableName() const;
    std::string extension() const;

    ClassSetOptions options_;
    std::string shippedFolder_;
    std::string profileFile_;
    CaseLists lists_;
    std::vector<Profile> profiles_;
    std::vector<const Profile*> chosen_;
    long long socialSecurityMax_ = 0;
    std::vector<CaseAnswers> answers_;
};

// The profile file in force: the trainer's copy in <root>/LedgerwickInfFiles when there is one.
std::string profileFileFor(const std::string& shippedFolder, const std::string& userRoot);
// The user's folder as the program has it: $LEDGERWICK_ROOT, else $XDG_DATA_HOME/ledgerwick, else
// ~/.local/share/ledgerwick.
std::string userRootFolder();

}  // namespace lw::cases
