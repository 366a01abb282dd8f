#pragma once
// A script line cut into words: blanks separate, double quotes group, backslash escapes inside quotes.

#include <stdexcept>
#include <string>
#include <vector>

namespace lw::script {

struct SyntaxError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Words of one line, as UTF-8. A line that is blank or a comment gives no words.
std::vector<std::string> splitWords(const std::string& line);

}  // namespace lw::script
