#pragma once
// The change that one write makes to the text of an INF file, with no file access.

#include <string>
#include <string_view>

namespace lw::store {

// A value, key or section name kept to one line: CR, LF and NUL each become a blank, so a value
// can never start a second key or section, and nothing of it is cut off at a NUL when read back.
std::string infOneLine(std::string_view text);

// Returns `text` with `key` of `section` set to `value`; every other byte stays where it was.
// - The first matching key of the first matching section gets the new value after its '='; the
//   bytes up to and including the '=' and the line end are kept.
// - A missing key is added after the last non-blank line of the first matching section.
// - A missing section is added at the end of the text, as "[section]" and then "key=value".
// Added lines take the line end that the text already uses (CR LF in an empty text). `section`,
// `key` and `value` must already be one line each (see infOneLine).
std::string infWithValue(std::string_view text, std::string_view section, std::string_view key,
                         std::string_view value);

}  // namespace lw::store
