#include "forms/k1_form.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "catalogue/form_info.h"
#include "diagnostics/message_box.h"
#include "fields/control_setup.h"
#include "fields/edit_ctl.h"
#include "forms/k1_help.h"
#include "model/containers.h"
#include "model/edition_settings.h"
#include "model/keys.h"
#include "model/open_document.h"
#include "model/ports.h"
#include "shell/form_registry.h"
#include "text/case.h"
#include "text/cp1252.h"

namespace lw {

namespace {

int arrayNumber(const Control& ctl) { return ctl.name[4] - '0'; }

bool isArray(const Control& ctl, char number) { return isFieldArray(ctl) && ctl.name[4] == number; }

}  // namespace

K1Form::K1Form(const K1Design& design, const ProgramParts& parts)
    : TaxForm(design.form, parts), design_(design) {
    sizesBorder_ = false;
    shadesPartLabels_ = true;
}

void K1Form::onLoad() {
    setTabOrder();
    TaxForm::onLoad();
    designValues_ = keptDesignValues(*this);
    const std::string prefix = std::string("K1HELP") + text::kFieldSeparator + design_.key;
    setUpCodeColumn("Text2", design_.text2Rows, prefix);
    setUpCodeColumn("Text4", design_.text4Rows, prefix);
}

void K1Form::setUpCodeColumn(const char* array, const std::vector<K1CodedRows>& rows,
                             const std::string& prefix) {
    for (Control* code : arrayOf(array)) {
        // A code comes from the list, never from typing.
        code->locked = true;
        code->toolTipText = kCodedTip;
        code->tabStop = true;
        if (const char* box = k1BoxOf(rows, code->index)) {
            code->tag = prefix + box;
        } else {
            code->tag = "K1";
            code->tabStop = false;
            code->toolTipText = kFixedTip;
        }
    }
}

void K1Form::setTabOrder() {
    // Each control set to 0 pushes the ones set before it back: the last one set comes first.
    auto zero = [&](const char* array, int i) {
        if (Control* c = find(array, i)) setTabIndex(*c, 0);
    };
    const int right = static_cast<int>(std::max(arrayOf("Text4").size(), arrayOf("Text5").size()));
    for (int i = right - 1; i >= 0; --i) zero("Text5", i), zero("Text4", i);
    const int left = static_cast<int>(std::max(arrayOf("Text2").size(), arrayOf("Text3").size()));
    for (int i = left - 1; i >= 0; --i) zero("Text3", i), zero("Text2", i);
    for (int i = static_cast<int>(arrayOf("Text1").size()) - 1; i >= 0; --i) zero("Text1", i);
}

int K1Form::limitOf(const Control& field) const { return design_.limits[arrayNumber(field) - 1]; }

bool K1Form::isCheckBoxField(const Control& ctl) const {
    return isArray(ctl, '5') && design_.checkBoxField >= 0 && ctl.index == design_.checkBoxField;
}

void K1Form::focusRoutine(Control& field, int limit) {
    Control& status = at("labelMisc");
    status.caption.clear();
    Control& tabs = at("SSTab1");
    if (tabOf(tabs) == 0 && field.index > limit)
        setTab(tabs, 1);
    else if (tabOf(tabs) == 1 && field.index <= limit)
        setTab(tabs, 0);
    setUpControl(field, false, parts().document, parts().edition.legendColors);
    if ((isArray(field, '2') || isArray(field, '4')) && text::equalsNoCase(field.tag.substr(0, 6), "K1Help"))
        status.caption = kCodedHint;
}

void K1Form::leavingRoutine(Control& field, int count) {
    field.backColor = kWhite;
    field.foreColor = kBlack;
    if (!editField(field, editContextOf(parts()))) {
        setFocus(field);
        return;
    }
    if (isArray(field, '5') && field.index == count - 1) {
        setTab(at("SSTab1"), 0);
        setFocus(at("Text1", 0));
    }
}

void K1Form::onGotFocus(Control& ctl) {
    if (isFieldArray(ctl)) focusRoutine(ctl, limitOf(ctl));
}

void K1Form::onLostFocus(Control& ctl) {
    if (isFieldArray(ctl)) leavingRoutine(ctl, static_cast<int>(arrayOf(ctl.name).size()));
}

void K1Form::onKeyDown(Control& ctl, int& keyCode, int) {
    const bool left = isArray(ctl, '2');
    if (!left && !isArray(ctl, '4')) return;
    focusRoutine(ctl, limitOf(ctl));
    const K1HelpKeys rule = left ? design_.text2Keys : design_.text4Keys;
    if (k1KeyOpensList(rule, keyCode) && text::equalsNoCase(ctl.tag.substr(0, 6), "K1HELP"))
        openK1CodeList(*this, ctl, designValues_, parts().edition.k1HelpInfFile, codeListAnswer_);
}

void K1Form::onKeyPress(Control& ctl, int& keyAscii) {
    if (isCheckBoxField(ctl)) {
        ctl.text = ctl.text.empty() ? "X" : "";
        // Text set by the program leaves the caret at the start, as the platform's box does.
        ctl.select(0, 0);
    }
    TaxForm::onKeyPress(ctl, keyAscii);
}

void K1Form::onClick(Control& ctl, MouseButton button) {
    if (isArray(ctl, '5') && design_.checkBoxField >= 0) {
        if (isCheckBoxField(ctl))
            ctl.text = ctl.text.empty() ? "X" : "";
        else
            focusRoutine(ctl, limitOf(ctl));
        return;
    }
    TaxForm::onClick(ctl, button);
}

void K1Form::styleTextBox(Control& box) {
    setTextFont(box, "Tahoma", 9);
    box.text = text::trim(box.text);
    if (box.name == "Text2" || box.name == "Text4") box.alignment = 2;
}

void K1Form::refillAfterClear() { restoreK1DesignValues(*this, designValues_); }

bool K1Form::requiredFieldsFilled(int& focusIndex) {
    const CatalogueValues& catalogue = parts().document.catalogue;
    const std::pair<std::optional<int>, const K1RequiredField*> required[] = {
        {firstFieldIndex(catalogue.ssnIndex), &design_.numberRequired},
        {firstFieldIndex(catalogue.nameAddrIndex), &design_.nameRequired}};
    for (const auto& [index, rule] : required) {
        if (!index || !at("Text1", *index).text.empty()) continue;
        showMessageBox(parts().desktop, {"M4_FileCode:Build_FileName", rule->message, rule->number});
        at("SSTab1").listIndex = rule->tab;
        // The save's last step focuses focusIndex: it must land on the same field.
        focusIndex = *index;
        setFocus(at("Text1", *index));
        parts().ui.refresh();
        return false;
    }
    return true;
}

void K1Form::beforeClip() {
    clipTabs_ = K1Tabs{};
    clipTabs_ = liftShownHalf(*this);
}

bool K1Form::cutToDocument() {
    const std::string half = shownHalf(*this);
    const Control& left = at("Pic" + half + "L");
    height = half == "1" ? left.top + left.height : left.top + at("Pic2R").height;
    return true;
}

// The status line and the focus stay as the clip left them.
bool K1Form::putBackAfterClip() {
    putBackTabs(*this, clipTabs_);
    return true;
}

void K1Form::afterTaxpayerFill() {
    Control& tabs = at("SSTab1");
    const int noted = tabOf(tabs);
    bool shown = true;
    if (design_.fillShows == K1FillShows::FirstHalf) {
        if (noted == 1) setTab(tabs, 0);
        parts().ui.refresh();
        shown = tabOf(tabs) != noted;
    } else {
        setTab(tabs, noted == 0 ? 1 : 0);
        parts().ui.refresh();
    }
    if (shown) {
        parts().platform.sleep(1000);
        setTab(tabs, noted);
    }
    TaxForm::afterTaxpayerFill();
}

void registerK1Forms() {
    for (const char* name : {"TF_K11041", "TF_K11065", "TF_K11120S"}) {
        const K1Design* design = k1DesignOf(name);
        registerForm(
            name, [design](const ProgramParts& parts) { return std::make_unique<K1Form>(*design, parts); });
    }
}

}  // namespace lw
