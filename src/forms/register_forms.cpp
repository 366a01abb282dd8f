#include "forms/register_forms.h"

#include "catalogue/catalogue_table.h"
#include "catalogue/definitions.h"
#include "config/configure_form.h"
#include "documents/record.h"
#include "documents/save_form.h"
#include "documents/saving.h"
#include "forms/cards_form.h"
#include "forms/check_form.h"
#include "forms/form_1095a.h"
#include "forms/form_1095bc.h"
#include "forms/form_1099a.h"
#include "forms/form_1099b.h"
#include "forms/form_1099g.h"
#include "forms/form_rrb1099.h"
#include "forms/form_ssa1099.h"
#include "forms/k1_form.h"
#include "forms/license_form.h"
#include "forms/tax_form.h"
#include "forms/tpinfo_form.h"
#include "forms/w2_form.h"
#include "model/open_document.h"
#include "model/process_state.h"
#include "output/form_print.h"
#include "output/screen_clip.h"
#include "shell/form_registry.h"
#include "shell/frame_command_hooks.h"
#include "taxpayer/load_tp.h"

namespace lw {

namespace {

void wireOutputCommands() {
    FrameCommandHooks& hooks = frameCommandHooks();
    hooks.screenClip = [](const ProgramParts& parts) {
        clipScreen(parts.document.currentForm, parts.process.debug);
    };
    hooks.printForm = [](const ProgramParts& parts, Form& form) { askAndPrint(parts, form); };
    hooks.mdiClip = [](const ProgramParts& parts) { clipCurrentForm(parts); };
}

}  // namespace

void registerAllForms() {
    registerConfigureForm();
    wireOutputCommands();
    frameCommandHooks().openFile = [](const ProgramParts& parts) { openDataFile(parts); };
    frameCommandHooks().saveFile = [](const ProgramParts& parts) { saveDataFile(parts); };
    // Forms with handlers of their own.
    registerW2Form();
    register1099AForm();
    register1099BForm();
    register1099GForm();
    registerTPInfoForm();
    registerCardsForm();
    registerCheckForm();
    registerLicenseForm();
    registerSSA1099Form();
    registerRRB1099Form();
    register1095AForm();
    register1095BCForms();
    registerK1Forms();
    // The Load TP buttons read the people of the case from the store that the sheet fills.
    frameCommandHooks().loadTaxpayer = [](const ProgramParts& parts, const std::string& who) {
        readTaxpayers(parts, who);
    };

    // Every form of the catalogue with a drawing and no handlers beyond the standard ones.
    for (const CatalogueEntry& entry : catalogue()) {
        const std::string name = entry.form;
        if (hasForm(name) || !hasDefinition(name)) continue;
        registerForm(name,
                     [name](const ProgramParts& parts) { return std::make_unique<TaxForm>(name, parts); });
    }
}

}  // namespace lw
