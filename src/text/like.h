// The classic Like operator: a wildcard pattern matched against a whole text, compared byte for byte.
#pragma once

#include <string_view>

namespace lw::text {

// Pattern language:
// - "?" any one character, "*" any run of characters (none too), "#" one digit 0 to 9;
// - "[list]" one character of the list, "[!list]" one character not in it; a list holds characters
//   and ranges such as "a-z"; a "-" first (after any "!") or last in the list stands for itself, so
//   "[-9]" admits only "-" and "9"; "[]" matches nothing at all, consuming no character;
// - every other character stands for itself, "[", "?", "*" and "#" included when put in a list.
// The whole text must match, case counts. Throws std::invalid_argument ("Invalid pattern string")
// for a list with no closing "]" or a range whose ends are in the wrong order, as the classic
// operator raises its error then.
bool likeMatch(std::string_view text, std::string_view pattern);

}  // namespace lw::text
