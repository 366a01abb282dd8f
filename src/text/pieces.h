// Trimming blanks, replacing and splitting text, as the classic string functions do.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lw::text {

// Blanks only (the space character); tabs and line breaks are content.
std::string trim(std::string_view text);
std::string trimLeft(std::string_view text);
std::string trimRight(std::string_view text);

// Every occurrence of `from`, left to right and without overlap; an empty `from` changes nothing.
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

// Empty pieces are kept ("a,,b" gives three). As the classic Split, an empty text gives no piece at
// all and an empty separator gives the whole text as the one piece.
std::vector<std::string> split(std::string_view text, std::string_view separator);

}  // namespace lw::text
