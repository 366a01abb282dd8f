#pragma once
// The edit of a text box's text by the operator, as the platform's own box makes it: what is typed or
// pasted takes the place of the selection, MaxLength and Locked are honoured, Enter breaks the line
// only in a multi-line box, and the editing keys move the caret or delete. Each edit says whether the
// box took it; the caller then raises the box's Change event.

#include <string>

namespace lw {

struct Control;
class UiPort;

class LineEditor {
public:
    // `clipboard` serves the keys that copy, cut and paste.
    LineEditor(Control& box, UiPort& clipboard) : box_(box), clipboard_(clipboard) {}

    // A character that the box's KeyPress let through: text, Enter, Backspace, Ctrl+C, Ctrl+X, Ctrl+V.
    bool typeCharacter(int ascii);
    // A key with no character: Backspace, Delete, Home, End and the arrows (Shift stretches the
    // selection to Home or End).
    bool pressKey(int keyCode, int shift);
    // Puts `piece` in place of the selection, as much of it as MaxLength leaves room for; a single-line
    // box takes the piece's first line only.
    bool replaceSelection(const std::string& piece);

private:
    bool copySelection(bool cut);
    bool deleteAtCaret(bool backwards);

    Control& box_;
    UiPort& clipboard_;
};

}  // namespace lw
