#include "shell/catalogue_form.h"

#include "catalogue/catalogue_table.h"
#include "catalogue/definitions.h"

namespace lw {

CatalogueForm::CatalogueForm(const std::string& name) : Form(name) {
    if (const FormDefinition* definition = findDefinition(name)) realizeDefinition(*definition, *this);
    if (const CatalogueEntry* entry = findCatalogueEntry(name)) caption = entry->caption;
}

void CatalogueForm::styleTextBox(Control& box) { setTextFont(box, "Tahoma", 10); }

void CatalogueForm::showYearDigits(const std::string& digits) { at("TaxYear", 1).caption = digits; }

void setTextFont(Control& box, const char* name, double size, bool bold) {
    box.fontName = name;
    box.fontSize = size;
    box.fontBold = bold;
}

}  // namespace lw
