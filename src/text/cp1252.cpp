#include "text/cp1252.h"

#include <array>
#include <cstdint>

namespace lw::text {

namespace {

// Code points of bytes 0x80 to 0x9F; an undefined byte keeps its own number as a C1 control.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t codePointOf(unsigned char byte) {
    if (byte >= 0x80 && byte <= 0x9F) return kHighControls[byte - 0x80];
    return byte;
}

std::optional<char> byteOf(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) return static_cast<char>(codePoint);
    for (std::size_t i = 0; i < kHighControls.size(); ++i) {
        if (kHighControls[i] == codePoint) return static_cast<char>(0x80 + i);
    }
    return std::nullopt;
}

void appendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

// Reads one strictly formed sequence at `at` (no overlong forms, no surrogates, nothing past U+10FFFF).
std::optional<char32_t> decodeOne(std::string_view utf8, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(utf8[at]);
    if (lead < 0x80) {
        ++at;
        return lead;
    }
    std::size_t length = 0;
    char32_t cp = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        cp = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        cp = lead & 0x0F;
        if (lead == 0xE0) low = 0xA0;
        if (lead == 0xED) high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        cp = lead & 0x07;
        if (lead == 0xF0) low = 0x90;
        if (lead == 0xF4) high = 0x8F;
    } else {
        return std::nullopt;
    }
    if (utf8.size() - at < length) return std::nullopt;
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(utf8[at + i]);
        if (next < low || next > high) return std::nullopt;
        low = 0x80;
        high = 0xBF;
        cp = (cp << 6) | (next & 0x3F);
    }
    at += length;
    return cp;
}

}  // namespace

std::optional<std::string> utf8ToCp1252(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const auto cp = decodeOne(utf8, at);
        if (!cp) return std::nullopt;
        const auto byte = byteOf(*cp);
        if (!byte) return std::nullopt;
        out += *byte;
    }
    return out;
}

std::string cp1252ToUtf8(std::string_view cp1252) {
    std::string out;
    out.reserve(cp1252.size() * 2);
    for (char c : cp1252) appendUtf8(out, codePointOf(static_cast<unsigned char>(c)));
    return out;
}

}  // namespace lw::text
