#pragma once
// Key codes as the key events carry them: KeyDown gets a key code, KeyPress a character code.

namespace lw::keys {

constexpr int kBackspace = 8;
constexpr int kTab = 9;
constexpr int kEnter = 13;
constexpr int kEscape = 27;
constexpr int kSpace = 32;
constexpr int kEnd = 35;
constexpr int kHome = 36;
constexpr int kLeft = 37;
constexpr int kRight = 39;
constexpr int kDelete = 46;
constexpr int kF1 = 112;
constexpr int kF12 = 123;

// Character codes of the control keys that reach KeyPress.
constexpr int kCtrlC = 3;
constexpr int kCtrlV = 22;
constexpr int kCtrlX = 24;

// Shift state of KeyDown.
constexpr int kShiftMask = 1;
constexpr int kCtrlMask = 2;
constexpr int kAltMask = 4;

constexpr bool isFunctionKey(int keyCode) { return keyCode >= kF1 && keyCode <= kF12; }

}  // namespace lw::keys
