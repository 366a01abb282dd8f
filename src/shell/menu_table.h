#pragma once
// The frame's menu bar: every menu and item in its order, and the form each form item opens.

#include <string>
#include <vector>

namespace lw {

struct MenuEntry {
    const char* menu;      // name of the menu the item belongs to
    const char* item;      // name of the item; empty for the menu title itself
    const char* caption;
    const char* opensForm; // the form an item opens, or empty for a command
};

const std::vector<MenuEntry>& menuTable();

}  // namespace lw
