#include "forms/w2_form.h"

#include <charconv>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <string>

#include "config/rates.h"
#include "fields/edit_failure.h"
#include "model/app_error.h"
#include "model/program.h"
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

Globals& g() { return program().g; }

// A number as the classic conversion reads it: thousands separators and a currency sign are part of a
// number's text there. A text that is no number is a fault of the program, not of the operator: the
// rates and limits are checked where they are entered, and the wage boxes by their edit.
double numberOf(const std::string& value) {
    const std::string plain = text::replaceAll(text::replaceAll(value, ",", ""), "$", "");
    const std::optional<double> number = text::toDouble(plain);
    if (!number) throw AppError(err::kTypeMismatch, "Type mismatch", "TF_W2:Text1_Validate");
    return *number;
}

// A double kept as text the classic way, with up to 15 significant digits, and read back.
double throughText(double value) {
    char buffer[64];
#if defined(__cpp_lib_to_chars)
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
    return numberOf(std::string(buffer, result.ptr));
#else
    // The WebAssembly build's library has no floating to_chars; its C library's %g writes the same text.
    const int length = std::snprintf(buffer, sizeof buffer, "%.15g", value);
    return numberOf(std::string(buffer, static_cast<std::size_t>(length)));
#endif
}

// A percentage of an amount, in double precision (the rate divided first), held as currency.
text::Currency share(double ratePercent, double amount) {
    return text::Currency::fromDouble((ratePercent / 100) * amount);
}

std::string shown(text::Currency amount) {
    return text::formatNumber(amount.toDecimalString(), "###,###.00");
}

}  // namespace

FormW2::FormW2() : TaxForm("TF_W2") {}

void FormW2::onLoad() {
    TaxForm::onLoad();
    // The form is activated as soon as it is loaded, before its placing writes the year into it; the
    // year's digits are given here already, so that box 9 is decided by the year in force.
    at("TaxYear", 1).caption = g().taxYear.digits();
}

void FormW2::onValidate(Control& ctl, bool& Cancel) {
    if (!text::equalsNoCase(ctl.name, "Text1") || ctl.index == kNoIndex) return;
    TaxForm::onValidate(ctl, Cancel);
    if (Cancel || ctl.text.empty()) return;
    if (ctl.index != kSocialSecurityWages && ctl.index != kMedicareWages) return;
    // A year without its figures computes nothing: the operator reads why, and the box stands.
    if (!ratesInForce()) return;
    try {
        if (ctl.index == kSocialSecurityWages)
            computeSocialSecurityTax();
        else
            computeMedicareTax();
    } catch (const std::overflow_error&) {
        // An amount beyond what the program can count is the box's own fault: it keeps the focus, and
        // the tax box no longer claims a value.
        at("Text1", ctl.index == kSocialSecurityWages ? kSocialSecurityTax : kMedicareTax).text.clear();
        showInvalidField(ctl, kMoneyColour, "");
        Cancel = true;
    }
}

void FormW2::computeSocialSecurityTax() {
    const double rate = numberOf(text::replaceAll(g().SSRate, "%", ""));
    const double wages = numberOf(at("Text1", kSocialSecurityWages).text);
    const double wageBase = numberOf(g().SSMax);
    const double base = wageBase < wages ? wageBase : wages;
    at("Text1", kSocialSecurityTax).text = shown(share(rate, base));
}

void FormW2::computeMedicareTax() {
    const double wages = numberOf(at("Text1", kMedicareWages).text);
    const double changePoint = numberOf(g().MCChgRateAfter);
    const double initialRate = numberOf(g().MCInitRate);
    text::Currency first;
    text::Currency second;
    if (changePoint < wages) {
        // The wages over the change point; the rest, up to the change point, is taxed at the first rate.
        const double excess = throughText(wages - changePoint);
        first = share(initialRate, changePoint);
        second = share(numberOf(g().MCRateAfter), excess);
    } else {
        second = share(initialRate, wages);
    }
    at("Text1", kMedicareTax).text = shown(first + second);
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
    registerForm("TF_W2", [] { return std::make_unique<FormW2>(); });
}

}  // namespace lw
