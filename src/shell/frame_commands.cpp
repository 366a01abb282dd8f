// The frame's commands: its buttons, menu items, the legend panel, and the end of the program.
#include "diagnostics/error_logger.h"
#include "diagnostics/error_tail.h"
#include "model/app_error.h"
#include "model/program.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"
#include "shell/frame_form.h"
#include "shell/menu_table.h"
#include "shell/startup.h"
#include "text/case.h"

namespace lw {

namespace {

Globals& g() { return program().g; }

bool hasChildForms() {
    for (Form* form : program().desktop.forms())
        if (form->isChild) return true;
    return false;
}

// A task bar to hide exists only on the classic desktop; on ours the flag alone records the wish.
void ScreenTaskbar_Hide(F0_MDI& frame) { frame.bTaskbarHidden = true; }
void ScreenTaskbar_Show(F0_MDI& frame) { frame.bTaskbarHidden = false; }

void MDI_Quit() {
    if (hasChildForms()) g().bQuitting = true;
    program().ui.quit();
}

void openFormFromMenu(const std::string& formName) {
    g().CurrentFileName.clear();
    Form_Open(formName);
}

void cmdBtn_Click(F0_MDI& frame, Control& button) {
    const std::string pressed = text::toUpper(button.caption);
    try {
        if (pressed == "QUIT") {
            ScreenTaskbar_Show(frame);
            MDI_Quit();
            return;
        }
        Form* active = program().desktop.activeChild();
        if (!active)
            throw AppError(800, "You must open an existing form or create a new form before continuing.",
                           "F0_MDI:cmdBtn_Click");
        if (pressed == "CLOSE") {
            g().CurrentFileName.clear();
            active->unload();
            return;
        }
    } catch (const ProgramEnded&) {
        throw;
    } catch (const AppError& error) {
        if (text::containsNoCase(program().platform.commandLine(), "Error"))
            Error_Logger("F0_MDI:cmdBtn_Click - Button Pressed = " + button.caption, error.number(),
                         error.description());
        Error_Logger("F0_MDI:cmdBtn_Click", error.number(), error.description());
    }
}

void picLegends_Click(F0_MDI& frame) {
    if (!text::containsNoCase(g().CommandWords, "taskbar")) return;
    if (frame.bTaskbarHidden)
        ScreenTaskbar_Show(frame);
    else
        ScreenTaskbar_Hide(frame);
}

}  // namespace

void F0_MDI::onLoad() { Frame_Form_Load(*this); }

void F0_MDI::onClick(Control& control, MouseButton) {
    if (text::equalsNoCase(control.name, "cmdBtn")) cmdBtn_Click(*this, control);
    if (text::equalsNoCase(control.name, "picLegends")) picLegends_Click(*this);
}

void F0_MDI::onMenu(const std::string& itemName) {
    runGuarded("F0_MDI:mnu_Click", [&] {
        for (const MenuEntry& entry : menuTable()) {
            if (entry.opensForm[0] != '\0' && text::equalsNoCase(entry.item, itemName)) {
                openFormFromMenu(entry.opensForm);
                return;
            }
        }
        if (text::equalsNoCase(itemName, "mnuControlQuit")) {
            MDI_Quit();
        } else if (text::equalsNoCase(itemName, "mnuControlClose")) {
            if (Form* active = program().desktop.activeChild()) active->unload();
        } else if (text::equalsNoCase(itemName, "mnuControlGuide")) {
            if (!program().ui.openDocument(g().UserGuideFile))
                throw AppError(900, "(2) Error encountered opening " + g().UserGuideFile,
                               "F0_MDI:mnuControlGuide_Click");
        }
    });
}

void F0_MDI::onQueryUnload(bool&) { g().bQuitting = true; }

void F0_MDI::onUnload(bool&) { ScreenTaskbar_Show(*this); }

}  // namespace lw
