#pragma once
// Makes every form the program has known by name, so that menus and files can open them.

namespace lw {

void registerAllForms();

}  // namespace lw
