#pragma once
// The Clip command and the cut to the document that it shares with Print.

namespace lw {

// Cuts the current form to its document and paints it as paper: white fields, no selection, no grey.
// True when the form is ready to be copied.
bool clipScreen();
// Clips the active form: its picture goes to the clipboard, and the form is put back afterwards.
void clipCurrentForm();

}  // namespace lw
