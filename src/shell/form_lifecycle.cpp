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
#include "shell/rates_check.h"
#include "shell/startup.h"
#include "shell/tax_year.h"
#include "text/case.h"
#include "text/pieces.h"

namespace lw {

namespace {

Globals& g() { return program().g; }

bool isLabel(const Control& c) { return c.kind == ControlKind::Label || c.kind == ControlKind::CheckLabel; }

struct TextFont {
    const char* name;
    double size;
    bool bold;
};

// The font of a text box by form and index; nullptr keeps the designed font.
const TextFont* textFontFor(const std::string& formKey, const Control& c) {
    static const TextFont tahoma14Bold{"Tahoma", 14, true}, tahoma11Bold{"Tahoma", 11, true},
        tahoma9{"Tahoma", 9, false}, tahoma10{"Tahoma", 10, false}, tahoma11{"Tahoma", 11, false},
        narrow9{"ArialNarrow", 9, false};
    if (formKey == "SS_ITIN") return c.index % 2 == 0 ? &tahoma14Bold : &tahoma11Bold;
    if (formKey == "CHK") return c.index == 0 ? &tahoma9 : nullptr;
    if (formKey == "K11041" || formKey == "K11065" || formKey == "K11120S") return &tahoma9;
    if (formKey == "1095C") {
        // The gaps at 35 and 48 to 78 are the form's own.
        const int i = c.index;
        const bool narrow =
            (i >= 10 && i <= 22) || (i >= 23 && i <= 34) || (i >= 36 && i <= 47) || (i >= 79 && i <= 91);
        return narrow ? &narrow9 : &tahoma11;
    }
    return &tahoma10;
}

bool isK1(const std::string& formKey) {
    return formKey == "K11041" || formKey == "K11065" || formKey == "K11120S";
}

// A K-1's rows as they were designed: the box numbers of the code fields and the amounts' money checks,
// so that no code or override chosen from the list outlives Clear.
void restoreK1Design(Form& form) {
    const Globals& kept = g();
    const auto restore = [&form](const char* name, const std::vector<std::string>& values, bool tags) {
        for (Control* field : form.arrayOf(name)) {
            const std::size_t i = static_cast<std::size_t>(field->index);
            if (i >= values.size()) continue;
            (tags ? field->tag : field->text) = values[i];
        }
    };
    restore("Text2", kept.document.k1Design.text2, false);
    restore("Text3", kept.document.k1Design.tag3, true);
    restore("Text4", kept.document.k1Design.text4, false);
    restore("Text5", kept.document.k1Design.tag5, true);
}

// A frame's inner width: what the child area offers beside the command panel.
int frameInnerWidth() {
    Form* frame = program().desktop.frame();
    if (!frame) return 0;
    const Control* panel = frame->find("picLegends");
    return frame->width - (panel ? panel->width : 0) - 120;
}

int frameInnerHeight() {
    Form* frame = program().desktop.frame();
    return frame ? frame->height - 900 : 0;
}

void showYearDigits(Form& frm) {
    const std::string digits = taxYearDigits();
    frm.at("TaxYear", 1).caption = digits;
    if (frm.name() == "TF_RRB1099") frm.at("TaxYear", 3).caption = digits;
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

void initCatalogueForm(Form& frm) {
    g().document.currentForm = &frm;
    loadFormInfo();
    if (auto* form = dynamic_cast<CatalogueForm*>(&frm)) form->commonInitStep();
    resetFormLook();
    writeYearCaptions();
}

void resetFormLook() {
    runGuarded("M3_Ledgerwick:Form_Init_Reset", [] {
        Form& form = *g().document.currentForm;
        const std::string key = formKeyOf(form.name());
        g().document.formKey = key;
        form.backColor = kButtonFace;
        if (key == "TPINFO") {
            form.height = frameInnerHeight();
            form.at("lblInstr").visible = true;
        } else if (key == "DL") {
            Control& frame1 = form.at("Frame1");
            frame1.visible = true;
            form.height = frame1.top + frame1.height + 200;
            form.at("Picture1").visible = true;
            form.at("Picture3").visible = true;
        }
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
                    if (c.name == "LabelPart" || c.name == "Check" ||
                        ((key == "CONFIGURE" || key == "TPINFO") && c.name == "lblPrinter"))
                        c.opaque = true;
                    if (key == "SS_ITIN" && c.name != "label3" && c.name != "label4" && c.name != "label5")
                        c.backColor = kButtonFace;
                    break;
                case ControlKind::TextBox:
                    if (const TextFont* font = textFontFor(key, c)) {
                        c.fontName = font->name;
                        c.fontSize = font->size;
                        c.fontBold = font->bold;
                    }
                    if (isK1(key)) {
                        c.text = text::trim(c.text);
                        if (c.name == "Text2" || c.name == "Text4") c.alignment = 2;
                    }
                    setUpControl(c, true);
                    break;
                case ControlKind::Frame:
                case ControlKind::OptionButton:
                    c.backColor = kButtonFace;
                    break;
                case ControlKind::Picture:
                    c.backColor = kButtonFace;
                    if (key == "DL") c.visible = true;
                    break;
                default:
                    break;
            }
        }
    });
}

void writeYearCaptions() {
    runGuarded("M3_Ledgerwick:Form_Init_Captions", [] {
        const std::string year = g().TaxYears[static_cast<std::size_t>(g().TaxYearIndex)];
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
            c.caption = longText(readFormInfo(form.name(), c.name), year);
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

bool formHasTaxYear() {
    const std::string& key = g().document.formKey;
    return key != "DL" && key != "SS_ITIN" && key != "CHK";
}

void placeInFrame(Form& frm) {
    runGuarded("M3_Ledgerwick:Form_Position", [&] {
        Desktop& desktop = program().desktop;
        for (Form* open : desktop.forms()) {
            if (open->name() == "F1_Configure" && !g().process.starting && !ratesOfConfigureFormPass(*open)) {
                // A bad rate keeps the configuration form on the screen; the new form does not open, and
                // the shared procedures work on the configuration form again, with its own catalogue values.
                if (open != &frm) {
                    desktop.unload(frm);
                    desktop.activate(*open);
                    g().document.currentForm = open;
                    g().document.formKey = formKeyOf(open->name());
                    loadFormInfo();
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
        if (!text::containsNoCase(frm.name(), "Configure"))
            frm.setFocus(frm.at("Text1", g().document.catalogue.focusOnStartup));
        else
            frm.setFocus(frm.at("cbxPrinters"));
    });
}

Form* openCatalogueForm(const std::string& formName) {
    Desktop& desktop = program().desktop;
    Form* form = desktop.findForm(formName);
    if (!form) {
        std::unique_ptr<Form> made = createForm(formName);
        if (!made) return nullptr;
        form = &desktop.load(std::move(made), false);
        if (!form->isLoaded()) return nullptr;
    }
    placeInFrame(*form);
    return form->isLoaded() ? form : nullptr;
}

void changeTaxYear(Form& frm) {
    runGuarded("M3_Ledgerwick:Year_Change", [&] {
        g().TaxYearIndex = nextTaxYearIndex(g().TaxYearIndex);
        writeYearCaptions();
        writeUserInf("LastTaxYear", g().TaxYears[static_cast<std::size_t>(g().TaxYearIndex)]);
        if (formHasTaxYear()) showYearDigits(frm);
        if (auto* form = dynamic_cast<CatalogueForm*>(&frm)) form->afterYearChange();
        recheckYearDates();
    });
}

void recheckYearDates() {
    Form* form = g().document.currentForm;
    if (!form) return;
    for (const auto& owned : form->controls()) {
        Control& c = *owned;
        if (!c.isTextBox()) continue;
        bool stands = true;
        if (c.tag == "DATE")
            stands = editDate(c, "");
        else if (c.tag == "DATEX")
            stands = editDate(c, form->at("TaxYear", 0).caption + form->at("TaxYear", 1).caption);
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
        if (isK1(g().document.formKey)) restoreK1Design(*form);
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
