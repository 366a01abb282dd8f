#include "app/window_program.h"

#include <malloc.h>

#include <QApplication>
#include <memory>

#include "forms/register_forms.h"
#include "model/app_error.h"
#include "model/program.h"
#include "shell/frame_window_model.h"
#include "ui/frame_window.h"
#include "ui/qt_platform_port.h"
#include "ui/qt_ui_port.h"

namespace lw::ui {

namespace {
constexpr int kLargeBlock = 128 * 1024;
}  // namespace

int runWindowProgram(int argc, char** argv, const WindowProgramWatch& watch) {
    // Large blocks (a form's picture, the window's backing store) go back to the system when freed rather
    // than into a heap that only grows as forms of every size are opened.
    mallopt(M_MMAP_THRESHOLD, kLargeBlock);
    QtPlatformPort platform(argc, argv);
    QtUiPort ui;
    Program program(ui, platform);
    registerAllForms();
    std::unique_ptr<FrameWindow> window;
    auto showFrameWindow = [&] {
        Form* frame = program.desktop.frame();
        if (window || !frame) return;
        window = std::make_unique<FrameWindow>(*frame);
        ui.setFrameWindow(window.get());
        window->setCloseHandler(closeFrame);
        window->show();
        if (watch.frameShown) watch.frameShown(*window, platform);
    };
    // The frame shows with its first child form, while the last waits of the start-up pass.
    ui.makeFrameWindowWith(showFrameWindow);
    try {
        if (!loadFrame()) return 0;
        showFrameWindow();
        if (watch.started && !watch.started(*window, platform, ui)) return 0;
        return QApplication::exec();
    } catch (const ProgramEnded&) {
        return 0;
    }
}

}  // namespace lw::ui
