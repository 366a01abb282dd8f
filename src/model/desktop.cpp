// The life of the forms on the screen (loading, activating, unloading), the modal loop, and the order
// in which the handlers run: focus moves and keys sent inside a handler wait for the outermost one.
#include "model/desktop.h"

#include <algorithm>

#include "model/ports.h"

namespace lw {

Desktop::Desktop(UiPort& ui) : ui_(ui) {}
Desktop::~Desktop() = default;

void Desktop::dispatch(const std::function<void()>& handler) {
    ++depth_;
    try {
        handler();
    } catch (...) {
        --depth_;
        throw;
    }
    --depth_;
    if (depth_ == 0) runPending();
}

void Desktop::runPending() {
    // Each pending step may queue more; the loop ends when a step leaves nothing behind.
    for (int guard = 0; guard < 1000; ++guard) {
        if (pendingFocus_) {
            settleFocus();
            continue;
        }
        if (!sentKeys_.empty()) {
            SentKey key = sentKeys_.front();
            sentKeys_.erase(sentKeys_.begin());
            pressKey(key.keyCode, key.shift, key.keyAscii);
            continue;
        }
        break;
    }
    destroyUnloaded();
}

// An unloaded form is destroyed only when no handler of it can still be on the stack.
void Desktop::destroyUnloaded() {
    if (depth_ == 0 && modalDepth_ == 0) unloaded_.clear();
}

Form& Desktop::load(std::unique_ptr<Form> owned, bool activateChild) {
    Form& form = *owned;
    form.desktop_ = this;
    forms_.push_back(std::move(owned));
    dispatch([&] { form.onLoad(); });
    if (form.isLoaded()) {
        ui_.formLoaded(form);
        if (form.isChild && activateChild) activate(form);
    }
    return form;
}

void Desktop::activate(Form& child) {
    if (activeChild_ == &child) return;
    activeChild_ = &child;
    ui_.childActivated(child);
    dispatch([&] { child.onActivate(); });
}

void Desktop::unload(Form& form) {
    auto it = std::find_if(forms_.begin(), forms_.end(), [&](const auto& f) { return f.get() == &form; });
    if (it == forms_.end()) return;
    bool cancel = false;
    dispatch([&] { form.onQueryUnload(cancel); });
    if (cancel) return;
    dispatch([&] { form.onUnload(cancel); });
    if (cancel) return;
    // The form may have been unloaded by its own handlers meanwhile.
    it = std::find_if(forms_.begin(), forms_.end(), [&](const auto& f) { return f.get() == &form; });
    if (it == forms_.end()) return;

    if (pendingFocus_ && pendingFocus_->form == &form) pendingFocus_ = nullptr;
    modal_.erase(std::remove(modal_.begin(), modal_.end(), &form), modal_.end());
    if (frame_ == &form) frame_ = nullptr;
    if (unloadObserver_) unloadObserver_(form);
    ui_.formUnloaded(form);
    form.desktop_ = nullptr;
    form.activeControl_ = nullptr;
    unloaded_.push_back(std::move(*it));
    forms_.erase(it);

    // The frame holds one child at a time: whoever opens the next one activates it.
    if (activeChild_ == &form) activeChild_ = nullptr;
    destroyUnloaded();
}

// A modal box runs an event loop of its own: input inside it is handled as at the top level, while
// what the interrupted handler left pending waits until the box is gone.
void Desktop::showModal(Form& form) {
    modal_.push_back(&form);
    const int savedDepth = depth_;
    Control* savedFocus = pendingFocus_;
    std::vector<SentKey> savedKeys;
    savedKeys.swap(sentKeys_);
    pendingFocus_ = nullptr;
    depth_ = 0;
    ++modalDepth_;
    auto restore = [&] {
        --modalDepth_;
        depth_ = savedDepth;
        if (!pendingFocus_) pendingFocus_ = savedFocus;
        sentKeys_.insert(sentKeys_.begin(), savedKeys.begin(), savedKeys.end());
    };
    try {
        // A box shown modally activates as it appears, so that it can put the focus on its first field.
        dispatch([&] { form.onActivate(); });
        if (form.isLoaded()) ui_.runModal(form);
    } catch (...) {
        restore();
        modal_.erase(std::remove(modal_.begin(), modal_.end(), &form), modal_.end());
        if (form.isLoaded()) unload(form);
        throw;
    }
    restore();
    // A box that its driver left open is closed, so that the caller never waits on it.
    if (form.isLoaded()) unload(form);
    if (depth_ == 0) runPending();
}

Form* Desktop::findForm(std::string_view name) const {
    for (const auto& form : forms_) {
        if (form->name().size() == name.size() &&
            std::equal(name.begin(), name.end(), form->name().begin(), [](char a, char b) {
                return std::tolower((unsigned char)a) == std::tolower((unsigned char)b);
            }))
            return form.get();
    }
    return nullptr;
}

Form* Desktop::inputForm() const {
    if (Form* modal = topModal()) return modal;
    if (activeChild_) return activeChild_;
    return frame_;
}

std::vector<Form*> Desktop::forms() const {
    std::vector<Form*> all;
    for (const auto& form : forms_) all.push_back(form.get());
    return all;
}

}  // namespace lw
