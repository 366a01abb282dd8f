// Money typed or stored as text, read into an exact Currency.
#pragma once

#include <string_view>

#include "text/currency.h"

namespace lw::text {

// Reads an amount as the classic currency conversion does: surrounding blanks, a sign before or after
// a leading "$", thousands separators anywhere in the digits, and parentheses for a negative amount are
// all accepted: "$1,234.50", "-$5.00", "($5.00)", "1234.5". Digits beyond the fourth decimal round to the
// nearest ten-thousandth, ties to even, on the decimal digits as written (no binary neighbour takes part).
// Throws std::invalid_argument for a text that is no amount, std::overflow_error beyond 64 bits.
Currency currencyFromText(std::string_view text);

}  // namespace lw::text
