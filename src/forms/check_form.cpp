#include "forms/check_form.h"

#include "fields/key_press.h"
#include "shell/form_registry.h"

namespace lw {

namespace {
constexpr const char* kSampleRouting = "325070760";
constexpr const char* kSampleAccount = "987123654";
}  // namespace

F4_CHK::F4_CHK() : TaxForm("F4_CHK") {}

void F4_CHK::onKeyPress(Control& ctl, int& KeyAscii) {
    if (isFieldArray(ctl)) Key_Press(ctl, KeyAscii);
}

void F4_CHK::onLostFocus(Control& ctl) {
    if (isFieldArray(ctl)) ctl.backColor = kWhite;
}

void F4_CHK::refillAfterClear() {
    at("Text1", 1).text = kSampleRouting;
    at("Text1", 2).text = kSampleAccount;
}

void registerCheckForm() {
    registerForm("F4_CHK", [] { return std::make_unique<F4_CHK>(); });
}

}  // namespace lw
