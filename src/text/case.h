// Upper and lower case of Windows-1252 text, and comparisons and searches blind to case.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Callers that compare blind to case mostly trim and split as well.
#include "text/pieces.h"

namespace lw::text {

// ASCII letters and the Latin letters of the code page, as the Windows ANSI upper-case does:
// à becomes À, š Š, œ Œ, ž Ž, ÿ Ÿ (0xFF to 0x9F); ß, µ, ª and º have no capital here and stay.
char toUpper(char c);
char toLower(char c);
std::string toUpper(std::string_view text);
std::string toLower(std::string_view text);

bool equalsNoCase(std::string_view a, std::string_view b);
bool startsWithNoCase(std::string_view text, std::string_view prefix);
bool endsWithNoCase(std::string_view text, std::string_view suffix);
bool containsNoCase(std::string_view text, std::string_view word);

// Position of the first `word` at or after `from`, or std::string::npos. An empty word is found at
// `from` itself while `from` lies within the text.
std::size_t findNoCase(std::string_view text, std::string_view word, std::size_t from = 0);

}  // namespace lw::text
