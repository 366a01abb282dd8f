#include "forms/register_forms.h"

#include "catalogue/catalogue_table.h"
#include "catalogue/definitions.h"
#include "config/configure_form.h"
#include "config/rates.h"
#include "documents/record.h"
#include "documents/saving.h"
#include "model/program.h"
#include "output/form_print.h"
#include "output/screen_clip.h"
#include "shell/frame_command_hooks.h"
#include "forms/form_1095a.h"
#include "forms/form_1095bc.h"
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
    hooks.markRatesKept = [] {
        if (auto* form = dynamic_cast<F1_Configure*>(program().desktop.findForm("F1_Configure"))) form->bChanged = false;
    };
    hooks.saveRates = [] {
        SS_MC_Save();
        frameCommandHooks().markRatesKept();
    };
    hooks.checkRateChanges = [] { SS_MC_Check_Changes(); };
}

void wireOutputCommands() {
    FrameCommandHooks& hooks = frameCommandHooks();
    hooks.screenClip = [] { Screen_Clip(); };
    hooks.printForm = [](Form& form) { Form_Print(form); };
    hooks.mdiClip = [] { MDI_Clip(); };
}

}  // namespace

void registerAllForms() {
    registerConfigureForm();
    wireConfigureCommands();
    wireOutputCommands();
    frameCommandHooks().openFile = [] { Open_File(); };
    frameCommandHooks().saveFile = [] { Save_File(); };
    // Forms with handlers of their own.
    registerW2Form();
    register1099BForm();
    register1099GForm();
    register1095AForm();
    register1095BCForms();

    // Every form of the catalogue with a drawing and no handlers beyond the standard ones.
    for (const CatalogueEntry& entry : catalogue()) {
        const std::string name = entry.form;
        if (hasForm(name) || !hasDefinition(name)) continue;
        registerForm(name, [name] { return std::make_unique<TaxForm>(name); });
    }
}

}  // namespace lw
