#include "diagnostics/picture_capture.h"

#include "model/app_error.h"
#include "model/desktop.h"
#include "model/ports.h"

namespace lw {

void copyEntirePicture(Form& form) {
    // The front end renders the form off-screen at its own size, so nothing of the desktop can reach
    // the picture: the task bar need not be hidden around the copy, and nothing waits for a repaint.
    try {
        if (Desktop* desktop = form.desktop()) desktop->ui().copyPictureToClipboard(form);
    } catch (const ProgramEnded&) {
        throw;
    } catch (...) {
        // A picture that could not be made leaves the clipboard unchanged, with no word to the operator.
    }
}

}  // namespace lw
