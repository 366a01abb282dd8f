#pragma once
// Naming a document from its content, and writing it.

#include <optional>
#include <string>

namespace lw {

struct ProgramParts;

// The proposed file name of the document's form; fills its FormRecord. Nothing when the form lacks what
// a name or a record is made of: the operator has been told why. focusIndex names the field to return to.
std::optional<std::string> proposeFileName(const ProgramParts& parts, int& focusIndex);

// A file name that stays in its folder on Linux and Windows alike: / \ : * ? " < > | and control
// characters become "-".
std::string safeFileName(const std::string& name);
// The Save command.
void saveDataFile(const ProgramParts& parts);

}  // namespace lw
