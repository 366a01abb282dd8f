#pragma once
// The window program from start to end: the ports, the forms, the frame's start-up with its window
// shown as soon as the first form is, and Qt's event loop. Both editions run it; the window bench runs
// it too, watching what the operator sees.

#include <functional>

namespace lw::ui {

class FrameWindow;
class QtPlatformPort;
class QtUiPort;

struct WindowProgramWatch {
    // Called once the frame window is on the screen, before the rest of the start-up runs.
    std::function<void(FrameWindow&, QtPlatformPort&)> frameShown;
    // Called once the start-up is over and the event loop is about to run; return false to end there.
    std::function<bool(FrameWindow&, QtPlatformPort&, QtUiPort&)> started;
};

// Needs a QApplication. Returns the process's exit status.
int runWindowProgram(int argc, char** argv, const WindowProgramWatch& watch = {});

}  // namespace lw::ui
