#include "shell/catalogue_form.h"

#include "catalogue/catalogue_table.h"
#include "catalogue/definitions.h"
#include "fields/control_setup.h"
#include "model/edition_settings.h"
#include "shell/form_lifecycle.h"
#include "shell/frame_command_hooks.h"

namespace lw {

CatalogueForm::CatalogueForm(const std::string& name, const ProgramParts& parts) : Form(name), parts_(parts) {
    if (const FormDefinition* definition = findDefinition(name)) realizeDefinition(*definition, *this);
    if (const CatalogueEntry* entry = findCatalogueEntry(name)) caption = entry->caption;
}

void CatalogueForm::styleTextBox(Control& box) { setTextFont(box, "Tahoma", 10); }

void CatalogueForm::showYearDigits(const std::string& digits) { at("TaxYear", 1).caption = digits; }

Control& CatalogueForm::focusOnOpening(int focusOnStartup) { return at("Text1", focusOnStartup); }

void CatalogueForm::saveCommand() { saveAsDocument(parts()); }

void CatalogueForm::afterPrinted() {
    focusFirstFieldAfterPrint(*this, parts().document, parts().edition.legendColors);
}

void CatalogueForm::clearCommand(bool) { clearAndFocusFirstField(*this); }

void CatalogueForm::afterTaxpayerFill() { refocusAfterTaxpayerFill(parts().document); }

void saveAsDocument(const ProgramParts& parts) {
    if (frameCommandHooks().saveFile) frameCommandHooks().saveFile(parts);
}

void focusFirstFieldAfterPrint(Form& form, OpenDocument& document, const LegendColors& legend) {
    if (Control* first = form.find("Text1", 0)) {
        setUpControl(*first, false, document, legend);
        form.setFocus(*first);
    }
}

void clearAndFocusFirstField(Form& form) {
    clearForm();
    if (Control* first = form.find("Text1", 0)) form.setFocus(*first);
}

void setTextFont(Control& box, const char* name, double size, bool bold) {
    box.fontName = name;
    box.fontSize = size;
    box.fontBold = bold;
}

}  // namespace lw
