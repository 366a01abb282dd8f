// ledgerwick-script: runs the program with no window on the screen and plays an operator from a script.
#include <QApplication>
#include <fstream>
#include <iostream>

#include "script/headless_program.h"
#include "script/script_runner.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: ledgerwick-script FILE   (or - for standard input)\n";
        return 2;
    }
    // Pictures for the clipboard are drawn off-screen; no display is needed.
    lw::script::prepareHeadlessQt();
    QApplication app(argc, argv);
    lw::script::ScriptRunner runner(std::cout, lw::script::shippedFilesOf(argv[0]));
    std::string name = argv[1];
    if (name == "-") return runner.run(std::cin);
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        std::cout << "ERROR line 0: cannot read " << name << "\n0 passed, 0 failed\n";
        return 2;
    }
    return runner.run(file);
}
