#pragma once
// The one place that asks the operator for a path, and remembers the folder used.

#include <optional>
#include <string>

#include "store/user_inf.h"

namespace lw {

struct ProgramParts;

enum class FileDialogMode { Open, Save };

// Asks for a path; fileName is the name proposed in save mode. Returns the full path, or nothing when
// the operator cancels. A fault is logged and gives an empty path, which the write or read then refuses.
// A folder other than the one the dialog started in is remembered in the user INF file and the choices.
std::optional<std::string> chooseFileToOpenOrSave(const ProgramParts& parts, FileDialogMode mode,
                                                  const std::string& fileName);

// Runs just before each dialog: the remembered folder of that dialog is emptied in the user INF file
// when it no longer exists.
void verifyRememberedFolder(FileDialogMode mode, const UserInfSection& userInf);

}  // namespace lw
