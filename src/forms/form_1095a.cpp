#include "forms/form_1095a.h"

#include <memory>
#include <optional>
#include <stdexcept>

#include "diagnostics/error_tail.h"
#include "fields/control_setup.h"
#include "fields/edit_ctl.h"
#include "fields/edit_failure.h"
#include "fields/key_press.h"
#include "model/app_error.h"
#include "model/keys.h"
#include "shell/form_registry.h"
#include "taxpayer/load_tp.h"
#include "text/case.h"
#include "text/currency_text.h"
#include "text/masks.h"

namespace lw {

namespace {

constexpr int kMoneyColour = 3;  // the legend's colour of a money field
constexpr const char* kTotalMask = "$###,###.00";

bool isText1(const Control& ctl) { return isFieldArray(ctl) && text::equalsNoCase(ctl.name, "Text1"); }

}  // namespace

MonthColumn monthColumnOf(int fieldIndex) {
    for (const MonthColumn& column : {Form1095A::kColumnA, Form1095A::kColumnB, Form1095A::kColumnC})
        if (fieldIndex >= column.first && fieldIndex <= column.last) return column;
    return {};
}

Form1095A::Form1095A(const ProgramParts& parts) : TaxForm("TF_1095A", parts) {
    sizesBorder_ = false;
    shadesPartLabels_ = true;
}

bool Form1095A::fillTaxpayers(const std::string&, const TPInfoRec& a, const TPInfoRec& b) {
    fillTaxpayers1095A(*this, a, b);
    return true;
}

void Form1095A::giveMoneyTip(Control& field) const {
    if (field.index >= kColumnA.first && field.index <= kColumnC.total)
        field.toolTipText =
            "Money: Dollar sign/commas optional, Press F12 to copy this amount to fields below this one";
}

void Form1095A::onGotFocus(Control& ctl) {
    TaxForm::onGotFocus(ctl);
    if (isText1(ctl)) lastIndex = ctl.index;
}

void Form1095A::onKeyDown(Control& ctl, int& keyCode, int /*shift*/) {
    if (keyCode != keys::kF12 || !isText1(ctl)) return;
    if (monthColumnOf(ctl.index).total == 0) return;
    // F12 never reaches the key filter: it takes the path of the character with the same code.
    int key = keys::kF12;
    onText1KeyPress(lastIndex, key);
}

void Form1095A::onKeyPress(Control& ctl, int& keyAscii) {
    if (isText1(ctl)) onText1KeyPress(ctl.index, keyAscii);
}

void Form1095A::onValidate(Control& ctl, bool& cancel) {
    if (isText1(ctl)) onText1Validate(ctl.index, cancel);
}

void Form1095A::onText1KeyPress(int fieldIndex, int& keyAscii) {
    runGuarded("TF_1095A:Text1_KeyPress", [&] {
        if (keyAscii == keys::kEnter) {
            sendTabKey(*this);
            keyAscii = 0;
            return;
        }
        // The test is on the code alone, so a typed "{" copies too, in any field of the form.
        if (keyAscii == keys::kF12) copyDown(fieldIndex);
        if (keyAscii != keys::kCtrlC && keyAscii != keys::kCtrlV)
            filterFieldKey(at("Text1", fieldIndex), keyAscii);
    });
}

void Form1095A::copyDown(int fieldIndex) {
    bool ignored = false;
    onText1Validate(lastIndex, ignored);
    lastIndex = fieldIndex;
    const std::string amount = at("Text1", fieldIndex).text;
    const MonthColumn column = monthColumnOf(fieldIndex);
    for (int i = fieldIndex + 1; i <= column.last; ++i) at("Text1", i).text = amount;
    // Outside the columns nothing is copied and Text1(0) is summed into itself.
    try {
        addUpColumn(column.first, column.last, column.total);
    } catch (const std::overflow_error&) {
        showTotalOutOfReach(fieldIndex, column.total);
    }
}

void Form1095A::onText1Validate(int fieldIndex, bool& cancel) {
    runGuarded("TF_1095A:Text1_Validate", [&] {
        if (!editField(at("Text1", fieldIndex), editContextOf(parts()))) {
            cancel = true;
            return;
        }
        // Column B takes in its own total here, the other two columns do not.
        MonthColumn column;
        if (fieldIndex >= 38 && fieldIndex <= 49)
            column = kColumnA;
        else if (fieldIndex >= 51 && fieldIndex <= 63)
            column = kColumnB;
        else if (fieldIndex >= 64 && fieldIndex <= 75)
            column = kColumnC;
        else
            return;
        try {
            addUpColumn(column.first, column.last, column.total);
        } catch (const std::overflow_error&) {
            showTotalOutOfReach(fieldIndex, column.total);
            cancel = true;
        }
    });
}

void Form1095A::addUpColumn(int firstRow, int lastRow, int target) {
    text::Currency sum;
    for (int i = firstRow; i <= lastRow; ++i) {
        const std::string& amount = at("Text1", i).text;
        if (amount.empty()) continue;
        try {
            sum += text::currencyFromText(amount);
        } catch (const std::invalid_argument&) {
            throw AppError(err::kTypeMismatch, "Type mismatch", "TF_1095A:AddEmUp");
        }
    }
    at("Text1", target).text = text::formatCurrency(sum, kTotalMask);
}

void Form1095A::showTotalOutOfReach(int fieldIndex, int target) {
    Control& field = at("Text1", fieldIndex);
    if (target != fieldIndex) at("Text1", target).text.clear();
    showInvalidField(field, kMoneyColour, "", parts().document, parts().desktop);
    field.foreColor = kRed;
}

void register1095AForm() {
    registerForm("TF_1095A", [](const ProgramParts& parts) { return std::make_unique<Form1095A>(parts); });
}

}  // namespace lw
