#pragma once
// A form as data: its size, title and every control with its place and properties, in the order in which
// the controls are created (the order of the form's Controls collection).

#include <string>
#include <vector>

#include "model/control.h"

namespace lw {

struct ControlDefinition {
    Control control;        // the properties as designed; `form` is set when the control is made
    std::string container;  // the control it is drawn inside, drawn before it; empty for the form
};

struct FormDefinition {
    std::string name;
    std::string caption;
    int width = 0;  // twips
    int height = 0;
    std::vector<ControlDefinition> controls;
};

// Makes the controls of a definition on a form, and gives the form its caption and size.
void realizeDefinition(const FormDefinition& definition, Form& form);

}  // namespace lw
