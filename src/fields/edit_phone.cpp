#include <string>

#include "fields/edit_ctl.h"
#include "text/masks.h"
#include "text/pieces.h"

namespace lw {

bool editPhone(Control& ctl) {
    std::string digits = ctl.text;
    for (const char* mark : {"(", ")", "-", " "}) digits = text::replaceAll(digits, mark, "");
    // A number typed without its area code gets a fixed one.
    if (digits.size() == 7)
        ctl.text = "(999) " + text::formatText(digits, "@@@-@@@@");
    else if (digits.size() == 10)
        ctl.text = text::formatText(digits, "(@@@) @@@-@@@@");
    else
        ctl.text = digits;
    return true;
}

}  // namespace lw
