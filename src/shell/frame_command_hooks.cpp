#include "shell/frame_command_hooks.h"

namespace lw {

FrameCommandHooks& frameCommandHooks() {
    static FrameCommandHooks hooks;
    return hooks;
}

}  // namespace lw
