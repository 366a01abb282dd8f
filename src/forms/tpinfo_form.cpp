#include "forms/tpinfo_form.h"

#include "diagnostics/error_tail.h"
#include "fields/edit_ctl.h"
#include "fields/key_press.h"
#include "model/keys.h"
#include "model/ports.h"
#include "model/tax_year_choice.h"
#include "model/taxpayer_memory.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"
#include "shell/startup.h"
#include "store/record_line.h"
#include "store/user_inf.h"
#include "taxpayer/tpinfo_sheet.h"
#include "text/pieces.h"

namespace lw {

namespace {

constexpr const char* kNumberFields = "1,4,7,11,15,19,23,27,31";
constexpr const char* kDateFields = "2,5,8,12,16,20,24,28,32";

// How the sheet feeds the other forms, a line of the instructions each.
constexpr const char* kInstructions[] = {
    "Use this form to enter and save data about the Taxpayers, Dependents and Other Persons. ONLY enter "
    "SSN/ITIN ",
    "for TAXPAYERS and DEPENDENTS. Once this data has been entered, you can copy the following information "
    "into "
    "the form you are working on by pressing the appropriate button:",
    " Press the [Load TP 1] button to copy Taxpayer's Name, Address, Social Security Number, and Date of "
    "Birth",
    " Press the [Load TP 2] button to copy Spouse's Name, Address, Social Security Number, and Date of Birth",
    " On the SS/ITIN form, pressing [Load TP 1] or [Load TP 2] causes all SS/ITIN cards to be created for "
    "all",
    "     persons on the TPInfo form that have SSN or ITIN Numbers.",
};

// An item of a comma list, compared exactly.
bool listContains(const std::string& list, const std::string& item) {
    for (const std::string& entry : text::split(list, ","))
        if (entry == item) return true;
    return false;
}

bool isTextOne(const Control& ctl) { return ctl.isTextBox() && ctl.name == "Text1" && ctl.index >= 0; }

}  // namespace

TaxpayerSheetForm::TaxpayerSheetForm(const ProgramParts& parts) : TaxForm("F5_TPInfo", parts) {}

void TaxpayerSheetForm::onLoad() {
    TaxForm::onLoad();
    showAgeYear();
    std::string instructions;
    for (const char* line : kInstructions) {
        if (!instructions.empty()) instructions += '\r';
        instructions += line;
    }
    at("lblInstr").caption = instructions;
}

void TaxpayerSheetForm::showAgeYear() {
    Control& yearDigits = at("TaxYear", 1);
    yearDigits.caption = parts().taxYear.digits();
    const std::string caption = "Age as of 12/31/20" + yearDigits.caption;
    at("LabelTPAge", 0).caption = caption;
    at("LabelTPAge", 1).caption = caption;
    at("LabelOthers", 3).caption = caption;
}

void TaxpayerSheetForm::giveOwnLook() {
    height = frameInnerHeight();
    at("lblInstr").visible = true;
    if (Control* printer = find("lblPrinter")) printer->opaque = true;
}

void TaxpayerSheetForm::afterSaved() { saveTaxpayerSheet(parts()); }

void TaxpayerSheetForm::beforeFileRead() {
    constexpr Color kYellow = 65535;
    if (Control* banner = find("Label1")) banner->backColor = kYellow;
    parts().ui.refresh();
}

// The store of the Load TP buttons follows the sheet just opened; the dependants are left as they are.
void TaxpayerSheetForm::afterFileRead() {
    auto text = [&](int index) { return at("Text1", index).text; };
    writeUserInf(parts(), "TP1NameAddr", store::recordValue(text(0)));
    writeUserInf(parts(), "TP1DOB", text(2));
    writeUserInf(parts(), "TP1SSN", text(1));
    writeUserInf(parts(), "TP2NameAddr", store::recordValue(text(3)));
    writeUserInf(parts(), "TP2DOB", text(5));
    writeUserInf(parts(), "TP2SSN", text(4));
}

// The ages follow the birth dates just read.
void TaxpayerSheetForm::afterFileOpened() { updateAllAges(*this, parts().taxpayers, parts().taxYear); }

bool TaxpayerSheetForm::cutToDocument() {
    bool secondBlockUsed = false;
    for (int i = 6; i <= 24 && !secondBlockUsed; i += 3) secondBlockUsed = !at("Text1", i).text.empty();
    const Control& block = at(secondBlockUsed ? "Shape2" : "Shape1");
    height = block.top + block.height;
    setFocus(at("Text1", 0));
    return true;
}

void TaxpayerSheetForm::onKeyPress(Control& ctl, int& keyAscii) {
    if (!isFieldArray(ctl)) return;
    if (keyAscii == keys::kCtrlC || keyAscii == keys::kCtrlV || keyAscii == keys::kCtrlX) return;
    filterFieldKey(ctl, keyAscii);
}

void TaxpayerSheetForm::onValidate(Control& ctl, bool& cancel) {
    if (!isFieldArray(ctl)) return;
    at("labelMisc").caption.clear();
    if (!editField(ctl, editContextOf(parts()))) {
        cancel = true;
        return;
    }
    if (!isTextOne(ctl)) return;
    const std::string index = std::to_string(ctl.index);
    // A repeated number is pointed out; the field may still be left.
    if (listContains(kNumberFields, index))
        checkDuplicateNumbers(kNumberFields, ctl.index, parts().document, parts().desktop);
    if (!listContains(kDateFields, index)) return;
    runGuarded("F5_TPInfo:Text1_Validate", [&] {
        for (const auto& row : parts().taxpayers.personTable)
            if (row[1] == index) updateAge(*this, row[1], row[2], parts().taxYear);
    });
}

void TaxpayerSheetForm::afterYearChange() {
    if (!isLoaded()) return;
    updateAllAges(*this, parts().taxpayers, parts().taxYear);
    showAgeYear();
}

void registerTPInfoForm() {
    registerForm("F5_TPInfo",
                 [](const ProgramParts& parts) { return std::make_unique<TaxpayerSheetForm>(parts); });
}

}  // namespace lw
