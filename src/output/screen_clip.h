#pragma once
// The Clip command and the per-form preparation it shares with Print.

namespace lw {

// Cuts the current form to its document and paints it as paper: white fields, no selection, no grey.
// True when the form is ready to be copied.
bool Screen_Clip();
// Clips the active form: its picture goes to the clipboard, and the form is put back afterwards.
void MDI_Clip();

}  // namespace lw
