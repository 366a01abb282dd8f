#pragma once
// The one place that asks the operator for a path, and remembers the folder used.

#include <string>

namespace lw {

// SaveMode 0 opens, any other saves; FileName is the name proposed in save mode. Returns the full path,
// or "·" (the byte 0xB7) when the operator cancels.
std::string chooseFileToOpenOrSave(int SaveMode, const std::string& FileName);

// Runs just before each dialog. sKind "Open" (any case) or "save" (any case): the remembered folder of
// that dialog is emptied in the user INF file when it no longer exists. Any other kind is a program
// error, logged.
void verifyRememberedFolder(const std::string& sKind);

}  // namespace lw
