#pragma once
// Naming a document from its content, and writing it.

#include <string>

namespace lw {

// The proposed file name, or "Error K1"; fills FormRecord. FocusIndex names the field to return to.
std::string proposeFileName(int& FocusIndex);

// A file name that stays in its folder on Linux and Windows alike: / \ : * ? " < > | and control
// characters become "-".
std::string safeFileName(const std::string& name);
// The Save command.
void saveDataFile();

}  // namespace lw
