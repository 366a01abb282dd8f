#pragma once
// What a screen reader says of a field: the caption of its box on the form, as "Box 1, Wages, tips,
// other compensation", found from where the form's labels stand around it.

#include <string>

#include "model/form.h"

namespace lw {

// The name of a text box, check box, option button, combo box or button: its box and caption when a
// label captions it, else its own caption, else its tip; empty when nothing names it.
std::string accessibleNameOf(const Form& form, const Control& control);

// "1. Wages" and "12a See instructions" become "Box 1, Wages" and "Box 12a, See instructions"; line
// breaks become blanks; a caption without a box stays as it is.
std::string spokenCaption(const std::string& caption);

}  // namespace lw
