#include "text/case.h"

namespace lw::text {

namespace {

constexpr unsigned char kMultiplication = 0xD7;  // × sits among the capitals and has no case
constexpr unsigned char kDivision = 0xF7;        // ÷ likewise among the small letters

}  // namespace

char toUpper(char c) {
    const auto b = static_cast<unsigned char>(c);
    if (b >= 'a' && b <= 'z') return static_cast<char>(b - 0x20);
    if (b >= 0xE0 && b <= 0xFE && b != kDivision) return static_cast<char>(b - 0x20);
    switch (b) {
        case 0x9A:  // š
        case 0x9C:  // œ
        case 0x9E:  // ž
            return static_cast<char>(b - 0x10);
        case 0xFF:  // ÿ
            return '\x9F';
        default:
            return c;
    }
}

char toLower(char c) {
    const auto b = static_cast<unsigned char>(c);
    if (b >= 'A' && b <= 'Z') return static_cast<char>(b + 0x20);
    if (b >= 0xC0 && b <= 0xDE && b != kMultiplication) return static_cast<char>(b + 0x20);
    switch (b) {
        case 0x8A:  // Š
        case 0x8C:  // Œ
        case 0x8E:  // Ž
            return static_cast<char>(b + 0x10);
        case 0x9F:  // Ÿ
            return '\xFF';
        default:
            return c;
    }
}

std::string toUpper(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = toUpper(c);
    return out;
}

std::string toLower(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = toLower(c);
    return out;
}

bool equalsNoCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (toUpper(a[i]) != toUpper(b[i])) return false;
    }
    return true;
}

bool startsWithNoCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && equalsNoCase(text.substr(0, prefix.size()), prefix);
}

bool endsWithNoCase(std::string_view text, std::string_view suffix) {
    return text.size() >= suffix.size() && equalsNoCase(text.substr(text.size() - suffix.size()), suffix);
}

bool containsNoCase(std::string_view text, std::string_view word) {
    return findNoCase(text, word) != std::string::npos;
}

std::size_t findNoCase(std::string_view text, std::string_view word, std::size_t from) {
    if (from > text.size() || word.size() > text.size() - from) return std::string::npos;
    for (std::size_t at = from; at + word.size() <= text.size(); ++at) {
        if (equalsNoCase(text.substr(at, word.size()), word)) return at;
    }
    return std::string::npos;
}

}  // namespace lw::text
