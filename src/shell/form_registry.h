#pragma once
// Forms are created on demand by name; a form that the program does not have yet has no factory.

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "model/form.h"

namespace lw {

using FormFactory = std::function<std::unique_ptr<Form>()>;

void registerForm(const std::string& name, FormFactory factory);
bool hasForm(std::string_view name);
std::unique_ptr<Form> createForm(std::string_view name);

}  // namespace lw
