#pragma once
// The Clip command and the per-form preparation it shares with Print.

#include <optional>

#include "model/color.h"

namespace lw {

class Form;

// While it lives, the half on show of a form on two tab pages (a K-1) stands as a page of paper: its two
// panels side by side at the top, with no strip of tabs above them. Any other form is left as it is.
class HalfAsPaper {
public:
    explicit HalfAsPaper(Form& form);
    ~HalfAsPaper();
    HalfAsPaper(const HalfAsPaper&) = delete;
    HalfAsPaper& operator=(const HalfAsPaper&) = delete;

private:
    struct Noted {
        int width, height, tabHeight;
        Color tabBack;
        int leftTop, rightTop;
        Color leftBack, rightBack;
    };
    Form& form_;
    std::optional<Noted> noted_;
};

// Cuts the current form to its document and paints it as paper: white fields, no selection, no grey.
// True when the form is ready to be copied.
bool clipScreen();
// Clips the active form: its picture goes to the clipboard, and the form is put back afterwards.
void clipCurrentForm();

}  // namespace lw
