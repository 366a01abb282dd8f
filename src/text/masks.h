// Format masks that turn a number or a text into the text a field or a file shows.
#pragma once

#include <string>
#include <string_view>

namespace lw::text {

// Classic Format of a number under a one-section mask such as "$###,###.00", "(###,###,###)",
// "#######" or "00#":
// - "#" a digit if there is one: leading zeros and a value of nought show none; "0" always a digit;
//   digits the integer placeholders cannot hold all come out at the leftmost one;
// - "," with a digit placeholder on each side groups the whole integer part by thousands; any other
//   comma, and every character but "#", "0" and the first ".", is printed as it stands;
// - after ".", as many decimals as placeholders, rounded; a "#" there drops a trailing zero;
// - a value that is negative after rounding gets "-" in front of everything: -1234 under
//   "(###,###,###)" is "-(1,234)".
// Rounding works on the decimal text as entered: first to 15 significant digits, as a classic
// double-to-text conversion would, then to the mask's decimals; halves go away from nought
// (2.675 gives 2.68). Throws std::invalid_argument when isNumeric refuses the text.
std::string formatNumber(std::string_view numberText, std::string_view mask);

// As formatNumber, for an exact amount such as a currency sum: every digit is kept, and the value is
// rounded only to the mask's decimals, so a sum beyond 15 digits still shows what it is.
std::string formatNumberExact(std::string_view numberText, std::string_view mask);

// Classic Format of a text under an "@" mask: each "@" takes one character, filled from the right;
// left placeholders with no character left show a blank; characters beyond the placeholders come out
// in front of the whole result. Other mask characters stand as they are.
std::string formatText(std::string_view text, std::string_view mask);

}  // namespace lw::text
