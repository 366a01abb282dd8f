#include "forms/w2_withholding.h"

#include <charconv>
#include <cstdio>
#include <optional>
#include <string>

#include "model/app_error.h"
#include "text/number.h"

namespace lw {

namespace {

[[noreturn]] void typeMismatch() {
    throw AppError(err::kTypeMismatch, "Type mismatch", "TF_W2:Text1_Validate");
}

double valueOf(const RateFigure& figure) {
    if (!figure.value()) typeMismatch();
    return figure.value()->toDouble();
}

// A double kept as text the classic way, with up to 15 significant digits, and read back.
double throughText(double value) {
    char buffer[64];
#if defined(__cpp_lib_to_chars)
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
    const std::optional<double> back = text::toDouble(std::string(buffer, result.ptr));
#else
    // The WebAssembly build's library has no floating to_chars; its C library's %g writes the same text.
    const int length = std::snprintf(buffer, sizeof buffer, "%.15g", value);
    const std::optional<double> back = text::toDouble(std::string(buffer, static_cast<std::size_t>(length)));
#endif
    if (!back) typeMismatch();
    return *back;
}

// A percentage of an amount, in double precision (the rate divided first), held as currency.
text::Currency share(double ratePercent, double amount) {
    return text::Currency::fromDouble((ratePercent / 100) * amount);
}

}  // namespace

text::Currency socialSecurityTax(const Rates& rates, double wages) {
    const double rate = valueOf(rates.socialSecurityRate);
    const double wageBase = valueOf(rates.socialSecurityWageBase);
    const double base = wageBase < wages ? wageBase : wages;
    return share(rate, base);
}

text::Currency medicareTax(const Rates& rates, double wages) {
    const double changePoint = valueOf(rates.medicareChangePoint);
    const double initialRate = valueOf(rates.medicareRate);
    text::Currency first;
    text::Currency second;
    if (changePoint < wages) {
        // The wages over the change point; the rest, up to the change point, is taxed at the first rate.
        const double excess = throughText(wages - changePoint);
        first = share(initialRate, changePoint);
        second = share(valueOf(rates.medicareRateAfter), excess);
    } else {
        second = share(initialRate, wages);
    }
    return first + second;
}

}  // namespace lw
