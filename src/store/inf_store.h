#pragma once
// Settings files in the Windows private-profile format: "[Section]" lines and "key=value" lines.
// Text is Windows-1252 bytes and is never decoded. Every call reads the file afresh; nothing is cached.
//
// Reading rules, as the platform's profile functions have them:
// - Section and key names match ignoring case; the first matching section is the only one looked at,
//   and in it the first matching key wins.
// - Names and values lose their surrounding blanks (space, tab, vertical tab, form feed); a value
//   between one pair of double quotes loses the quotes.
// - A line ends at CR LF, LF or a lone CR; its content also stops at a NUL byte.
// - Lines starting with ';' are comments; a line with no '=' is no key.

#include <cstddef>
#include <string>
#include <vector>

#include "store/inf_write_error.h"

namespace lw::store {

// Values come back through a buffer of this many characters, the last of which ends the string.
constexpr std::size_t kInfValueBuffer = 1024;

// The value of `key` in `section`, at most 1023 characters. A key written with nothing behind '='
// gives the empty string. A missing file, section or key gives `defaultValue` without its trailing
// blanks, also at most 1023 characters. Never throws for the file's content.
std::string readInfValue(const std::string& section, const std::string& key, const std::string& defaultValue,
                         const std::string& file);

// Sets `key` of `section` to `value`, creating the missing folders, the file, the section and the key.
// Only the one line changes; a new key goes at the end of its section, a new section at the end of the
// file. CR, LF and NUL in a name or value are written as blanks, so a value stays on one line. The file
// is replaced whole or not at all. Throws InfWriteError: number 76 when a folder cannot be created,
// 900 with "Error Writing <section>/<key>/<value>\r\nto <file>" when the file cannot be read or written.
void writeInfValue(const std::string& section, const std::string& key, const std::string& value,
                   const std::string& file);

// The lines of `section` as the platform's section call gives them through a buffer of `bufferSize`
// characters: each line takes its length plus one NUL, and one more NUL ends the list.
// - A line is "name=value" with both parts trimmed (quotes kept), or a line without '=' trimmed; blank
//   and comment lines are left out.
// - When everything fits, every line comes back.
// - When it does not fit, only bufferSize - 2 characters (lines and their NULs) are kept: the lines
//   that fit whole, then the first part of the next line if at least one character of it fits.
//   Nothing at all comes back for a bufferSize below 3.
// A missing file or section gives an empty list.
std::vector<std::string> readInfSection(const std::string& section, const std::string& file,
                                        std::size_t bufferSize);

}  // namespace lw::store
