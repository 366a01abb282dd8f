#include "shell/catalogue_form.h"

#include "catalogue/catalogue_table.h"
#include "catalogue/definitions.h"

namespace lw {

CatalogueForm::CatalogueForm(const std::string& name) : Form(name) {
    if (const FormDefinition* definition = findDefinition(name)) realizeDefinition(*definition, *this);
    if (const CatalogueEntry* entry = findCatalogueEntry(name)) caption = entry->caption;
}

}  // namespace lw
