#pragma once
// The Clip command and the cut to the document that it shares with Print.

namespace lw {

class Form;
struct ProgramParts;

// Cuts the document's form to its document and paints it as paper: white fields, no selection, no grey;
// in debug mode its labels turn white as well. True when the form is ready to be copied.
bool clipScreen(Form* form, bool debug);
// Clips the active form: its picture goes to the clipboard, and the form is put back afterwards.
void clipCurrentForm(const ProgramParts& parts);

}  // namespace lw
