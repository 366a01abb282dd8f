// The frame's commands: its buttons, menu items, the legend panel, and the end of the program.
#include "diagnostics/error_logger.h"
#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "fields/edit_ctl.h"
#include "model/app_error.h"
#include "model/program.h"
#include "shell/catalogue_form.h"
#include "shell/form_lifecycle.h"
#include "shell/frame_command_hooks.h"
#include "shell/frame_form.h"
#include "shell/menu_table.h"
#include "shell/startup.h"
#include "text/case.h"

namespace lw {

namespace {

constexpr const char* kNoFormMessage =
    "You must open an existing form or create a new form before continuing.";

Globals& g() { return program().g; }
FrameCommandHooks& hooks() { return frameCommandHooks(); }

bool hasChildForms() {
    for (Form* form : program().desktop.forms())
        if (form->isChild) return true;
    return false;
}

// A task bar to hide exists only on the classic desktop; on ours the flag alone records the wish.
void hideTaskbar(FrameForm& frame) { frame.taskbarHidden = true; }
void showTaskbar(FrameForm& frame) { frame.taskbarHidden = false; }

// The form on the screen has its say before the program ends: the configuration form asks about changed
// rates.
void askTheFormBeforeEnding() {
    if (auto* form = dynamic_cast<CatalogueForm*>(program().desktop.activeChild())) form->beforeProgramEnds();
}

void quitProgram() {
    if (hasChildForms()) {
        g().process.quitting = true;
        askTheFormBeforeEnding();
    }
    program().ui.quit();
}

// Stage 4 of a button: a form whose computation failed may not be kept, printed or clipped.
bool outputBlocked(Form& active) {
    auto* form = dynamic_cast<CatalogueForm*>(&active);
    if (!form) return false;
    const std::string text = form->outputRefusal();
    if (text.empty()) return false;
    showMessageBox(program().desktop, {"F0_MDI:cmdBtn_Click", text, 801});
    return true;
}

// Every text box in the order of the form's controls; the first that does not stand keeps the focus.
bool allFieldsStand(Form& form) {
    const EditContext context = editContextOf(program().parts);
    for (const auto& owned : form.controls()) {
        if (owned->isTextBox() && !editField(*owned, context)) return false;
    }
    return true;
}

void runOutputCommand(const std::string& pressed, Form& active) {
    auto* form = dynamic_cast<CatalogueForm*>(&active);
    if (pressed == "SAVE") {
        if (!allFieldsStand(active)) return;
        if (form)
            form->saveCommand();
        else
            saveAsDocument(program().parts);
    } else if (pressed == "PRINT") {
        if (!hooks().printForm) return;
        if (hooks().screenClip) hooks().screenClip(program().parts);
        hooks().printForm(program().parts, active);
        resetFormLook();
        if (form)
            form->afterPrinted();
        else
            focusFirstFieldAfterPrint(active, g().document, g().edition.legendColors);
    } else if (pressed == "CLIP") {
        if (hooks().mdiClip) hooks().mdiClip(program().parts);
    }
}

void onFrameButton(FrameForm& frame, Control& button) {
    const std::string pressed = text::toUpper(button.caption);
    try {
        if (pressed == "QUIT") {
            showTaskbar(frame);
            quitProgram();
            return;
        }
        if (pressed == "OPEN") {
            if (hooks().openFile) hooks().openFile(program().parts);
            return;
        }
        if (pressed == "CONFIGURE") {
            g().document.currentFileName.clear();
            openCatalogueForm("F1_Configure");
        }
        Form* active = program().desktop.activeChild();
        if (!active) throw AppError(800, kNoFormMessage, "F0_MDI:cmdBtn_Click");
        auto* form = dynamic_cast<CatalogueForm*>(active);
        if (pressed == "LOAD TP 1" || pressed == "LOAD TP 2") {
            if (form && !form->takesTaxpayers()) return;
            if (hooks().loadTaxpayer)
                hooks().loadTaxpayer(program().parts, button.caption.substr(button.caption.size() - 4));
        } else if (pressed == "CLEAR") {
            if (form)
                form->clearCommand(false);
            else
                clearAndFocusFirstField(*active);
        } else if (pressed == "CLOSE") {
            g().document.currentFileName.clear();
            active->unload();
            return;
        } else if (pressed == "CHANGE TAX YR") {
            changeTaxYear(*active);
        }
        if (outputBlocked(*active)) return;
        runOutputCommand(pressed, *active);
    } catch (const ProgramEnded&) {
        throw;
    } catch (...) {
        Fault fault = faultOf(std::current_exception());
        if (text::containsNoCase(program().platform.commandLine(), "Error"))
            logError("F0_MDI:cmdBtn_Click - Button Pressed = " + button.caption, fault.number,
                     fault.description);
        if (fault.number == 343) return;
        stopForProgrammer("F0_MDI:cmdBtn_Click", fault);
        logError("F0_MDI:cmdBtn_Click", fault.number, fault.description);
    }
}

void onLegendClick(FrameForm& frame) {
    if (!text::containsNoCase(g().process.commandWords, "taskbar")) return;
    if (frame.taskbarHidden)
        showTaskbar(frame);
    else
        hideTaskbar(frame);
}

// The menu's Clear works on CurrentForm, where the button's works on the form on the screen.
void onMenuClear() {
    Form* current = g().document.currentForm;
    if (!current || current->name().empty()) return;
    if (auto* form = dynamic_cast<CatalogueForm*>(current))
        form->clearCommand(true);
    else
        clearAndFocusFirstField(*current);
}

// The menu's Print has no screen clip and no error flags, and gives the first field the pale yellow.
void onMenuPrint() {
    Form* active = program().desktop.activeChild();
    if (!active || !hooks().printForm) return;
    hooks().printForm(program().parts, *active);
    resetFormLook();
    if (Control* first = active->find("Text1", 0)) {
        first->backColor = 0x00C0FFFF;
        active->setFocus(*first);
    }
}

}  // namespace

void FrameForm::onLoad() { onFrameLoad(*this); }

void FrameForm::onClick(Control& control, MouseButton) {
    if (text::equalsNoCase(control.name, "cmdBtn")) onFrameButton(*this, control);
    if (text::equalsNoCase(control.name, "picLegends")) onLegendClick(*this);
}

void FrameForm::onMenu(const std::string& itemName) {
    runGuarded("F0_MDI:mnu_Click", [&] {
        for (const MenuEntry& entry : menuTable()) {
            if (entry.opensForm[0] != '\0' && text::equalsNoCase(entry.item, itemName)) {
                g().document.currentFileName.clear();
                openCatalogueForm(entry.opensForm);
                return;
            }
        }
        auto is = [&](const char* name) { return text::equalsNoCase(itemName, name); };
        if (is("mnuControlQuit")) {
            quitProgram();
        } else if (is("mnuControlOpen")) {
            if (hooks().openFile) hooks().openFile(program().parts);
        } else if (is("mnuControlSave")) {
            if (hooks().saveFile) hooks().saveFile(program().parts);
        } else if (is("mnuControlClose")) {
            if (Form* active = program().desktop.activeChild()) active->unload();
        } else if (is("mnuControlClear")) {
            onMenuClear();
        } else if (is("mnuControlPrint")) {
            onMenuPrint();
        } else if (is("mnuControlClip")) {
            if (hooks().mdiClip) hooks().mdiClip(program().parts);
        } else if (is("mnuControlGuide")) {
            if (!program().ui.openDocument(g().edition.userGuideFile))
                throw AppError(900, "(2) Error encountered opening " + g().edition.userGuideFile,
                               "F0_MDI:mnuControlGuide_Click");
        }
    });
}

void FrameForm::onQueryUnload(bool&) {
    g().process.quitting = true;
    askTheFormBeforeEnding();
}

void FrameForm::onUnload(bool&) { showTaskbar(*this); }

}  // namespace lw
