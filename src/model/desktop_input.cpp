// The operator's input as the desktop hands it to the forms: keys with their events in order, pastes,
// clicks, choices from lists and menus.
#include <algorithm>

#include "model/desktop.h"
#include "model/keys.h"
#include "model/line_editor.h"
#include "model/ports.h"

namespace lw {

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
        if (keyAscii == 0) {
            if (control->isTextBox() && LineEditor(*control, ui_).pressKey(keyCode, shift))
                control->form->onChange(*control);
            return;
        }
        int ascii = keyAscii;
        form.onKeyPress(*control, ascii);
        if (ascii == 0 || focus() != control || !control->form) return;
        if (control->isTextBox()) {
            if (LineEditor(*control, ui_).typeCharacter(ascii)) control->form->onChange(*control);
        } else if ((ascii == keys::kSpace || ascii == keys::kEnter) &&
                   control->kind == ControlKind::CommandButton) {
            form.onClick(*control, MouseButton::Left);
        }
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
    dispatch([&] {
        if (LineEditor(*control, ui_).replaceSelection(text)) control->form->onChange(*control);
    });
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
