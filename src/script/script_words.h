#pragma once
// The words of a script line: control names, text in the code page, and the usage of a command.

#include <stdexcept>
#include <string>
#include <vector>

#include "model/control.h"

namespace lw::script {

struct ScriptError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A script's UTF-8 text in the program's code page; a character the code page lacks is a script error.
std::string codePage(const std::string& utf8);
std::string utf8(const std::string& cp1252);
// Line ends shown as \r and \n, so that a failure stays on one line of the output.
std::string escapeLineEnds(const std::string& text);
// A text in double quotes with the escapes a script line reads back (\" \\ \r \n \t).
std::string quoted(const std::string& text);
std::string flag(bool value);
std::string number(double value);

// A control as a script names it: Text1(5), Text1(5).Text, labelMisc.Caption.
struct ControlReference {
    std::string name;
    int index = kNoIndex;
    std::string property;
};
ControlReference parseReference(const std::string& word);

// A command given fewer words than it needs is a script error that shows its usage.
void need(const std::vector<std::string>& words, std::size_t count, const char* usage);

}  // namespace lw::script
