#pragma once
// Cuts INF text into lines and tells what each line is, in one pass and without copying the text.
// The text is Windows-1252 bytes and is never decoded; any byte sequence is accepted.

#include <cstddef>
#include <string_view>

namespace lw::store {

enum class InfLineKind {
    Blank,        // nothing but blanks
    Comment,      // first non-blank byte is ';'
    sectionName,  // "[name]"
    Entry,        // "name=value", or a bare line without '=' (then hasEquals is false)
};

struct InfLine {
    InfLineKind kind = InfLineKind::Blank;
    std::size_t begin = 0;    // offset of the line's first byte
    std::size_t textEnd = 0;  // offset of the line end (or of the end of the text)
    std::size_t end = 0;      // offset after the line end
    std::string_view name;    // section name, key name, or the whole bare line; trimmed
    std::string_view value;   // trimmed value of an entry, quotes left on
    bool hasEquals = false;
    std::size_t equalsAt = 0;  // offset of the '=' of an entry that has one
};

// Walks the lines of a text. A line ends at CR LF, LF or a lone CR, or at the end of the text.
// The platform keeps values in C strings, so a line's content stops at its first NUL byte.
class InfLineReader {
public:
    explicit InfLineReader(std::string_view text) : text_(text) {}
    bool next(InfLine& line);

private:
    std::string_view text_;
    std::size_t pos_ = 0;
};

bool isInfBlank(char c);
std::string_view trimInfBlanks(std::string_view s);

// section and key names match ignoring case, letters of the code page included.
bool sameInfName(std::string_view a, std::string_view b);

// The line end this text already uses, so that added lines look like their neighbours; CR LF for a new file.
std::string_view infLineEndOf(std::string_view text);

}  // namespace lw::store
