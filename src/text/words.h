#pragma once
// A line cut into words: blanks separate, double quotes group, backslash escapes inside quotes.
// Scripts and the drawings of the forms are written in such lines.

#include <stdexcept>
#include <string>
#include <vector>

namespace lw::text {

struct WordsError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The words of one line. A line that is blank or starts with # gives no words.
std::vector<std::string> splitWords(const std::string& line);

}  // namespace lw::text
