#include "model/control.h"

namespace lw {

const char* controlKindName(ControlKind kind) {
    switch (kind) {
        case ControlKind::TextBox:
            return "TextBox";
        case ControlKind::Label:
            return "Label";
        case ControlKind::CheckLabel:
            return "CheckLabel";
        case ControlKind::Shape:
            return "Shape";
        case ControlKind::Line:
            return "Line";
        case ControlKind::Picture:
            return "PictureBox";
        case ControlKind::Image:
            return "Image";
        case ControlKind::Frame:
            return "Frame";
        case ControlKind::OptionButton:
            return "OptionButton";
        case ControlKind::ComboBox:
            return "ComboBox";
        case ControlKind::ListBox:
            return "ListBox";
        case ControlKind::CommandButton:
            return "CommandButton";
        case ControlKind::TabControl:
            return "TabStrip";
        case ControlKind::Grid:
            return "Grid";
    }
    return "Control";
}

std::string Control::key() const {
    if (index == kNoIndex) return name;
    return name + "(" + std::to_string(index) + ")";
}

const std::string& Control::shownText() const {
    switch (kind) {
        case ControlKind::TextBox:
        case ControlKind::ComboBox:
        case ControlKind::ListBox:
            return text;
        default:
            return caption;
    }
}

int Control::selStart() const { return std::clamp(selStart_, 0, static_cast<int>(text.size())); }

int Control::selLength() const {
    return std::clamp(selLength_, 0, static_cast<int>(text.size()) - selStart());
}

void Control::setSelStart(int start) {
    selStart_ = std::clamp(start, 0, static_cast<int>(text.size()));
    selLength_ = 0;
}

void Control::setSelLength(int length) {
    selLength_ = std::clamp(length, 0, static_cast<int>(text.size()) - selStart());
}

void Control::select(int start, int length) {
    setSelStart(start);
    setSelLength(length);
}

bool Control::canTakeFocus() const {
    if (!focusable) return false;
    switch (kind) {
        case ControlKind::TextBox:
        case ControlKind::ComboBox:
        case ControlKind::ListBox:
        case ControlKind::CommandButton:
        case ControlKind::OptionButton:
        case ControlKind::TabControl:
        case ControlKind::Grid:
        case ControlKind::Picture:
            return visible && enabled;
        default:
            return false;
    }
}

}  // namespace lw
