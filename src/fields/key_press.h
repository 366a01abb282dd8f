#pragma once
// The keystroke filter of every typed field. The filter only keeps the keyboard close to what a value
// can be; the decision falls when the field is left.

#include <string>

#include "model/control.h"

namespace lw {

// Lets the key through, changes it, or swallows it (keyAscii 0) by the field's Tag. Never reports.
void filterFieldKey(Control& ctl, int& keyAscii);

// Sends a Tab keystroke to the focused field of the form's desktop after the running handler, with no
// waiting.
void sendTabKey(const Form& form);

}  // namespace lw
