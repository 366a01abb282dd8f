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


}  // namespace lw
