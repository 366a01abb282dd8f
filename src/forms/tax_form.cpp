#include "forms/tax_form.h"

#include <algorithm>

#include "fields/control_setup.h"
#include "fields/edit_ctl.h"
#include "fields/key_press.h"
#include "forms/check_rules.h"
#include "model/keys.h"
#include "shell/form_lifecycle.h"
#include "text/case.h"

namespace lw {

bool isFieldArray(const Control& ctl) {
    return ctl.isTextBox() && ctl.index != kNoIndex && ctl.name.size() == 5 &&
           text::startsWithNoCase(ctl.name, "Text") && ctl.name[4] >= '1' && ctl.name[4] <= '5';
}

namespace {
// These forms keep their border as drawn; every other form fits it to its drawing when it loads.
bool keepsDrawnBorder(const std::string& name) {
    static const char* const forms[] = {"TF_1095A",   "TF_1095B",  "TF_1095C",  "TF_SSA1099",
                                        "TF_RRB1099", "TF_K11041", "TF_K11065", "TF_K11120S"};
    for (const char* form : forms)
        if (text::equalsNoCase(name, form)) return true;
    return false;
}
}  // namespace

TaxForm::TaxForm(const std::string& name) : CatalogueForm(name), sizesBorder_(!keepsDrawnBorder(name)) {}

void TaxForm::onLoad() {
    initCatalogueForm(*this);
    if (!sizesBorder_) return;
    if (Control* border = find("myBorder")) sizeBorderToControls(*border);
}

void TaxForm::onGotFocus(Control& ctl) {
    if (isFieldArray(ctl)) setUpControl(ctl, false);
}

void TaxForm::onKeyPress(Control& ctl, int& keyAscii) {
    // Copy and paste pass unfiltered, so pasted text reaches the field as it is.
    if (isFieldArray(ctl) && keyAscii != keys::kCtrlC && keyAscii != keys::kCtrlV)
        filterFieldKey(ctl, keyAscii);
}

void TaxForm::onValidate(Control& ctl, bool& Cancel) {
    if (isFieldArray(ctl)) Cancel = !editField(ctl);
}

void TaxForm::onLostFocus(Control& ctl) {
    if (!isFieldArray(ctl)) return;
    ctl.backColor = kWhite;
    ctl.foreColor = kBlack;
}

void TaxForm::onClick(Control& ctl, MouseButton) {
    if (ctl.index != kNoIndex && text::equalsNoCase(ctl.name, "Check")) onCheckClick(ctl.index);
}

void TaxForm::onCheckClick(int Index) {
    Control& clicked = at("Check", Index);
    const CheckRules& rules = checkRulesOf(name());
    for (const auto& [a, b] : rules.pairs) {
        if (Index == a) return toggleCheckPair(clicked, at("Check", b));
        if (Index == b) return toggleCheckPair(clicked, at("Check", a));
    }
    const auto& group = rules.exclusiveGroup;
    if (std::find(group.begin(), group.end(), Index) != group.end()) {
        const bool wasMarked = !clicked.caption.empty();
        for (int member : group) at("Check", member).caption.clear();
        if (!wasMarked) toggleCheck(clicked);
        return;
    }
    toggleCheck(clicked);
}

}  // namespace lw
