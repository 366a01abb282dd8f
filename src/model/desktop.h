#pragma once
// The forms on the screen, the focus, and the order in which events reach the handlers.
// Every driver (the window, the script runner, the tests) feeds its input through here.

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "model/form.h"

namespace lw {

class UiPort;

class Desktop {
public:
    explicit Desktop(UiPort& ui);
    ~Desktop();

    UiPort& ui() { return ui_; }

    // Loading runs the form's Load handler; a child form becomes the frame's active child unless the
    // caller places and activates it itself.
    Form& load(std::unique_ptr<Form> form, bool activateChild = true);
    void unload(Form& form);
    // Shows a loaded form modally: returns once it has been unloaded.
    void showModal(Form& form);

    Form* findForm(std::string_view name) const;
    Form* frame() const { return frame_; }
    void setFrame(Form& frame) { frame_ = &frame; }
    Form* activeChild() const { return activeChild_; }
    void activate(Form& child);
    Form* topModal() const { return modal_.empty() ? nullptr : modal_.back(); }
    // The form that takes the operator's input: an open modal box first, then the active child, then the
    // frame.
    Form* inputForm() const;
    std::vector<Form*> forms() const;

    Control* focus() const;
    // A focus request made inside a handler is carried out when the outermost handler returns.
    void setFocus(Control& control);
    // Carries out a waiting focus request at once, inside a handler: a form just placed takes its
    // first field before the caller writes on its status line.
    void settleFocus();

    // Operator input.
    void pressKey(int keyCode, int shift, int keyAscii);
    void typeCharacter(char c);
    void paste(const std::string& text);
    void click(Control& control, MouseButton button = MouseButton::Left);
    void choose(Control& control, const std::string& entry);
    void chooseMenu(const std::string& itemName);
    void tab(bool backwards);
    // A keystroke sent by the program itself to the focused field, after the running handler.
    void sendKey(int keyCode, int shift, int keyAscii);

    // Runs a piece of event handling; deferred focus moves and sent keys follow the outermost one.
    void dispatch(const std::function<void()>& handler);

    // Told of every form that is unloaded, before it is gone: references to it must be dropped.
    void setUnloadObserver(std::function<void(Form&)> observer) { unloadObserver_ = std::move(observer); }

    // The next field in tab order after (or before) a control of the same form.
    Control* nextInTabOrder(const Control& from, bool backwards) const;

private:
    bool moveFocus(Control& to);
    void runPending();
    void destroyUnloaded();

    struct SentKey {
        int keyCode;
        int shift;
        int keyAscii;
    };

    UiPort& ui_;
    std::vector<std::unique_ptr<Form>> forms_;
    std::vector<std::unique_ptr<Form>> unloaded_;
    std::vector<Form*> modal_;
    Form* frame_ = nullptr;
    Form* activeChild_ = nullptr;
    Control* pendingFocus_ = nullptr;
    std::vector<SentKey> sentKeys_;
    std::function<void(Form&)> unloadObserver_;
    int depth_ = 0;
    int modalDepth_ = 0;
};

}  // namespace lw
