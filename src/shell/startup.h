#pragma once
// Start-up of the program, run by the frame's Load.

#include <string>

namespace lw {

class FrameForm;
struct ProgramParts;

void onFrameLoad(FrameForm& frame);
void setUpFrame(FrameForm& frame);
void setUpInfFilePaths();
void setUpTaxFormsFolder(FrameForm& frame);
void saveRememberedFolders(const std::string& infFile, const std::string& defaultFolder);
// Opens the configuration form as the first child, where the program has it.
void openFirstChild(FrameForm& frame);

// The user INF file, in the section of the user.
std::string readUserInf(const std::string& key);
void writeUserInf(const std::string& key, const std::string& value);
// The same, for a procedure handed the parts it works with: the user's name and the edition's file.
std::string readUserInf(const ProgramParts& parts, const std::string& key);
void writeUserInf(const ProgramParts& parts, const std::string& key, const std::string& value);

}  // namespace lw
