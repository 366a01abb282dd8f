#include "script/script_command.h"

#include <fstream>
#include <iostream>

#include "script/script_runner.h"

namespace lw::script {

std::optional<std::string> scriptNameOf(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: ledgerwick-script FILE   (or - for standard input)\n";
        return std::nullopt;
    }
    return std::string(argv[1]);
}

int runScript(const std::string& name, const std::string& shippedFiles) {
    ScriptRunner runner(std::cout, shippedFiles);
    if (name == "-") return runner.run(std::cin);
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        std::cout << "ERROR line 0: cannot read " << name << "\n0 passed, 0 failed\n";
        return 2;
    }
    return runner.run(file);
}

}  // namespace lw::script
