#pragma once
// Finding what a screen reader says of each field takes long on a large form, and a form is made anew
// each time it opens: the names found for a form whose controls read as before are given again.

#include <map>

#include "catalogue/field_names.h"
#include "model/form.h"

namespace lw::ui {

// The names of the form's fields, as fieldNamesOf gives them, for this form's own controls.
std::map<const Control*, FieldName> keptFieldNamesOf(const Form& form);

}  // namespace lw::ui
