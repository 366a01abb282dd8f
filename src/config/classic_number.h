// Numbers as the configuration form's fields hold them: with thousands commas, a sign in front or
// behind, and the classic Format that leaves a text which is no number as it stands.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lw::config {

// The plain spelling of a number as the classic numeric test accepts it: blanks around, one sign in
// front or behind ("12.5-"), commas anywhere in the whole part after its first digit ("168,600.00"),
// at most one point and an exponent. "-168600.00" for " 168,600.00- ". Nothing for any other text,
// and for a value too large for a double.
std::optional<std::string> plainNumber(std::string_view text);
bool isClassicNumeric(std::string_view text);

// Classic Format of a field's text under a number mask: empty stays empty, a text that is no number
// comes back unchanged, a number is laid out by the mask ("168,600.00" under "#######" is "168600").
std::string formatClassic(std::string_view text, std::string_view mask);

// A number rounded to a whole one, ties to the even neighbour (168600.5 gives 168600, 168601.5 gives
// 168602), in plain spelling. The text must be one that plainNumber accepts.
std::string roundHalfEvenToWhole(std::string_view text);

// -1, 0 or 1 as a is below, equal to or above b, both read as exact decimals; commas are allowed.
int compareDecimal(std::string_view a, std::string_view b);

}  // namespace lw::config
