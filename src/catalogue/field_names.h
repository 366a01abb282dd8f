#pragma once
// What a screen reader says of a field: the caption of its box on the form, as "Box 1, Wages, tips,
// other compensation", found from where the form's labels stand around it; where one box holds several
// fields, what tells them apart: the caption of their row, the frame around them, their line and column
// ("Box 14, Other, line 2, amount").

#include <map>
#include <string>

#include "model/form.h"

namespace lw {

// The name of a field and the control whose caption (or spoken words) shows its box on the form: a
// label, or a frame or panel that holds it; no box when only the field's tip names it.
struct FieldName {
    std::string text;
    const Control* box = nullptr;
};

// Text boxes, check boxes, combo boxes, option buttons and command buttons; not a text box that only
// shows words.
bool isNamedField(const Control& control);

// The names of every field of the form, hidden ones too, each different from the others.
std::map<const Control*, FieldName> fieldNamesOf(const Form& form);

// The name of one field, as fieldNamesOf gives it; empty when nothing names it.
std::string accessibleNameOf(const Form& form, const Control& control);

// "1. Wages" and "12a See instructions" become "Box 1, Wages" and "Box 12a, See instructions"; line
// breaks become blanks; a caption without a box stays as it is.
std::string spokenCaption(const std::string& caption);

// What a screen reader says of a box control: its own spoken words, else its caption as spoken, with
// no colon at the end.
std::string spokenWordsOf(const Control& box);

}  // namespace lw
