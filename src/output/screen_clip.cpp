// The Clip command: the form on show is cut to its document and restyled as paper, its picture goes to
// the clipboard, and the form is put back as the operator left it. Each form's own cut, paper and
// put-back are steps of its class (CatalogueForm); what stands here is the common rule.
#include "output/screen_clip.h"

#include "catalogue/catalogue_table.h"
#include "diagnostics/error_tail.h"
#include "diagnostics/picture_capture.h"
#include "fields/control_setup.h"
#include "model/app_error.h"
#include "model/desktop.h"
#include "model/edition_settings.h"
#include "model/open_document.h"
#include "model/ports.h"
#include "model/process_state.h"
#include "model/program_parts.h"
#include "shell/catalogue_form.h"
#include "shell/form_lifecycle.h"
#include "text/case.h"

namespace lw {

namespace {

// Each statement on its own: a form that lacks the first control still takes the second.
void cutToBorder(Form& form) {
    for (const char* border : {"Shape5", "myBorder"}) {
        if (const Control* c = form.find(border)) form.height = c->top + c->height;
    }
}

void cutToDocument(Form& form) {
    if (auto* rules = dynamic_cast<CatalogueForm*>(&form); rules && rules->cutToDocument()) return;
    if (!formHasTrait(form.name(), kWholeOnPaper)) return cutToBorder(form);
    // The header of the copy, below the border, stands on white paper.
    for (const char* header : {"H2", "H2_OMB", "H2_FormLabel", "H2_FormName"})
        if (Control* label = form.find(header)) label->backColor = kWhite;
}

bool isPictureOfItsOwn(const Control& c) {
    const std::string name = text::toLower(c.name);
    return name == "h1" || name == "picture1" || name == "picture3" || name == "picdl";
}

// Field colours, selections and grey backgrounds must not reach the picture.
void paintAsPaper(Form& form, bool debug) {
    auto* rules = dynamic_cast<CatalogueForm*>(&form);
    for (const auto& owned : form.controls()) {
        Control& c = *owned;
        switch (c.kind) {
            case ControlKind::TextBox:
                c.backColor = kWhite;
                c.select(0, 0);
                break;
            case ControlKind::Label:
            case ControlKind::CheckLabel:
                if (debug) c.backColor = kWhite;
                if (rules)
                    rules->paintLabelAsPaper(c);
                else
                    c.opaque = false;
                break;
            case ControlKind::Picture:
                if (!isPictureOfItsOwn(c)) c.backColor = kWhite;
                break;
            case ControlKind::Frame:
            case ControlKind::OptionButton:
                c.backColor = kWhite;
                break;
            default:
                break;
        }
    }
}

void putBack(Form& form, const ProgramParts& parts) {
    if (auto* rules = dynamic_cast<CatalogueForm*>(&form); rules && rules->putBackAfterClip()) return;
    Control& first = form.at("Text1", 0);
    setUpControl(first, false, parts.document, parts.edition.legendColors);
    form.setFocus(first);
    form.at("labelMisc").visible = true;
}

}  // namespace

// Every form's preparation succeeds or faults; a fault is reported and the clip goes on as it can.
bool clipScreen(Form* form, bool debug) {
    runGuarded("M5_ClipCode:Screen_Clip", [&] {
        if (!form) return;
        cutToDocument(*form);
        paintAsPaper(*form, debug);
    });
    return true;
}

void clipCurrentForm(const ProgramParts& parts) {
    Form* form = parts.desktop.activeChild();
    if (!form) return;
    const int height = form->height;
    const int width = form->width;
    bool restyled = false;
    runGuarded("F0_MDI:MDI_Clip", [&] {
        // The way to try out the error report: the clip fails before it touches the form.
        if (text::containsNoCase(parts.platform.commandLine(), "error"))
            throw AppError(err::kDivisionByZero, "Division by zero");
        restyled = true;
        if (auto* rules = dynamic_cast<CatalogueForm*>(form)) rules->beforeClip();
        form->at("labelMisc").visible = false;
        // The picture is drawn off-screen from the form as it now stands, so no repaint is waited for.
        if (clipScreen(parts.document.currentForm, parts.process.debug)) copyEntirePicture(*form);
    });
    if (!restyled) return;
    // The form comes back whatever the clip did.
    runGuarded("F0_MDI:MDI_Clip", [&] {
        form->height = height;
        form->width = width;
        resetFormLook();
        putBack(*form, parts);
    });
}

}  // namespace lw
