#include "forms/register_forms.h"

#include "catalogue/catalogue_table.h"
#include "catalogue/definitions.h"
#include "config/configure_form.h"
#include "config/rates.h"
#include "documents/record.h"
#include "documents/saving.h"
#include "model/program.h"
#include "shell/frame_command_hooks.h"
#include "forms/form_1099b.h"
#include "forms/form_1099g.h"
#include "forms/tax_form.h"
#include "forms/w2_form.h"
#include "shell/form_registry.h"

namespace lw {

namespace {

// The configuration form keeps its figures in the rates file: Save writes them, closing asks about them.
void wireConfigureCommands() {
    FrameCommandHooks& hooks = frameCommandHooks();
    hooks.saveRates = [] {
        SS_MC_Save();
        if (auto* form = dynamic_cast<F1_Configure*>(program().desktop.findForm("F1_Configure"))) form->bChanged = false;
    };
    hooks.checkRateChanges = [] { SS_MC_Check_Changes(); };
}

}  // namespace

void registerAllForms() {
    registerConfigureForm();
    wireConfigureCommands();
    frameCommandHooks().openFile = [] { Open_File(); };
    frameCommandHooks().saveFile = [] { Save_File(); };
    // Forms with handlers of their own.
    registerW2Form();
    register1099BForm();
    register1099GForm();

    // Every form of the catalogue with a drawing and no handlers beyond the standard ones.
    for (const CatalogueEntry& entry : catalogue()) {
        const std::string name = entry.form;
        if (hasForm(name) || !hasDefinition(name)) continue;
        registerForm(name, [name] { return std::make_unique<TaxForm>(name); });
    }
}

}  // namespace lw
