#include "forms/tax_form.h"

#include <algorithm>

#include "catalogue/catalogue_table.h"
#include "fields/control_setup.h"
#include "fields/edit_ctl.h"
#include "fields/key_press.h"
#include "model/edition_settings.h"
#include "model/keys.h"
#include "shell/form_lifecycle.h"
#include "text/case.h"

namespace lw {

bool isFieldArray(const Control& ctl) {
    return ctl.isTextBox() && ctl.index != kNoIndex && ctl.name.size() == 5 &&
           text::startsWithNoCase(ctl.name, "Text") && ctl.name[4] >= '1' && ctl.name[4] <= '5';
}

TaxForm::TaxForm(const std::string& name, const ProgramParts& parts) : CatalogueForm(name, parts) {}

void TaxForm::onLoad() {
    initCatalogueForm(*this);
    if (!sizesBorder_) return;
    if (Control* border = find("myBorder")) sizeBorderToControls(*border);
}

void TaxForm::onGotFocus(Control& ctl) {
    if (isFieldArray(ctl)) setUpControl(ctl, false, parts().document, parts().edition.legendColors);
}

void TaxForm::onKeyPress(Control& ctl, int& keyAscii) {
    // Copy and paste pass unfiltered, so pasted text reaches the field as it is.
    if (isFieldArray(ctl) && keyAscii != keys::kCtrlC && keyAscii != keys::kCtrlV)
        filterFieldKey(ctl, keyAscii);
}

void TaxForm::onValidate(Control& ctl, bool& cancel) {
    if (isFieldArray(ctl)) cancel = !editField(ctl, editContextOf(parts()));
}

void TaxForm::onLostFocus(Control& ctl) {
    if (!isFieldArray(ctl)) return;
    ctl.backColor = kWhite;
    ctl.foreColor = kBlack;
}

void TaxForm::onClick(Control& ctl, MouseButton) {
    if (ctl.index != kNoIndex && text::equalsNoCase(ctl.name, "Check")) onCheckClick(ctl.index);
}

void TaxForm::paintLabelAsPaper(Control& label) {
    label.opaque = shadesPartLabels_ && label.name == "LabelPart";
}

void TaxForm::onCheckClick(int fieldIndex) {
    Control& clicked = at("Check", fieldIndex);
    const CheckRules& rules = checkRulesOf(name());
    for (const auto& [a, b] : rules.pairs) {
        if (fieldIndex == a) return toggleCheckPair(clicked, at("Check", b));
        if (fieldIndex == b) return toggleCheckPair(clicked, at("Check", a));
    }
    const auto& group = rules.exclusiveGroup;
    if (std::find(group.begin(), group.end(), fieldIndex) != group.end()) {
        const bool wasMarked = !clicked.caption.empty();
        for (int member : group) at("Check", member).caption.clear();
        if (!wasMarked) toggleCheck(clicked);
        return;
    }
    toggleCheck(clicked);
}

}  // namespace lw
