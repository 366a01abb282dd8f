// Money read from the text of a field into Currency, and a Currency written under a mask.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/currency.h"

namespace lw::text {

// The amount a money text stands for: blanks around it, "$" signs and thousands commas anywhere, a
// leading sign or surrounding parentheses for a negative amount, digits with at most one point and an
// optional exponent. Digits past the fourth decimal round to the nearest ten-thousandth, ties to even.
// Nothing for a text that is no amount (an empty text included); std::overflow_error for an amount that
// does not fit the 64-bit count.
std::optional<Currency> currencyFromText(std::string_view text);

// The amount under a number mask such as "$###,###.00", with all its digits: only the mask's decimals
// round it (halves away from nought), so a total near the limit of the count shows exactly.
std::string formatCurrency(Currency amount, std::string_view mask);

}  // namespace lw::text
