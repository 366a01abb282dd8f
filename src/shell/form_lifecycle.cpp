// The shared life of the catalogue's forms: set-up, captions with the year, placing, clearing, re-dating.
#include "shell/form_lifecycle.h"

#include "catalogue/catalogue_table.h"
#include "catalogue/form_info.h"
#include "diagnostics/error_tail.h"
#include "fields/control_setup.h"
#include "fields/edit_date.h"
#include "model/program.h"
#include "shell/catalogue_form.h"
#include "shell/form_registry.h"
#include "shell/startup.h"
#include "store/user_inf.h"
#include "text/case.h"
#include "text/pieces.h"

namespace lw {

namespace {

Globals& g() { return program().g; }

bool isLabel(const Control& c) { return c.kind == ControlKind::Label || c.kind == ControlKind::CheckLabel; }

// A frame's inner width: what the child area offers beside the command panel.
int frameInnerWidth() {
    Form* frame = program().desktop.frame();
    if (!frame) return 0;
    const Control* panel = frame->find("picLegends");
    return frame->width - (panel ? panel->width : 0) - 120;
}

// A form outside the catalogue has the common rules: the digits on TaxYear(1), text boxes in Tahoma 10.
void showYearDigits(Form& frm) {
    const std::string digits = g().taxYear.digits();
    if (auto* form = dynamic_cast<CatalogueForm*>(&frm))
        form->showYearDigits(digits);
    else
        frm.at("TaxYear", 1).caption = digits;
}

// "yyyy+1" ... "yyyy-3" by the year, then "yyyy", then the bars as line breaks with a blank.
std::string longText(std::string value, const std::string& year) {
    static const struct {
        const char* marker;
        int offset;
    } shifts[] = {{"yyyy+1", 1},  {"yyyy+2", 2},  {"yyyy+3", 3},
                  {"yyyy-1", -1}, {"yyyy-2", -2}, {"yyyy-3", -3}};
    for (const auto& shift : shifts) {
        std::string replacement;
        if (year == "20XX") {
            replacement =
                std::string("20XX") + (shift.offset > 0 ? "+" : "-") + std::to_string(std::abs(shift.offset));
        } else {
            replacement = std::to_string(std::stoi(year) + shift.offset);
        }
        for (std::size_t at = text::findNoCase(value, shift.marker); at != std::string::npos;
             at = text::findNoCase(value, shift.marker, at + replacement.size()))
            value.replace(at, 6, replacement);
    }
    value = text::replaceAll(value, "yyyy", year);
    value = text::replaceAll(value, " |", "|");
    value = text::replaceAll(value, "|", "\r\n ");
    return " " + value;
}

// A bar inside a caption breaks its line; one that opens or closes the caption is the character itself
// (a caption never starts or ends on an empty line), as in the routing marks "|:" and ":|" of a check.
std::string withLineBreaks(const std::string& caption) {
    if (caption.size() < 2) return caption;
    const std::size_t last = caption.size() - 1;
    return caption.substr(0, 1) + text::replaceAll(caption.substr(1, last - 1), "|", "\r\n") +
           caption.substr(last);
}

}  // namespace

int frameInnerHeight() {
    Form* frame = program().desktop.frame();
    return frame ? frame->height - 900 : 0;
}

void initCatalogueForm(Form& frm) {
    g().document.currentForm = &frm;
    loadFormInfo(g().document, g().edition.formsInfFile);
    if (auto* form = dynamic_cast<CatalogueForm*>(&frm)) form->commonInitStep();
    resetFormLook();
    writeYearCaptions(g().taxYear);
}

void resetFormLook() {
    runGuarded("M3_Ledgerwick:Form_Init_Reset", [] {
        Form& form = *g().document.currentForm;
        const std::string key = formKeyOf(form.name());
        g().document.formKey = key;
        form.backColor = kButtonFace;
        auto* catalogueForm = dynamic_cast<CatalogueForm*>(&form);
        if (catalogueForm) catalogueForm->giveOwnLook();
        for (const auto& owned : form.controls()) {
            Control& c = *owned;
            switch (c.kind) {
                case ControlKind::Shape:
                    if (text::equalsNoCase(c.name, "ShapeX")) {
                        c.opaque = true;
                        c.backColor = 0x00DCDCDC;
                    } else {
                        c.opaque = false;
                    }
                    break;
                case ControlKind::Label:
                case ControlKind::CheckLabel:
                    if (c.name == "LabelPart" || c.name == "Check") c.opaque = true;
                    break;
                case ControlKind::TextBox:
                    if (catalogueForm)
                        catalogueForm->styleTextBox(c);
                    else
                        setTextFont(c, "Tahoma", 10);
                    setUpControl(c, true, g().document, g().edition.legendColors);
                    break;
                case ControlKind::Frame:
                case ControlKind::OptionButton:
                    c.backColor = kButtonFace;
                    break;
                case ControlKind::Picture:
                    c.backColor = kButtonFace;
                    break;
                default:
                    break;
            }
        }
    });
}

void writeYearCaptions(const TaxYearChoice& taxYear) {
    runGuarded("M3_Ledgerwick:Form_Init_Captions", [&taxYear] {
        const std::string year = taxYear.text();
        if (year.empty() || !g().document.currentForm) return;
        Form& form = *g().document.currentForm;
        for (const auto& owned : form.controls()) {
            Control& c = *owned;
            if (!isLabel(c)) continue;
            const std::string lead = text::toUpper(c.name.substr(0, 3));
            if (lead != "RTL" && lead != "RTB") {
                c.caption = withLineBreaks(text::replaceAll(c.caption, "20??", year));
                continue;
            }
            c.caption = longText(readFormInfo(form.name(), c.name, g().edition.formsInfFile), year);
        }
    });
}

void sizeBorderToControls(Control& myBorder) {
    int bottom = 0;
    int right = 0;
    for (const auto& owned : myBorder.form->controls()) {
        const Control& c = *owned;
        if (&c == &myBorder) continue;
        if (c.kind == ControlKind::Shape) {
            bottom = std::max(bottom, c.top + c.height);
            right = std::max(right, c.left + c.width);
        } else if (c.kind == ControlKind::Line) {
            bottom = std::max(bottom, std::max(c.top, c.y2));
        } else if (!text::equalsNoCase(c.name, "MsgLbl") && !text::equalsNoCase(c.name, "LabelMisc")) {
            bottom = std::max(bottom, c.top + c.height);
        }
    }
    myBorder.left = 60;
    myBorder.top = 60;
    myBorder.height = bottom;
    myBorder.width = right - 60;
}

bool formHasTaxYear() { return formKeyHasTaxYear(g().document.formKey); }

void placeInFrame(Form& frm) {
    runGuarded("M3_Ledgerwick:Form_Position", [&] {
        Desktop& desktop = program().desktop;
        for (Form* open : desktop.forms()) {
            auto* kept = dynamic_cast<CatalogueForm*>(open);
            if (kept && !g().process.starting && kept->keepsTheScreen()) {
                // The new form does not open, and the shared procedures work on the form that kept the
                // screen again, with its own catalogue values.
                if (open != &frm) {
                    desktop.unload(frm);
                    desktop.activate(*open);
                    g().document.currentForm = open;
                    g().document.formKey = formKeyOf(open->name());
                    loadFormInfo(g().document, g().edition.formsInfFile);
                }
                return;
            }
            if (open != desktop.frame() && open != &frm && open->isLoaded()) desktop.unload(*open);
        }
        frm.top = 0;
        frm.left = std::max(0, (frameInnerWidth() - frm.width) / 2);
        if (formHasTaxYear()) showYearDigits(frm);
        // The form shows, and so activates, when it is placed and dated.
        desktop.activate(frm);
        if (auto* form = dynamic_cast<CatalogueForm*>(&frm))
            frm.setFocus(form->focusOnOpening(g().document.catalogue.focusOnStartup));
        else
            frm.setFocus(frm.at("Text1", g().document.catalogue.focusOnStartup));
    });
}

Form* openCatalogueForm(const std::string& formName) {
    Desktop& desktop = program().desktop;
    Form* form = desktop.findForm(formName);
    if (!form) {
        std::unique_ptr<Form> made = createForm(formName, program().parts);
        if (!made) return nullptr;
        form = &desktop.load(std::move(made), false);
        if (!form->isLoaded()) return nullptr;
    }
    placeInFrame(*form);
    return form->isLoaded() ? form : nullptr;
}

void changeTaxYear(Form& frm) {
    runGuarded("M3_Ledgerwick:Year_Change", [&] {
        g().taxYear = g().taxYear.next();
        writeYearCaptions(g().taxYear);
        writeUserInf(program().parts, "LastTaxYear", g().taxYear.text());
        if (formHasTaxYear()) showYearDigits(frm);
        if (auto* form = dynamic_cast<CatalogueForm*>(&frm)) form->afterYearChange();
        recheckYearDates();
    });
}

void recheckYearDates() {
    Form* form = g().document.currentForm;
    if (!form) return;
    const EditContext context = editContextOf(program().parts);
    for (const auto& owned : form->controls()) {
        Control& c = *owned;
        if (!c.isTextBox()) continue;
        bool stands = true;
        if (c.tag == "DATE")
            stands = editDate(c, context, "");
        else if (c.tag == "DATEX")
            stands = editDate(c, context, form->at("TaxYear", 0).caption + form->at("TaxYear", 1).caption);
        if (!stands) return;
    }
}

void clearForm() {
    runGuarded("M3_Ledgerwick:Form_Clear", [] {
        Form* form = g().document.currentForm;
        if (!form) return;
        for (const auto& owned : form->controls()) {
            Control& c = *owned;
            if (c.isTextBox()) c.text.clear();
            if (isLabel(c) && text::equalsNoCase(c.name, "Check")) c.caption.clear();
            if ((c.kind == ControlKind::Picture || c.kind == ControlKind::Image) &&
                (text::equalsNoCase(c.name, "Picture2") || text::equalsNoCase(c.name, "Picture4")))
                c.picture.clear();
        }
        if (auto* catalogueForm = dynamic_cast<CatalogueForm*>(form)) catalogueForm->refillAfterClear();
    });
    // The form may have no status line: the rest goes on regardless.
    if (Form* form = g().document.currentForm) {
        if (Control* status = form->find("labelMisc")) status->caption.clear();
    }
    g().document.currentFileName.clear();
}

void toggleCheck(Control& chk) { chk.caption = chk.caption.empty() ? "X" : ""; }

void toggleCheckPair(Control& chk, Control& partner) {
    if (chk.caption.empty()) {
        chk.caption = "X";
        partner.caption.clear();
    } else {
        chk.caption.clear();
    }
}

}  // namespace lw
