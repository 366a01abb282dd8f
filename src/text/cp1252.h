// Windows-1252, the code page of all program text, and its conversion to and from UTF-8 at the edges.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lw::text {

// Between the fields of a stored record ("·").
inline constexpr char kFieldSeparator = '\xB7';
// A line break inside a stored value ("»").
inline constexpr char kLineSeparator = '\xBB';

// Nothing when the UTF-8 is malformed or holds a character the code page cannot hold.
std::optional<std::string> utf8ToCp1252(std::string_view utf8);

// Never fails: the five bytes the code page leaves undefined become the C1 controls of the same
// number, so that utf8ToCp1252 gives every byte back.
std::string cp1252ToUtf8(std::string_view cp1252);

}  // namespace lw::text
