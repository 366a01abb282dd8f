#pragma once
// The runner's command line, shared by its native and WebAssembly builds: one script file, or "-" for
// standard input; the exit status is the script's.

#include <optional>
#include <string>

namespace lw::script {

// The script named on the command line; with any other number of arguments, the usage on standard error
// and nothing.
std::optional<std::string> scriptNameOf(int argc, char** argv);
// Plays the script and returns the exit status: 0 all held, 1 a check failed, 2 the script cannot run.
int runScript(const std::string& name, const std::string& shippedFiles);

}  // namespace lw::script
