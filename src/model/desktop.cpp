#include "model/desktop.h"

#include <algorithm>

#include "model/keys.h"
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
            std::equal(name.begin(), name.end(), form->name().begin(),
                       [](char a, char b) { return std::tolower((unsigned char)a) == std::tolower((unsigned char)b); }))
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

void Desktop::sendKey(int keyCode, int shift, int keyAscii) {
    sentKeys_.push_back(SentKey{keyCode, shift, keyAscii});
    if (depth_ == 0) runPending();
}

void Desktop::pressKey(int keyCode, int shift, int keyAscii) {
    Control* control = focus();
    if (keyCode == keys::kTab && !(shift & keys::kCtrlMask)) {
        tab(shift & keys::kShiftMask);
        return;
    }
    if (!control || !control->form) return;
    Form& form = *control->form;
    dispatch([&] {
        // A character with no key of its own (punctuation typed or sent) comes without a KeyDown.
        if (keyCode != 0) {
            int code = keyCode;
            form.onKeyDown(*control, code, shift);
            if (code == 0 || keys::isFunctionKey(code) || focus() != control) return;
        }
        if (keyAscii != 0) {
            int ascii = keyAscii;
            form.onKeyPress(*control, ascii);
            if (ascii == 0 || focus() != control || !control->form) return;
            if (control->isTextBox()) {
                if (ascii == keys::kCtrlC || ascii == keys::kCtrlX) {
                    std::string selected = control->text.substr(
                        control->selStart(), control->selLength());
                    if (!selected.empty()) ui_.setClipboardText(selected);
                    if (ascii == keys::kCtrlX && !control->locked) editText(*control, "");
                } else if (ascii == keys::kCtrlV) {
                    // An empty clipboard pastes nothing and leaves the selection standing.
                    std::string pasted = ui_.clipboardText();
                    if (!pasted.empty()) editText(*control, pasted);
                } else if (ascii == keys::kBackspace) {
                    editKey(*control, keys::kBackspace, 0);
                } else if (ascii == keys::kEnter) {
                    if (control->multiLine) editText(*control, "\r\n");
                } else if (ascii >= 32 || ascii < 0) {
                    editText(*control, std::string(1, static_cast<char>(ascii)));
                }
            } else if (ascii == keys::kSpace && (control->kind == ControlKind::CommandButton)) {
                form.onClick(*control, MouseButton::Left);
            } else if (ascii == keys::kEnter && control->kind == ControlKind::CommandButton) {
                form.onClick(*control, MouseButton::Left);
            }
            return;
        }
        if (control->isTextBox()) editKey(*control, keyCode, shift);
    });
}

void Desktop::typeCharacter(char c) {
    unsigned char byte = static_cast<unsigned char>(c);
    // Letters and digits have key codes of their own; other characters reach KeyPress alone.
    int keyCode = 0;
    if (byte >= 'a' && byte <= 'z') keyCode = byte - 'a' + 'A';
    if ((byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') || byte == ' ') keyCode = byte;
    if (byte == '\r' || byte == '\n') keyCode = keys::kEnter;
    pressKey(keyCode, 0, byte == '\n' ? keys::kEnter : byte);
}

void Desktop::paste(const std::string& text) {
    Control* control = focus();
    if (!control || !control->isTextBox()) return;
    dispatch([&] { editText(*control, text); });
}

void Desktop::editText(Control& control, const std::string& insert) {
    if (control.locked) return;
    std::string& text = control.text;
    size_t start = control.selStart();
    size_t length = control.selLength();
    std::string piece = insert;
    if (!control.multiLine) {
        // A single-line box keeps one line: a pasted line end ends the paste, as the platform's box does.
        size_t end = piece.find_first_of("\r\n");
        if (end != std::string::npos) piece.erase(end);
    }
    if (control.maxLength > 0) {
        size_t room = control.maxLength > static_cast<int>(text.size() - length)
                          ? control.maxLength - (text.size() - length)
                          : 0;
        if (piece.size() > room) piece.erase(room);
        if (piece.empty() && !insert.empty()) return;
    }
    text.replace(start, length, piece);
    control.setSelStart(static_cast<int>(start + piece.size()));
    control.form->onChange(control);
}

void Desktop::editKey(Control& control, int keyCode, int shift) {
    std::string& text = control.text;
    int size = static_cast<int>(text.size());
    int start = control.selStart();
    int length = control.selLength();
    bool extend = shift & keys::kShiftMask;
    switch (keyCode) {
        case keys::kBackspace:
        case keys::kDelete: {
            if (control.locked) return;
            if (length == 0) {
                if (keyCode == keys::kBackspace && start > 0) {
                    --start;
                    length = 1;
                } else if (keyCode == keys::kDelete && start < size) {
                    length = 1;
                }
            }
            if (length == 0) return;
            text.erase(start, length);
            control.setSelStart(start);
            control.form->onChange(control);
            return;
        }
        case keys::kHome:
            control.select(0, extend ? start + length : 0);
            return;
        case keys::kEnd:
            control.select(extend ? start : size, extend ? size - start : 0);
            return;
        case keys::kLeft:
            control.setSelStart(length > 0 ? start : std::max(0, start - 1));
            return;
        case keys::kRight:
            control.setSelStart(length > 0 ? start + length : std::min(size, start + 1));
            return;
        default: return;
    }
}

void Desktop::click(Control& control, MouseButton button) {
    Form* form = control.form;
    if (!form || !form->isLoaded() || !control.enabled) return;
    if (control.canTakeFocus()) {
        setFocus(control);
        if (control.form->activeControl() != &control) return;  // the field being left kept the focus
    }
    dispatch([&] {
        if (control.kind == ControlKind::OptionButton) {
            for (Control* other : form->arrayOf(control.name)) other->value = false;
            control.value = true;
        }
        form->onClick(control, button);
    });
}

void Desktop::choose(Control& control, const std::string& entry) {
    auto it = std::find(control.items.begin(), control.items.end(), entry);
    if (it == control.items.end()) return;
    if (control.canTakeFocus()) setFocus(control);
    dispatch([&] {
        control.listIndex = static_cast<int>(it - control.items.begin());
        control.text = entry;
        control.form->onClick(control, MouseButton::Left);
    });
}

void Desktop::chooseMenu(const std::string& itemName) {
    Form* owner = frame_;
    if (!owner) return;
    MenuItem* item = owner->findMenu(itemName);
    if (!item || !item->enabled || !item->visible) return;
    std::string name = item->name;
    dispatch([&] { owner->onMenu(name); });
}

}  // namespace lw
