// The program's window. One source gives both editions; the executable's name tells them apart.
#include <QApplication>
#include <cstdio>

#include "app/window_program.h"

namespace {

bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

}  // namespace

int main(int argc, char** argv) {
    if (!hasDisplay()) {
        std::fprintf(
            stderr,
            "Ledgerwick needs a display and none is set; without a desktop run it as: xvfb-run -a %s\n",
            argv[0]);
        return 1;
    }
    QApplication app(argc, argv);
    return lw::ui::runWindowProgram(argc, argv);
}
