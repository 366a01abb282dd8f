#pragma once
// How an edit shows a value that does not stand: a message on the status line of the document's current
// form in red, and the field in the failure colour of its type, from the legend on the desktop's frame.

#include <string>

#include "model/control.h"

namespace lw {

class Desktop;
struct OpenDocument;

void showInvalidField(Control& ctl, int colour, const std::string& message, const OpenDocument& document,
                      Desktop& desktop);

// Clears the status line of the document's current form; a form without one is fine.
void clearStatusLine(const OpenDocument& document);

}  // namespace lw
