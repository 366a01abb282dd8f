// The frame's left panel as the page's own elements: its command buttons, which the engine enables and
// disables, and its colour legend, made anew whenever the engine changes them.
#include <cstdio>

#include "model/containers.h"
#include "text/cp1252.h"
#include "web/page_fields.h"
#include "web/page_view.h"

namespace lw::web {

using emscripten::val;

namespace {

bool inPanel(const Control& control) {
    return isShown(control) && (control.kind == ControlKind::CommandButton ||
                                (control.kind == ControlKind::TextBox && control.wordsOnly));
}

}  // namespace

void PageView::buildPanel() {
    Form* frame = program_.desktop.frame();
    std::string shown;
    if (frame)
        for (const auto& control : frame->controls())
            if (inPanel(*control))
                shown += control->caption + '\x1f' + control->text + (control->enabled ? '1' : '0') +
                         cssColor(control->backColor) + '\x1e';
    if (shown == panelShown_) return;
    panelShown_ = shown;
    panelButtons_.clear();

    val panel = document_.call<val>("getElementById", std::string("panel"));
    panel.set("textContent", std::string());
    if (!frame) return;
    for (const auto& owned : frame->controls()) {
        Control& control = *owned;
        if (!inPanel(control)) continue;
        if (control.kind == ControlKind::CommandButton) {
            val button = document_.call<val>("createElement", std::string("button"));
            button.set("type", std::string("button"));
            button.set("className", std::string("frame-button"));
            button.set("textContent", text::cp1252ToUtf8(control.caption));
            button.set("disabled", !control.enabled);
            button.call<void>("setAttribute", std::string("data-frame-button"),
                              static_cast<int>(panelButtons_.size()));
            panel.call<void>("appendChild", button);
            panelButtons_.push_back(&control);
            continue;
        }
        val entry = document_.call<val>("createElement", std::string("div"));
        entry.set("className", std::string("legend"));
        entry.set("textContent", text::cp1252ToUtf8(control.text));
        if (!control.toolTipText.empty()) entry.set("title", text::cp1252ToUtf8(control.toolTipText));
        entry["style"].set("backgroundColor", cssColor(control.backColor));
        entry["style"].set("color", cssColor(control.foreColor));
        panel.call<void>("appendChild", entry);
    }
}

void PageView::frameButton(int button) {
    if (modal_ || button < 0 || button >= static_cast<int>(panelButtons_.size())) return;
    Control& control = *panelButtons_[static_cast<std::size_t>(button)];
    if (control.enabled) runInput([this, &control] { program_.desktop.click(control); }, &control);
}

}  // namespace lw::web
