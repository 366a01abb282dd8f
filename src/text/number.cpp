#include "text/number.h"

#include <charconv>
#include <string>
#include <system_error>

#include "text/decimal.h"

namespace lw::text {

bool isNumeric(std::string_view text) { return toDouble(text).has_value(); }

std::optional<double> toDouble(std::string_view text) {
    const std::optional<Decimal> value = parseDecimal(text);
    if (!value) return std::nullopt;
    const double zero = value->negative ? -0.0 : 0.0;
    if (value->isZero()) return zero;

    // A canonical spelling, so that only the grammar above decides what is a number.
    const std::string canonical =
        (value->negative ? "-0." : "0.") + value->digits + "e" + std::to_string(value->pointPos);
    double result = 0.0;
    const auto [end, error] = std::from_chars(canonical.data(), canonical.data() + canonical.size(), result);
    if (end != canonical.data() + canonical.size()) return std::nullopt;
    if (error == std::errc::result_out_of_range) {
        if (value->pointPos > 0) return std::nullopt;
        return zero;
    }
    if (error != std::errc()) return std::nullopt;
    return result;
}

}  // namespace lw::text
