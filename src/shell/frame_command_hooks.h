#pragma once
// Commands of the frame that other parts of the program carry out: files, taxpayer fills, printing
// and clipping. A command whose part is not in the program is offered disabled.

#include <functional>
#include <string>

namespace lw {

class Form;
struct ProgramParts;

// Each command is handed the parts of the program it works on.
struct FrameCommandHooks {
    std::function<void(const ProgramParts&)> openFile;
    std::function<void(const ProgramParts&)> saveFile;
    std::function<void(const ProgramParts&, const std::string& which)> loadTaxpayer;  // "TP 1" or "TP 2"
    std::function<void(const ProgramParts&)> screenClip;
    std::function<void(const ProgramParts&, Form&)> printForm;
    std::function<void(const ProgramParts&)> mdiClip;
};

FrameCommandHooks& frameCommandHooks();

}  // namespace lw
