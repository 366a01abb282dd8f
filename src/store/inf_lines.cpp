#include "store/inf_lines.h"

namespace lw::store {

namespace {

// Windows-1252 letters fold to their lower-case partner; everything else is compared as is.
unsigned char foldCase(unsigned char c) {
    if (c >= 'A' && c <= 'Z') return static_cast<unsigned char>(c + 32);
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return static_cast<unsigned char>(c + 32);
    switch (c) {
        case 0x8A:
            return 0x9A;  // S caron
        case 0x8C:
            return 0x9C;  // OE ligature
        case 0x8E:
            return 0x9E;  // Z caron
        case 0x9F:
            return 0xFF;  // Y diaeresis
        default:
            return c;
    }
}

void classify(std::string_view content, std::size_t begin, InfLine& line) {
    std::string_view trimmed = trimInfBlanks(content);
    line.name = {};
    line.value = {};
    line.hasEquals = false;
    line.equalsAt = 0;
    if (trimmed.empty()) {
        line.kind = InfLineKind::Blank;
        return;
    }
    if (trimmed.front() == ';') {
        line.kind = InfLineKind::Comment;
        return;
    }
    if (trimmed.front() == '[') {
        // The last ']' closes the name, so a name with ']' in it reads back as it was written.
        std::size_t close = trimmed.rfind(']');
        if (close != std::string_view::npos && close > 0) {
            line.kind = InfLineKind::sectionName;
            line.name = trimInfBlanks(trimmed.substr(1, close - 1));
            return;
        }
    }
    line.kind = InfLineKind::Entry;
    std::size_t eq = content.find('=');
    if (eq == std::string_view::npos) {
        line.name = trimmed;
        return;
    }
    line.hasEquals = true;
    line.equalsAt = begin + eq;
    line.name = trimInfBlanks(content.substr(0, eq));
    line.value = trimInfBlanks(content.substr(eq + 1));
}

}  // namespace

bool InfLineReader::next(InfLine& line) {
    if (pos_ >= text_.size()) return false;
    const std::size_t begin = pos_;
    const std::size_t size = text_.size();
    const char* data = text_.data();
    // One look at each byte: the line end, and on the way the first NUL that ends the content.
    std::size_t stop = begin;
    std::size_t nul = std::string_view::npos;
    for (; stop < size; ++stop) {
        char c = data[stop];
        if (c == '\n' || c == '\r') break;
        if (c == '\0' && nul == std::string_view::npos) nul = stop;
    }
    std::size_t after = stop;
    if (after < size) after += (data[after] == '\r' && after + 1 < size && data[after + 1] == '\n') ? 2 : 1;
    std::size_t contentEnd = nul == std::string_view::npos ? stop : nul;

    line.begin = begin;
    line.textEnd = stop;
    line.end = after;
    classify(text_.substr(begin, contentEnd - begin), begin, line);
    pos_ = after;
    return true;
}

bool isInfBlank(char c) { return c == ' ' || c == '\t' || c == '\v' || c == '\f'; }

std::string_view trimInfBlanks(std::string_view s) {
    std::size_t first = 0;
    while (first < s.size() && isInfBlank(s[first])) ++first;
    std::size_t last = s.size();
    while (last > first && isInfBlank(s[last - 1])) --last;
    return s.substr(first, last - first);
}

bool sameInfName(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (foldCase(static_cast<unsigned char>(a[i])) != foldCase(static_cast<unsigned char>(b[i]))) {
            return false;
        }
    }
    return true;
}

std::string_view infLineEndOf(std::string_view text) {
    std::size_t at = text.find_first_of("\r\n");
    if (at == std::string_view::npos) return "\r\n";
    if (text[at] == '\n') return "\n";
    if (at + 1 < text.size() && text[at + 1] == '\n') return "\r\n";
    return "\r";
}

}  // namespace lw::store
