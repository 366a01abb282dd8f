#include "fields/edit_failure.h"

#include "model/program.h"

namespace lw {

namespace {
Control* statusLine() {
    Form* form = program().g.document.currentForm;
    return form ? form->find("labelMisc") : nullptr;
}
}  // namespace

void clearStatusLine() {
    if (Control* status = statusLine()) status->caption.clear();
}

void showInvalidField(Control& ctl, int colour, const std::string& message) {
    if (Control* status = statusLine()) {
        status->caption = message.empty() ? "Value Entered: [" + ctl.text + "] is INVALID" : message;
        status->foreColor = kRed;
        program().ui.refresh();
    }
    if (Form* frame = program().desktop.frame()) {
        if (Control* legend = frame->find("txtLegend", colour)) ctl.backColor = legend->backColor;
    }
}

}  // namespace lw
