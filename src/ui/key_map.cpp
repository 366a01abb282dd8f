#include "ui/key_map.h"

#include "model/keys.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

// Shifted symbols of a US keyboard give the key code of their unshifted key, as KeyDown reports it.
int symbolKeyCode(int qtKey) {
    switch (qtKey) {
        case Qt::Key_Exclam:
            return '1';
        case Qt::Key_At:
            return '2';
        case Qt::Key_NumberSign:
            return '3';
        case Qt::Key_Dollar:
            return '4';
        case Qt::Key_Percent:
            return '5';
        case Qt::Key_AsciiCircum:
            return '6';
        case Qt::Key_Ampersand:
            return '7';
        case Qt::Key_Asterisk:
            return '8';
        case Qt::Key_ParenLeft:
            return '9';
        case Qt::Key_ParenRight:
            return '0';
        case Qt::Key_Semicolon:
        case Qt::Key_Colon:
            return 186;
        case Qt::Key_Equal:
        case Qt::Key_Plus:
            return 187;
        case Qt::Key_Comma:
        case Qt::Key_Less:
            return 188;
        case Qt::Key_Minus:
        case Qt::Key_Underscore:
            return 189;
        case Qt::Key_Period:
        case Qt::Key_Greater:
            return 190;
        case Qt::Key_Slash:
        case Qt::Key_Question:
            return 191;
        case Qt::Key_QuoteLeft:
        case Qt::Key_AsciiTilde:
            return 192;
        case Qt::Key_BracketLeft:
        case Qt::Key_BraceLeft:
            return 219;
        case Qt::Key_Backslash:
        case Qt::Key_Bar:
            return 220;
        case Qt::Key_BracketRight:
        case Qt::Key_BraceRight:
            return 221;
        case Qt::Key_Apostrophe:
        case Qt::Key_QuoteDbl:
            return 222;
        default:
            return 0;
    }
}

int keypadKeyCode(int qtKey) {
    if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return 96 + (qtKey - Qt::Key_0);
    switch (qtKey) {
        case Qt::Key_Asterisk:
            return 106;
        case Qt::Key_Plus:
            return 107;
        case Qt::Key_Minus:
            return 109;
        case Qt::Key_Period:
        case Qt::Key_Comma:
            return 110;
        case Qt::Key_Slash:
            return 111;
        case Qt::Key_Enter:
            return keys::kEnter;
        default:
            return 0;
    }
}

}  // namespace

int modelShift(Qt::KeyboardModifiers modifiers) {
    int shift = 0;
    if (modifiers & Qt::ShiftModifier) shift |= keys::kShiftMask;
    if (modifiers & Qt::ControlModifier) shift |= keys::kCtrlMask;
    if (modifiers & Qt::AltModifier) shift |= keys::kAltMask;
    return shift;
}

int modelKeyCode(int qtKey, Qt::KeyboardModifiers modifiers) {
    if (modifiers & Qt::KeypadModifier) {
        if (int code = keypadKeyCode(qtKey)) return code;
    }
    if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return 'A' + (qtKey - Qt::Key_A);
    if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return '0' + (qtKey - Qt::Key_0);
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) return keys::kF1 + (qtKey - Qt::Key_F1);
    switch (qtKey) {
        case Qt::Key_Backspace:
            return keys::kBackspace;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return keys::kTab;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return keys::kEnter;
        case Qt::Key_Shift:
            return 16;
        case Qt::Key_Control:
            return 17;
        case Qt::Key_Alt:
            return 18;
        case Qt::Key_Pause:
            return 19;
        case Qt::Key_CapsLock:
            return 20;
        case Qt::Key_Escape:
            return keys::kEscape;
        case Qt::Key_Space:
            return keys::kSpace;
        case Qt::Key_PageUp:
            return 33;
        case Qt::Key_PageDown:
            return 34;
        case Qt::Key_End:
            return keys::kEnd;
        case Qt::Key_Home:
            return keys::kHome;
        case Qt::Key_Left:
            return keys::kLeft;
        case Qt::Key_Up:
            return 38;
        case Qt::Key_Right:
            return keys::kRight;
        case Qt::Key_Down:
            return 40;
        case Qt::Key_Insert:
            return 45;
        case Qt::Key_Delete:
            return keys::kDelete;
        default:
            break;
    }
    // A key of a national layout has no classic code: its character reaches KeyPress alone.
    return symbolKeyCode(qtKey);
}

std::optional<ModelKey> modelKey(const QKeyEvent& event) {
    ModelKey key;
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    const int qtKey = event.key();
    key.keyCode = modelKeyCode(qtKey, modifiers);
    key.shift = modelShift(modifiers);
    const bool ctrl = modifiers & Qt::ControlModifier;
    const bool alt = modifiers & Qt::AltModifier;

    if ((qtKey == Qt::Key_Tab || qtKey == Qt::Key_Backtab) && !ctrl) {
        key.tab = true;
        key.backwards = qtKey == Qt::Key_Backtab || (modifiers & Qt::ShiftModifier);
        return key;
    }
    switch (qtKey) {
        case Qt::Key_Backspace:
            key.keyAscii = keys::kBackspace;
            return key;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            key.keyAscii = keys::kEnter;
            return key;
        case Qt::Key_Escape:
            key.keyAscii = keys::kEscape;
            return key;
        case Qt::Key_Delete:
            return key;
        default:
            break;
    }
    if (ctrl && !alt) {
        // Ctrl with a letter types the control character of that letter: Ctrl+C 3, Ctrl+V 22, Ctrl+X 24.
        if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) key.keyAscii = 1 + (qtKey - Qt::Key_A);
        return key;
    }
    if (alt && !ctrl) return key;  // an access key of the menus, not a character
    const QString text = event.text();
    if (text.isEmpty() || text[0].unicode() < 0x20 || text[0].unicode() == 0x7F) return key;
    const std::optional<std::string> bytes = toCp1252(text);
    if (!bytes || bytes->empty()) return std::nullopt;
    key.keyAscii = static_cast<unsigned char>((*bytes)[0]);
    key.more = bytes->substr(1);
    return key;
}

}  // namespace lw::ui
