// The number test that the edits use on typed and pasted text.
#pragma once

#include <optional>
#include <string_view>

namespace lw::text {

// Surrounding blanks, a leading sign, digits with at most one point and an optional exponent:
// " -12.5e+3 " passes; "", ".", "-", "1.2.3", "12a", "$5" and "1,000" do not. A value too large
// for a double (1e400) does not pass either, as a parse into a double would overflow.
bool isNumeric(std::string_view text);

// The value of a text that isNumeric accepts, nearest double; nothing otherwise. Independent of the
// process locale. Values too small for a double become nought.
std::optional<double> toDouble(std::string_view text);

}  // namespace lw::text
