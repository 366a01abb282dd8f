#pragma once
// The one way the program makes a picture: a form's client area, at its pixel size, as a bitmap on the
// clipboard. The Clip command uses it for a tax form and the error report form for itself.

namespace lw {

class Form;

// Puts the picture of the form on the clipboard, replacing what was there. A failed copy leaves the
// clipboard as it was and reports nothing.
void copyEntirePicture(Form& form);

}  // namespace lw
