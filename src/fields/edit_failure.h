#pragma once
// How an edit shows a value that does not stand: a message on the form's status line in red, and the
// field in the failure colour of its type.

#include <string>

#include "model/control.h"

namespace lw {

void showInvalidField(Control& ctl, int colour, const std::string& message);

// Clears the status line of CurrentForm; a form without one is fine.
void clearStatusLine();

}  // namespace lw
