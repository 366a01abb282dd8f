#pragma once
// A window of the program: named controls and control arrays, the events of its handlers, its menus.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/color.h"
#include "model/control.h"

namespace lw {

class Desktop;

enum class MouseButton { Left, Right, Middle };

struct MenuItem {
    std::string name;
    std::string caption;  // "-" is a separator
    bool enabled = true;
    bool visible = true;
    std::vector<MenuItem> items;
};

class Form {
public:
    explicit Form(std::string name);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return name_; }

    std::string caption;
    int left = 0;  // twips
    int top = 0;
    int width = 0;
    int height = 0;
    Color backColor = kButtonFace;
    std::string fontName = "Tahoma";
    double fontSize = 8.25;
    bool isChild = true;  // hosted in the frame; false for the frame and the modal boxes
    std::string icon;     // icon file of the window, empty for the default
    std::vector<MenuItem> menus;

    Control& add(ControlKind kind, const std::string& name, int index = kNoIndex);
    // Names are blind to case. An index of kNoIndex finds a control outside any array.
    Control* find(std::string_view name, int index = kNoIndex) const;
    // As find, but a missing control is a run-time fault of the program.
    Control& at(std::string_view name, int index = kNoIndex) const;
    // The elements of a control array in index order.
    std::vector<Control*> arrayOf(std::string_view name) const;
    // The controls in the order they were created: the Controls collection.
    const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }
    MenuItem* findMenu(std::string_view name);
    // Gives a control a place in the tab order as a designer's TabIndex does: the controls from that
    // place on move one back, so the tab indexes stay 0 to n-1 without a gap.
    void setTabIndex(Control& control, int tabIndex);

    Desktop* desktop() const { return desktop_; }
    Control* activeControl() const { return activeControl_; }
    bool isLoaded() const { return desktop_ != nullptr; }

    // Moves the focus as a SetFocus from code does: validation of the field being left first.
    void setFocus(Control& control);
    // Unloads this form: QueryUnload, Unload, and its removal from the desktop.
    void unload();

    // Events. Handlers are named after the events they answer.
    virtual void onLoad() {}
    virtual void onActivate() {}
    virtual void onQueryUnload(bool& /*cancel*/) {}
    virtual void onUnload(bool& /*cancel*/) {}
    virtual void onGotFocus(Control&) {}
    virtual void onLostFocus(Control&) {}
    virtual void onKeyDown(Control&, int& /*keyCode*/, int /*shift*/) {}
    virtual void onKeyPress(Control&, int& /*keyAscii*/) {}
    virtual void onChange(Control&) {}
    virtual void onValidate(Control&, bool& /*cancel*/) {}
    virtual void onClick(Control&, MouseButton) {}
    virtual void onMenu(const std::string& /*itemName*/) {}

private:
    friend class Desktop;
    std::string name_;
    std::vector<std::unique_ptr<Control>> controls_;
    Desktop* desktop_ = nullptr;
    Control* activeControl_ = nullptr;
};

}  // namespace lw
