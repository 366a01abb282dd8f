#include "shell/frame_window_model.h"

#include <memory>

#include "model/program.h"
#include "shell/frame_form.h"

namespace lw {

FrameForm* loadFrame() {
    Desktop& desktop = program().desktop;
    auto owned = std::make_unique<FrameForm>();
    FrameForm* frame = owned.get();
    desktop.setFrame(*frame);
    desktop.load(std::move(owned));
    return desktop.frame() == frame ? frame : nullptr;
}

void closeFrame() {
    Desktop& desktop = program().desktop;
    Form* frame = desktop.frame();
    if (!frame) return;
    bool cancel = false;
    desktop.dispatch([&] { frame->onQueryUnload(cancel); });
    for (Form* form : desktop.forms()) {
        if (form != frame) desktop.unload(*form);
    }
    desktop.unload(*frame);
    program().ui.quit();
}

}  // namespace lw
