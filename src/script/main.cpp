// ledgerwick-script: runs the program with no window on the screen and plays an operator from a script.
#include <QApplication>

#include "headless/headless_program.h"
#include "script/script_command.h"

int main(int argc, char** argv) {
    const auto name = lw::script::scriptNameOf(argc, argv);
    if (!name) return 2;
    // Pictures for the clipboard are drawn off-screen; no display is needed.
    lw::headless::prepareHeadlessQt();
    QApplication app(argc, argv);
    return lw::script::runScript(*name, lw::headless::shippedFilesOf(argv[0]));
}
