// A number read from its text as decimal digits, so that rounding sees the value as typed and never
// a binary neighbour of it (2.675 stays 2.675, not 2.67499999...).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lw::text {

struct Decimal {
    bool negative = false;
    // Significant digits with no leading or trailing zero; empty for nought.
    std::string digits;
    // The value is 0.digits times ten to this power.
    std::int64_t pointPos = 0;

    bool isZero() const { return digits.empty(); }
};

// Accepts surrounding blanks, a leading sign, digits with at most one point (at least one digit) and
// an exponent ("e" or "E", a sign, digits). Nothing when the text is not such a number. No range check.
std::optional<Decimal> parseDecimal(std::string_view text);

// Halves go away from nought: 0.125 to two places is 0.13, -0.125 is -0.13.
Decimal roundToSignificant(Decimal value, std::size_t count);
Decimal roundToPlaces(Decimal value, std::int64_t places);

// The digits before the point, without leading zeros ("" below one). The value must be within reach of
// a double (at most a few hundred digits).
std::string integerDigits(const Decimal& value);
// Exactly `places` digits after the point, cut (not rounded).
std::string fractionDigits(const Decimal& value, std::size_t places);

}  // namespace lw::text
