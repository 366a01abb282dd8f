#include "catalogue/definitions.h"

#include <map>
#include <memory>
#include <string>

#include "catalogue/definition_reader.h"
#include "text/case.h"

namespace lw {

namespace {
const EmbeddedDefinition* embedded(std::string_view formName) {
    for (const EmbeddedDefinition& entry : embeddedDefinitions())
        if (text::equalsNoCase(entry.formName, formName)) return &entry;
    return nullptr;
}
}  // namespace

bool hasDefinition(std::string_view formName) { return embedded(formName) != nullptr; }

const FormDefinition* findDefinition(std::string_view formName) {
    static std::map<std::string, std::unique_ptr<FormDefinition>> read;
    const EmbeddedDefinition* entry = embedded(formName);
    if (!entry) return nullptr;
    auto it = read.find(entry->formName);
    if (it != read.end()) return it->second.get();
    auto definition = std::make_unique<FormDefinition>(readDefinition(entry->text));
    if (!text::equalsNoCase(definition->name, entry->formName))
        throw DefinitionError(std::string("the drawing of ") + entry->formName + " names the form " +
                              definition->name);
    return read.emplace(entry->formName, std::move(definition)).first->second.get();
}

}  // namespace lw
