#pragma once
// Start-up of the program, run by the frame's Load.

#include <string>

namespace lw {

class F0_MDI;

void Frame_Form_Load(F0_MDI& frame);
void MDI_Setup(F0_MDI& frame);
void MDI_Setup_Common();
void MDI_Setup_TaxFormsFolder(F0_MDI& frame);
void SaveInfFolders(const std::string& InfFile, const std::string& DefaultFolder);
// Opens the configuration form as the first child, where the program has it.
void openFirstChild(F0_MDI& frame);

// The user INF file, in the section of the user.
std::string readUserInf(const std::string& key);
void writeUserInf(const std::string& key, const std::string& value);

}  // namespace lw
