// The program's window. One source gives both editions; the executable's name tells them apart.
#include <QApplication>
#include <QFileInfo>
#include <cstdio>

#include "model/app_error.h"
#include "forms/register_forms.h"
#include "model/program.h"
#include "shell/frame_form.h"
#include "shell/frame_window_model.h"
#include "ui/frame_window.h"
#include "ui/qt_platform_port.h"
#include "ui/qt_ui_port.h"

namespace {

bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

}  // namespace

int main(int argc, char** argv) {
    if (!hasDisplay()) {
        std::fprintf(stderr,
                     "Ledgerwick needs a display and none is set; without a desktop run it as: xvfb-run -a %s\n",
                     argv[0]);
        return 1;
    }
    QApplication app(argc, argv);
    lw::ui::QtPlatformPort platform(argc, argv);
    lw::ui::QtUiPort ui;
    lw::Program program(ui, platform);
    lw::registerAllForms();
    try {
        lw::F0_MDI* frame = lw::loadFrame();
        if (!frame) return 0;
        lw::ui::FrameWindow window(*frame);
        ui.setFrameWindow(&window);
        window.setCloseHandler(lw::closeFrame);
        window.show();
        return app.exec();
    } catch (const lw::ProgramEnded&) {
        return 0;
    }
}
