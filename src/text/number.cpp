#include "text/number.h"

#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <string>
#include <system_error>

#include "text/decimal.h"

namespace lw::text {

namespace {

// The standard library's exact conversion where it has one for floating point; elsewhere (the
// WebAssembly build's library) the C library's, which reads the same canonical spelling as exactly.
std::from_chars_result readDouble(const char* first, const char* last, double& result) {
#if defined(__cpp_lib_to_chars)
    return std::from_chars(first, last, result);
#else
    const std::string spelling(first, last);
    char* end = nullptr;
    errno = 0;
    result = std::strtod(spelling.c_str(), &end);
    const char* stop = first + (end - spelling.c_str());
    return {stop, errno == ERANGE ? std::errc::result_out_of_range : std::errc()};
#endif
}

}  // namespace

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
    const auto [end, error] = readDouble(canonical.data(), canonical.data() + canonical.size(), result);
    if (end != canonical.data() + canonical.size()) return std::nullopt;
    if (error == std::errc::result_out_of_range) {
        if (value->pointPos > 0) return std::nullopt;
        return zero;
    }
    if (error != std::errc()) return std::nullopt;
    return result;
}

}  // namespace lw::text
