#pragma once
// Bringing the frame up and down: the same for the window and the script runner.

namespace lw {

class FrameForm;

// Creates the frame, makes it the desktop's frame and runs its start-up. Returns null when the program ended.
FrameForm* loadFrame();
// The close box of the frame: every form is asked and unloaded, and the program ends.
void closeFrame();

}  // namespace lw
