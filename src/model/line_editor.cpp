#include "model/line_editor.h"

#include <algorithm>

#include "model/control.h"
#include "model/keys.h"
#include "model/ports.h"

namespace lw {

bool LineEditor::typeCharacter(int ascii) {
    if (ascii == keys::kCtrlC || ascii == keys::kCtrlX) return copySelection(ascii == keys::kCtrlX);
    if (ascii == keys::kCtrlV) {
        // An empty clipboard pastes nothing and leaves the selection standing.
        const std::string pasted = clipboard_.clipboardText();
        return !pasted.empty() && replaceSelection(pasted);
    }
    if (ascii == keys::kBackspace) return pressKey(keys::kBackspace, 0);
    if (ascii == keys::kEnter) return box_.multiLine && replaceSelection("\r\n");
    if (ascii >= 32 || ascii < 0) return replaceSelection(std::string(1, static_cast<char>(ascii)));
    return false;
}

bool LineEditor::pressKey(int keyCode, int shift) {
    const int size = static_cast<int>(box_.text.size());
    const int start = box_.selStart();
    const int length = box_.selLength();
    const bool extend = shift & keys::kShiftMask;
    switch (keyCode) {
        case keys::kBackspace:
            return deleteAtCaret(true);
        case keys::kDelete:
            return deleteAtCaret(false);
        case keys::kHome:
            box_.select(0, extend ? start + length : 0);
            return false;
        case keys::kEnd:
            box_.select(extend ? start : size, extend ? size - start : 0);
            return false;
        case keys::kLeft:
            box_.setSelStart(length > 0 ? start : std::max(0, start - 1));
            return false;
        case keys::kRight:
            box_.setSelStart(length > 0 ? start + length : std::min(size, start + 1));
            return false;
        default:
            return false;
    }
}

bool LineEditor::replaceSelection(const std::string& piece) {
    if (box_.locked) return false;
    std::string taken = piece;
    // A single-line box keeps one line: a pasted line end ends the paste, as the platform's box does.
    if (!box_.multiLine) taken.erase(std::min(taken.find_first_of("\r\n"), taken.size()));
    const std::size_t start = box_.selStart();
    const std::size_t length = box_.selLength();
    if (box_.maxLength > 0) {
        const std::size_t kept = box_.text.size() - length;
        const std::size_t room = static_cast<std::size_t>(box_.maxLength) > kept ? box_.maxLength - kept : 0;
        if (taken.size() > room) taken.erase(room);
        // A full box refuses what is typed or pasted into it.
        if (taken.empty() && !piece.empty()) return false;
    }
    box_.text.replace(start, length, taken);
    box_.setSelStart(static_cast<int>(start + taken.size()));
    return true;
}

// Ctrl+C copies the selection; Ctrl+X copies it and takes it out of a box that is not locked.
bool LineEditor::copySelection(bool cut) {
    const std::string selected = box_.text.substr(box_.selStart(), box_.selLength());
    if (!selected.empty()) clipboard_.setClipboardText(selected);
    return cut && replaceSelection("");
}

// Backspace takes the character before the caret, Delete the one after it; either takes a selection
// whole.
bool LineEditor::deleteAtCaret(bool backwards) {
    if (box_.locked) return false;
    int start = box_.selStart();
    int length = box_.selLength();
    if (length == 0 && backwards && start > 0) {
        --start;
        length = 1;
    } else if (length == 0 && !backwards && start < static_cast<int>(box_.text.size())) {
        length = 1;
    }
    if (length == 0) return false;
    box_.text.erase(start, length);
    box_.setSelStart(start);
    return true;
}

}  // namespace lw
