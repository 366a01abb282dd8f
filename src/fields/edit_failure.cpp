#include "fields/edit_failure.h"

#include "model/desktop.h"
#include "model/open_document.h"
#include "model/ports.h"

namespace lw {

namespace {
Control* statusLine(const OpenDocument& document) {
    Form* form = document.currentForm;
    return form ? form->find("labelMisc") : nullptr;
}
}  // namespace

void clearStatusLine(const OpenDocument& document) {
    if (Control* status = statusLine(document)) status->caption.clear();
}

void showInvalidField(Control& ctl, int colour, const std::string& message, const OpenDocument& document,
                      Desktop& desktop) {
    if (Control* status = statusLine(document)) {
        status->caption = message.empty() ? "Value Entered: [" + ctl.text + "] is INVALID" : message;
        status->foreColor = kRed;
        desktop.ui().refresh();
    }
    if (Form* frame = desktop.frame()) {
        if (Control* legend = frame->find("txtLegend", colour)) ctl.backColor = legend->backColor;
    }
}

}  // namespace lw
