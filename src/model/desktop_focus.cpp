// The focus and the tab order: a focus request made inside a handler waits for the outermost one,
// and leaving a field runs its Validate, which may keep the focus where it is.
#include <algorithm>

#include "model/desktop.h"

namespace lw {

void Desktop::setFocus(Control& control) {
    if (depth_ > 0) {
        pendingFocus_ = &control;
        return;
    }
    ++depth_;
    moveFocus(control);
    --depth_;
    runPending();
}

void Desktop::settleFocus() {
    Control* target = pendingFocus_;
    if (!target) return;
    pendingFocus_ = nullptr;
    ++depth_;
    moveFocus(*target);
    --depth_;
}

Control* Desktop::focus() const {
    Form* form = inputForm();
    return form ? form->activeControl_ : nullptr;
}

// Each form keeps its own active control: a modal box takes the focus without the field of the form
// beneath it being validated or losing it, and gives it back on closing.
bool Desktop::moveFocus(Control& to) {
    Form* form = to.form;
    if (!form || !form->isLoaded() || !to.canTakeFocus()) return false;
    Control* from = form->activeControl_;
    if (from == &to) return true;
    if (from) {
        bool cancel = false;
        form->onValidate(*from, cancel);
        if (cancel) return false;
        // A handler may have sent the focus elsewhere, or unloaded the form, while validating.
        if (form->activeControl_ != from || !form->isLoaded()) return false;
        form->onLostFocus(*from);
    }
    form->activeControl_ = &to;
    form->onGotFocus(to);
    return true;
}

Control* Desktop::nextInTabOrder(const Control& from, bool backwards) const {
    const Form* form = from.form;
    if (!form) return nullptr;
    std::vector<Control*> stops;
    for (const auto& c : form->controls()) {
        if (c->canTakeFocus() && c->tabStop) stops.push_back(c.get());
    }
    if (stops.empty()) return nullptr;
    std::stable_sort(stops.begin(), stops.end(),
                     [](const Control* a, const Control* b) { return a->tabIndex < b->tabIndex; });
    // Find the position by tab index, so that a control without a tab stop still has a next one.
    if (!backwards) {
        for (Control* c : stops)
            if (c->tabIndex > from.tabIndex) return c;
        return stops.front();
    }
    for (auto it = stops.rbegin(); it != stops.rend(); ++it)
        if ((*it)->tabIndex < from.tabIndex) return *it;
    return stops.back();
}

void Desktop::tab(bool backwards) {
    Control* from = focus();
    if (!from) {
        Form* form = inputForm();
        if (!form) return;
        for (const auto& c : form->controls()) {
            if (c->canTakeFocus() && c->tabStop) {
                setFocus(*c);
                return;
            }
        }
        return;
    }
    if (Control* next = nextInTabOrder(*from, backwards)) setFocus(*next);
}

}  // namespace lw
