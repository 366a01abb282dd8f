#pragma once
// The user's own section of the user INF file: where the dialogs remember their folders and the program
// keeps the operator's printer, file name template, tax year and the people of the case.

#include <string>

namespace lw {

struct EditionSettings;
struct ProcessState;
struct ProgramParts;

struct UserInfSection {
    std::string file;
    std::string user;  // the section's name: the user's name in capitals

    std::string read(const std::string& key) const;
    void write(const std::string& key, const std::string& value) const;
};

UserInfSection userInfSectionOf(const EditionSettings& edition, const ProcessState& process);

// The same, for a procedure handed the parts it works with.
std::string readUserInf(const ProgramParts& parts, const std::string& key);
void writeUserInf(const ProgramParts& parts, const std::string& key, const std::string& value);

}  // namespace lw
