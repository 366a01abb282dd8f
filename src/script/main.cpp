// ledgerwick-script: runs the program with no window on the screen and plays an operator from a script.
#include <QApplication>
#include <QFileInfo>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <iostream>

#include "script/script_runner.h"
#include "shell/paths.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: ledgerwick-script FILE   (or - for standard input)\n";
        return 2;
    }
    // Pictures for the clipboard are drawn off-screen; no display is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        // Qt wants a private runtime folder; a script run on a bare machine gets one of its own.
        std::string runtime = "/tmp/ledgerwick-runtime-" + std::to_string(getuid());
        mkdir(runtime.c_str(), 0700);
        qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(runtime));
    }
    QApplication app(argc, argv);
    std::string folder =
        lw::shippedFilesFolder(QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath().toStdString());
    lw::script::ScriptRunner runner(std::cout, folder);
    std::string name = argv[1];
    if (name == "-") return runner.run(std::cin);
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        std::cout << "ERROR line 0: cannot read " << name << "\n0 passed, 0 failed\n";
        return 2;
    }
    return runner.run(file);
}
