#pragma once
// Naming a document from its content, and writing it.

#include <string>

namespace lw {

// The proposed file name, or "Error K1"; fills FormRecord. FocusIndex names the field to return to.
std::string Build_FileName(int& FocusIndex);
// The Save command.
void Save_File();

}  // namespace lw
