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

void showInvalidField(Control& ctl, int iColour, const std::string& sMessage) {
    if (Control* status = statusLine()) {
        status->caption = sMessage.empty() ? "Value Entered: [" + ctl.text + "] is INVALID" : sMessage;
        status->foreColor = kRed;
        program().ui.refresh();
    }
    if (Form* frame = program().desktop.frame()) {
        if (Control* legend = frame->find("txtLegend", iColour)) ctl.backColor = legend->backColor;
    }
}

}  // namespace lw
