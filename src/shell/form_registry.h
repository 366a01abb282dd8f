#pragma once
// Forms are created on demand by name; a form that the program does not have yet has no factory.

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "model/form.h"
#include "model/program_parts.h"

namespace lw {

// A factory hands the new form the parts of the program it works with.
using FormFactory = std::function<std::unique_ptr<Form>(const ProgramParts&)>;

void registerForm(const std::string& name, FormFactory factory);
bool hasForm(std::string_view name);
std::unique_ptr<Form> createForm(std::string_view name, const ProgramParts& parts);

}  // namespace lw
