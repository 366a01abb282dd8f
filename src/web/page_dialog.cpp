// A modal form (a message box, the error report, the Save form, the K-1 code list) as a modal dialog of
// the page: its face painted as the engine describes it, with its controls hosted over it as the main
// face hosts its own. A box shown from within another hides it until it is answered.
#include <algorithm>

#include "face/face_description.h"
#include "model/containers.h"
#include "text/cp1252.h"
#include "web/page_view.h"

namespace lw::web {

using emscripten::val;

void PageView::showModal(Form& form) {
    modals_.push_back(&form);
    showDialog();
}

void PageView::closeModal() { showDialog(); }

void PageView::dialogClosing() {
    Form* form = modal_;
    if (!form) return;
    runInput([this, form] {
        if (std::find(modals_.begin(), modals_.end(), form) != modals_.end()) form->unload();
    });
}

// The dialog hosts the innermost modal form still waiting, or closes when none is.
void PageView::showDialog() {
    Form* top = modals_.empty() ? nullptr : modals_.back();
    val dialog = document_.call<val>("getElementById", std::string("modal"));
    if (top != modal_) {
        if (modal_) clearFields(*modal_);
        modal_ = top;
        if (top) {
            const std::string caption = text::cp1252ToUtf8(top->caption);
            dialog.call<void>("setAttribute", std::string("aria-label"), caption);
            document_.call<val>("getElementById", std::string("modal-title")).set("textContent", caption);
            placeFields(*top, "modal-fields");
        }
    }
    if (!top) {
        if (dialog["open"].as<bool>()) dialog.call<void>("close");
        show();
        return;
    }
    if (!dialog["open"].as<bool>()) dialog.call<void>("showModal");
    show();
    // The engine's focus is shown; a box whose focus is on nothing the page hosts starts on its default
    // button, else on its first field or button in the order of its tab stops, as a dialog does.
    const val active = document_["activeElement"];
    const val layer = document_.call<val>("getElementById", std::string("modal-fields"));
    if (!active.isNull() && layer.call<bool>("contains", active)) return;
    auto rank = [](const Control& control) { return control.isDefault ? -1 : control.tabIndex; };
    const Field* start = nullptr;
    for (const Field& field : fields_) {
        const Control& control = *field.control;
        const bool stop = control.canTakeFocus() && control.tabStop && control.kind != ControlKind::Picture;
        if (control.form != top || !stop || !isShown(control)) continue;
        if (!start || rank(control) < rank(*start->control)) start = &field;
    }
    if (start) focusTarget(*start).call<void>("focus");
}

}  // namespace lw::web
