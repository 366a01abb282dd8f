#include "forms/check_form.h"

#include "fields/key_press.h"
#include "shell/form_registry.h"

namespace lw {

namespace {
constexpr const char* kSampleRouting = "325070760";
constexpr const char* kSampleAccount = "987123654";
}  // namespace

CheckForm::CheckForm(const ProgramParts& parts) : TaxForm("F4_CHK", parts) {}

void CheckForm::onKeyPress(Control& ctl, int& keyAscii) {
    if (isFieldArray(ctl)) filterFieldKey(ctl, keyAscii);
}

void CheckForm::onLostFocus(Control& ctl) {
    if (isFieldArray(ctl)) ctl.backColor = kWhite;
}

void CheckForm::refillAfterClear() {
    at("Text1", 1).text = kSampleRouting;
    at("Text1", 2).text = kSampleAccount;
}

void CheckForm::styleTextBox(Control& box) {
    if (box.index == 0) setTextFont(box, "Tahoma", 9);
}

bool CheckForm::fillTaxpayers(const std::string&, const TPInfoRec& a, const TPInfoRec& b) {
    Control& payer = at("Text1", 0);
    payer.fontSize = 9;
    payer.text = a.name + "\r\n" + b.name + "\r\n" + a.address;
    return true;
}

void registerCheckForm() {
    registerForm("F4_CHK", [](const ProgramParts& parts) { return std::make_unique<CheckForm>(parts); });
}

}  // namespace lw
