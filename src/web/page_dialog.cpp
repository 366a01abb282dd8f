// A modal form (a message box, the error report, the Save form, the K-1 code list) as a modal dialog of
// the page: its face painted as the engine describes it, with its controls hosted over it as the main
// face hosts its own. A box shown from within another stands over it, the outer one still on the screen
// beneath, as the window shows them.
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
        showOuterModals();
        if (dialog["open"].as<bool>()) dialog.call<void>("close");
        show();
        return;
    }
    const std::size_t outerCount = outerModals_.size();
    showOuterModals();
    // A dialog opened last stands on top: the innermost is opened again over an outer one just shown.
    if (outerModals_.size() > outerCount && dialog["open"].as<bool>()) dialog.call<void>("close");
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

void PageView::showOuterModals() {
    const std::size_t wanted = modals_.empty() ? 0 : modals_.size() - 1;
    std::size_t kept = 0;
    while (kept < outerModals_.size() && kept < wanted && outerModals_[kept].form == modals_[kept]) ++kept;
    while (outerModals_.size() > kept) {
        val dialog = outerModals_.back().dialog;
        if (dialog["open"].as<bool>()) dialog.call<void>("close");
        dialog.call<void>("remove");
        outerModals_.pop_back();
    }
    for (std::size_t level = kept; level < wanted; ++level) {
        Form& form = *modals_[level];
        const std::string id = "modal-outer-" + std::to_string(level);
        val dialog = document_.call<val>("createElement", std::string("dialog"));
        dialog.set("className", std::string("outer-modal"));
        const std::string caption = text::cp1252ToUtf8(form.caption);
        dialog.call<void>("setAttribute", std::string("aria-label"), caption);
        val title = document_.call<val>("createElement", std::string("p"));
        title.set("className", std::string("modal-caption"));
        title.set("textContent", caption);
        val canvas = document_.call<val>("createElement", std::string("canvas"));
        canvas.set("id", id + "-face");
        dialog.call<void>("appendChild", title);
        dialog.call<void>("appendChild", canvas);
        document_["body"].call<void>("appendChild", dialog);
        dialog.call<void>("showModal");
        paintFace(form, id + "-face");
        outerModals_.push_back({&form, dialog});
    }
}

}  // namespace lw::web
