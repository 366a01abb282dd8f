#pragma once
// The form on paper and on the clipboard, and the guide, through the browser.

#include <string>

#include "model/form.h"

namespace lw::web {

// The form at its true size on a Letter page, its text as text, through the browser's print dialog.
void printOnPaper(const Form& form);
// The form's picture, as the screen shows it, on the clipboard as a PNG.
void clipPicture(const Form& form);
// A shipped document of the page's folder in a new tab; false when the page has no such document.
bool openInTab(const std::string& path);

}  // namespace lw::web
