#pragma once
// Commands of the frame that other parts of the program carry out: files, taxpayer fills, printing
// and clipping. A command whose part is not in the program is offered disabled.

#include <functional>
#include <string>

namespace lw {

class Form;
struct ProgramParts;

struct FrameCommandHooks {
    std::function<void()> openFile;
    std::function<void()> saveFile;
    std::function<void(const ProgramParts&, const std::string& which)> loadTaxpayer;  // "TP 1" or "TP 2"
    std::function<void()> screenClip;
    std::function<void(Form&)> printForm;
    std::function<void()> mdiClip;
};

FrameCommandHooks& frameCommandHooks();

}  // namespace lw
