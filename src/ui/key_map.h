#pragma once
// Qt's key events as the model's keys: a key code as KeyDown has it, the shift state, and the
// character of KeyPress in the code page.

#include <QKeyEvent>
#include <optional>
#include <string>

namespace lw::ui {

struct ModelKey {
    int keyCode = 0;
    int shift = 0;
    int keyAscii = 0;  // 0 for a key that types no character
    std::string more;  // further characters the same key typed (a composed sequence)
    bool tab = false;  // Tab or Shift+Tab: the model moves the focus
    bool backwards = false;
};

// The model's key, or nothing when the key typed a character the code page cannot hold.
std::optional<ModelKey> modelKey(const QKeyEvent& event);

int modelKeyCode(int qtKey, Qt::KeyboardModifiers modifiers);
int modelShift(Qt::KeyboardModifiers modifiers);

}  // namespace lw::ui
