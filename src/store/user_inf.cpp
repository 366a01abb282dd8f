#include "store/user_inf.h"

#include "model/edition_settings.h"
#include "model/process_state.h"
#include "model/program_parts.h"
#include "store/inf_store.h"

namespace lw {

std::string UserInfSection::read(const std::string& key) const {
    return store::readInfValue(user, key, "", file);
}

void UserInfSection::write(const std::string& key, const std::string& value) const {
    store::writeInfValue(user, key, value, file);
}

UserInfSection userInfSectionOf(const EditionSettings& edition, const ProcessState& process) {
    return {edition.userInfFile, process.userNameUpper};
}

std::string readUserInf(const ProgramParts& parts, const std::string& key) {
    return userInfSectionOf(parts.edition, parts.process).read(key);
}

void writeUserInf(const ProgramParts& parts, const std::string& key, const std::string& value) {
    userInfSectionOf(parts.edition, parts.process).write(key, value);
}

}  // namespace lw
