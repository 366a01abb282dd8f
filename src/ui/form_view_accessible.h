#pragma once
// What a screen reader finds in a form view: its editors, each with the name of its box, and what the
// view paints itself with no widget of its own: check boxes, the captions of the boxes (each labelling
// the fields of its box) and the tabs of a tab control.

namespace lw::ui {

// Set on the editor of a text box that only shows words: a screen reader reads it as static text.
inline constexpr const char* kWordsOnlyProperty = "lwWordsOnly";

// Teaches Qt's accessibility to describe form views; runs once.
void installFormViewAccessibility();

// Whether a screen reader listens. Finding the names of a large form's fields takes longer than opening
// it, so they are found only for a listener, and for every open form as soon as one starts listening.
bool screenReaderListens();

}  // namespace lw::ui
