#pragma once
// A form that writes down every event it receives, for checking the order of events.

#include <string>
#include <vector>

#include "model/form.h"
#include "model/ports.h"

namespace lw::testing {

class NullUi : public UiPort {
public:
    void runModal(Form&) override {}
    void copyPictureToClipboard(Form&) override {}
    std::string clipboardText() override { return clipboard; }
    void setClipboardText(const std::string& text) override { clipboard = text; }
    bool openDocument(const std::string&) override { return true; }
    void quit() override {}
    std::string clipboard;
};

class RecordingForm : public Form {
public:
    explicit RecordingForm(std::string name = "TF_TEST") : Form(std::move(name)) {}

    std::vector<std::string> events;
    std::string refuseToLeave;        // a control key whose Validate cancels
    std::string swallowKeyPressIn;    // a control key whose KeyPress sets the character to 0
    std::function<void(Control&)> onFocusHook;

    void onGotFocus(Control& c) override {
        events.push_back("GotFocus " + c.key());
        if (onFocusHook) onFocusHook(c);
    }
    void onLostFocus(Control& c) override { events.push_back("LostFocus " + c.key()); }
    void onValidate(Control& c, bool& cancel) override {
        events.push_back("Validate " + c.key());
        cancel = c.key() == refuseToLeave;
    }
    void onKeyDown(Control& c, int& code, int) override {
        events.push_back("KeyDown " + c.key() + " " + std::to_string(code));
    }
    void onKeyPress(Control& c, int& ascii) override {
        events.push_back("KeyPress " + c.key() + " " + std::to_string(ascii));
        if (c.key() == swallowKeyPressIn) ascii = 0;
    }
    void onChange(Control& c) override { events.push_back("Change " + c.key() + " " + c.text); }
    void onClick(Control& c, MouseButton) override { events.push_back("Click " + c.key()); }
};

}  // namespace lw::testing
