#pragma once
// What a screen reader finds in a form view: its editors, each with the name of its box, and the check
// boxes the view paints itself, which have no widget of their own.

namespace lw::ui {

// Teaches Qt's accessibility to describe form views; runs once.
void installFormViewAccessibility();

}  // namespace lw::ui
