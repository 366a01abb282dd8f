#pragma once
// The frame's status line at the foot of the page: a refused input is told there for a few seconds, as
// the window's status bar tells it.

#include <string>

namespace lw::web {

// Shows the text (UTF-8) in the status line until a newer one, or until it has stood for a while.
void showStatus(const std::string& utf8);
// Shows the text until a newer one: what stays true, such as the end of the program.
void showLastingStatus(const std::string& utf8);

}  // namespace lw::web
