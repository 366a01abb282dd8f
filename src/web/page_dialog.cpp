// A modal form (a message box, the error report, the Save form) as a modal dialog of the page: its face
// painted as the engine describes it, with real buttons over the buttons it paints.
#include "face/face_description.h"
#include "model/containers.h"
#include "text/cp1252.h"
#include "web/page_fields.h"
#include "web/page_view.h"

namespace lw::web {

using emscripten::val;

void PageView::showModal(Form& form) {
    modal_ = &form;
    dialogButtons_.clear();
    show();
    val dialog = document_.call<val>("getElementById", std::string("modal"));
    dialog.call<void>("setAttribute", std::string("aria-label"), text::cp1252ToUtf8(form.caption));
    document_.call<val>("getElementById", std::string("modal-title"))
        .set("textContent", text::cp1252ToUtf8(form.caption));
    paintFace(form, "modal-face");

    val layer = document_.call<val>("getElementById", std::string("modal-buttons"));
    layer.set("textContent", std::string());
    val first = val::null();
    for (const auto& owned : form.controls()) {
        Control& control = *owned;
        if (control.kind != ControlKind::CommandButton || !isShown(control)) continue;
        if (control.caption.empty() && control.picture.empty()) continue;  // a button the box does not use
        val button = document_.call<val>("createElement", std::string("button"));
        button.set("type", std::string("button"));
        button.set("textContent", text::cp1252ToUtf8(control.caption));
        button.call<void>("setAttribute", std::string("data-button"),
                          static_cast<int>(dialogButtons_.size()));
        button.set("disabled", !control.enabled);
        const face::Rect rect = face::controlRect(control, face::kScreenScale);
        val style = button["style"];
        style.set("left", std::to_string(rect.x) + "px");
        style.set("top", std::to_string(rect.y) + "px");
        style.set("width", std::to_string(rect.width) + "px");
        style.set("height", std::to_string(rect.height) + "px");
        style.set("font", cssFont(control));
        layer.call<void>("appendChild", button);
        dialogButtons_.push_back(&control);
        if (first.isNull() || control.isDefault) first = button;
    }
    if (!dialog["open"].as<bool>()) dialog.call<void>("showModal");
    if (!first.isNull()) first.call<void>("focus");
}

void PageView::closeModal() {
    val dialog = document_.call<val>("getElementById", std::string("modal"));
    if (modal_) return;  // the engine shows another box
    if (dialog["open"].as<bool>()) dialog.call<void>("close");
    show();
}

void PageView::dialogButton(int button) {
    if (!modal_ || button < 0 || button >= static_cast<int>(dialogButtons_.size())) return;
    Control& control = *dialogButtons_[static_cast<std::size_t>(button)];
    runInput([&] { program_.desktop.click(control); });
}

}  // namespace lw::web
