#pragma once
// The keystroke filter of every typed field, and the check of the remembered folders that runs before a
// file dialog. The filter only keeps the keyboard close to what a value can be; the decision falls when
// the field is left.

#include <string>

#include "model/control.h"

namespace lw {

// Lets the key through, changes it, or swallows it (KeyAscii 0) by the field's Tag. Never reports.
void Key_Press(Control& ctl, int& KeyAscii);

// sKind "Open" (any case) or "save" (any case): the remembered folder of that dialog is emptied in the
// user INF file when it no longer exists. Any other kind is a program error, logged.
void Verify_INF_Entry(const std::string& sKind);

// Sends a Tab keystroke to the focused field after the running handler, with no waiting.
void SendTabKey();

}  // namespace lw
