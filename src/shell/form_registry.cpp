#include "shell/form_registry.h"

#include <map>

#include "text/case.h"

namespace lw {

namespace {
std::map<std::string, FormFactory>& factories() {
    static std::map<std::string, FormFactory> table;
    return table;
}
}  // namespace

void registerForm(const std::string& name, FormFactory factory) {
    factories()[text::toUpper(name)] = std::move(factory);
}

bool hasForm(std::string_view name) { return factories().count(text::toUpper(name)) > 0; }

std::unique_ptr<Form> createForm(std::string_view name, const ProgramParts& parts) {
    auto it = factories().find(text::toUpper(name));
    if (it == factories().end()) return nullptr;
    return it->second(parts);
}

}  // namespace lw
