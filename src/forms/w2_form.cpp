#include "forms/w2_form.h"

#include <optional>
#include <stdexcept>
#include <string>

#include "config/rates.h"
#include "fields/edit_failure.h"
#include "forms/w2_withholding.h"
#include "model/app_error.h"
#include "model/tax_year_choice.h"
#include "model/year_rates.h"
#include "shell/form_registry.h"
#include "text/case.h"
#include "text/currency.h"
#include "text/masks.h"
#include "text/number.h"
#include "text/pieces.h"

namespace lw {

namespace {

constexpr int kSocialSecurityWages = 5;  // box 3
constexpr int kSocialSecurityTax = 6;    // box 4
constexpr int kMedicareWages = 7;        // box 5
constexpr int kMedicareTax = 8;          // box 6
constexpr int kVerificationCode = 45;    // box 9
constexpr int kBox9Caption = 14;
constexpr int kMoneyColour = 3;  // the legend's colour of a money field

// A number as the classic conversion reads it: thousands separators and a currency sign are part of a
// number's text there. A text that is no number is a fault of the program, not of the operator: the
// wage boxes are checked by their edit.
double numberOf(const std::string& value) {
    const std::string plain = text::replaceAll(text::replaceAll(value, ",", ""), "$", "");
    const std::optional<double> number = text::toDouble(plain);
    if (!number) throw AppError(err::kTypeMismatch, "Type mismatch", "TF_W2:Text1_Validate");
    return *number;
}

std::string shown(text::Currency amount) {
    return text::formatNumber(amount.toDecimalString(), "###,###.00");
}

}  // namespace

FormW2::FormW2(const ProgramParts& parts) : TaxForm("TF_W2", parts) {}

void FormW2::onLoad() {
    TaxForm::onLoad();
    // The form is activated as soon as it is loaded, before its placing writes the year into it; the
    // year's digits are given here already, so that box 9 is decided by the year in force.
    at("TaxYear", 1).caption = parts().taxYear.digits();
}

void FormW2::onValidate(Control& ctl, bool& cancel) {
    if (!text::equalsNoCase(ctl.name, "Text1") || ctl.index == kNoIndex) return;
    TaxForm::onValidate(ctl, cancel);
    if (cancel || ctl.text.empty()) return;
    if (ctl.index != kSocialSecurityWages && ctl.index != kMedicareWages) return;
    // A year without its figures computes nothing: the operator reads why, and the box stands.
    const Rates& rates = parts().rates;
    if (!ratesInForce(rates)) return;
    try {
        if (ctl.index == kSocialSecurityWages)
            computeSocialSecurityTax(rates);
        else
            computeMedicareTax(rates);
    } catch (const std::overflow_error&) {
        // An amount beyond what the program can count is the box's own fault: it keeps the focus, and
        // the tax box no longer claims a value.
        at("Text1", ctl.index == kSocialSecurityWages ? kSocialSecurityTax : kMedicareTax).text.clear();
        showInvalidField(ctl, kMoneyColour, "", parts().document, parts().desktop);
        cancel = true;
    }
}

void FormW2::computeSocialSecurityTax(const Rates& rates) {
    const double wages = numberOf(at("Text1", kSocialSecurityWages).text);
    at("Text1", kSocialSecurityTax).text = shown(socialSecurityTax(rates, wages));
}

void FormW2::computeMedicareTax(const Rates& rates) {
    const double wages = numberOf(at("Text1", kMedicareWages).text);
    at("Text1", kMedicareTax).text = shown(medicareTax(rates, wages));
}

void FormW2::onActivate() {
    Control& caption = at("Label1", kBox9Caption);
    Control& code = at("Text1", kVerificationCode);
    if (at("TaxYear", 1).caption == "18") {
        caption.caption = "9. Verification code";
        code.visible = true;
    } else {
        caption.caption = "9.";
        code.visible = false;
    }
}

void FormW2::afterYearChange() { onActivate(); }

void registerW2Form() {
    registerForm("TF_W2", [](const ProgramParts& parts) { return std::make_unique<FormW2>(parts); });
}

}  // namespace lw
