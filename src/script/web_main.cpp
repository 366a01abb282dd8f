// ledgerwick-script compiled to WebAssembly and run by Node: the same runner with no Qt and no painter,
// reading and writing the machine's own files.
#include "headless/headless_program.h"
#include "script/script_command.h"

int main(int argc, char** argv) {
    const auto name = lw::script::scriptNameOf(argc, argv);
    if (!name) return 2;
    return lw::script::runScript(*name, lw::headless::shippedFilesOf(argv[0]));
}
