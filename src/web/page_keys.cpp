// Every key the operator presses in a field goes to the engine, as the window's keys do: Tab moves the
// focus as the engine says, and a character is the code page's byte of KeyPress.
#include "model/keys.h"
#include "text/cp1252.h"
#include "web/page_view.h"

namespace lw::web {

namespace {

// The character of KeyPress for a key, 0 for a key that types none, -1 for a character the code page
// cannot hold.
int keyAsciiOf(int keyCode, int shift, const std::string& name) {
    if (name == "Backspace") return keys::kBackspace;
    if (name == "Enter") return keys::kEnter;
    if (name == "Escape") return keys::kEscape;
    const bool ctrl = shift & keys::kCtrlMask, alt = shift & keys::kAltMask;
    // Ctrl with a letter types a control character; Ctrl with Alt is AltGr, which types what it names.
    if (ctrl && !alt) return keyCode >= 'A' && keyCode <= 'Z' ? keyCode - 'A' + 1 : 0;
    // Alt alone with a key is an access key of the menus, never a character.
    if (alt && !ctrl) return 0;
    const unsigned char first = name.empty() ? 0 : static_cast<unsigned char>(name[0]);
    const std::size_t length = first < 0x80 ? 1 : (first >> 5) == 6 ? 2 : (first >> 4) == 14 ? 3 : 4;
    if (name.empty() || name.size() != length) return 0;  // a named key: "ArrowLeft", "F12" ...
    const std::optional<std::string> byte = text::utf8ToCp1252(name);
    if (!byte || byte->size() != 1) return -1;
    return static_cast<unsigned char>((*byte)[0]);
}

}  // namespace

void PageView::key(int keyCode, int shift, const std::string& name) {
    Desktop& desktop = program_.desktop;
    if (!desktop.focus()) return;
    if (name == "Tab") {
        runInput([&desktop, shift] { desktop.tab(shift & keys::kShiftMask); });
        return;
    }
    const int keyAscii = keyAsciiOf(keyCode, shift, name);
    if (keyAscii < 0) {
        showStatus(
            "That character cannot be typed here: the program keeps its text in the Windows-1252 code page.");
        return;
    }
    if (keyCode == 0 && keyAscii == 0) {
        show();  // an input the page did not see as keys is put back as the engine has it
        return;
    }
    runInput([&desktop, keyCode, shift, keyAscii] { desktop.pressKey(keyCode, shift, keyAscii); });
}

}  // namespace lw::web
