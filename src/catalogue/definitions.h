#pragma once
// The drawings of the forms, kept in the program as the text they were written in and read on first use.

#include <string_view>

#include "catalogue/form_definition.h"

namespace lw {

// The definition of a form, read once; nullptr when the program has no drawing of that form.
// A drawing that cannot be read throws DefinitionError on every use.
const FormDefinition* findDefinition(std::string_view formName);
bool hasDefinition(std::string_view formName);

struct EmbeddedDefinition {
    const char* formName;
    const char* text;
};
// Made by the build from the definition files.
const std::vector<EmbeddedDefinition>& embeddedDefinitions();

}  // namespace lw
