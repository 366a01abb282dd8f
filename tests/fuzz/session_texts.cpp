#include "session_texts.h"

#include <cctype>
#include <cstdio>
#include <iterator>

namespace lw::fuzz {

namespace {

// "·" and "»" of the files, as the single bytes of the code page.
const std::string kDot = "\xB7";
const std::string kBreak = "\xBB";

const char* const kFieldValues[] = {
    "02/29/2024",
    "02/29/1980",
    "3/7",
    "12/31/20XX",
    "13/45/2000",
    "1/1/1900",
    "20XX",
    "24",
    "202",
    "123",
    "123456789",
    "123-45-6789",
    "987-65-4321",
    "912-34-5678",
    "000-00-0000",
    "12-3456789",
    "$1,234.50",
    "-5",
    "0.00",
    "999999",
    "922337203685477",
    "92233720368547758",
    "1e400",
    "$.50",
    "12345678901234567890123",
    "{",
    "}",
    "=",
    "A=B",
    "X",
    "x",
    " ",
    "JOHN Q DOE JR.",
    "ANN LEE V",
    "MARY DOE-SMITH III\r\n12 MAIN ST\r\nANYTOWN, OH 44000",
    "TIFIMRU",
    "6.2%",
    "12.65%",
    "1.45",
    "ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJ",
};

const char* const kNames[] = {"JOHN Q DOE JR.", "MARY A SAMPLE",      "ANN LEE V", "TIFIMRU",
                              "john doe jr",    "MARY DOE-SMITH III", "",          "  "};
const char* const kStreets[] = {"12 MAIN ST", "APT 4", "PO BOX 7", ""};
const char* const kCities[] = {"ANYTOWN, OH 44000", "SPRINGFIELD IL", ""};

template <std::size_t N>
std::string oneOf(SessionInput& in, const char* const (&list)[N]) {
    return list[in.pick(N)];
}

std::string digits(SessionInput& in, std::size_t maxLength) {
    std::string out;
    for (std::size_t n = in.pick(maxLength) + 1; n > 0; --n)
        out.push_back(static_cast<char>('0' + in.pick(10)));
    return out;
}

}  // namespace

std::string anyText(SessionInput& in, std::size_t maxLength) {
    std::string text = in.bytes(maxLength);
    for (char& c : text)
        if (c == '\0') c = ' ';
    return text;
}

std::string fieldText(SessionInput& in) {
    switch (in.pick(8)) {
        case 0:
        case 1:
            return anyText(in, 40);
        case 2:
            return digits(in, 30);
        case 3:
            return kDot + anyText(in, 12) + kBreak;
        case 4:
            return oneOf(in, kFieldValues) + anyText(in, 6);
        default:
            return oneOf(in, kFieldValues);
    }
}

std::string safeName(SessionInput& in, std::size_t maxLength) {
    std::string name = in.bytes(maxLength);
    for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    return name.empty() ? "F" : name;
}

std::string printable(const std::string& text) {
    std::string out;
    for (unsigned char c : text) {
        if (c >= 0x20 && c < 0x7F) {
            out.push_back(static_cast<char>(c));
        } else {
            char hex[8];
            std::snprintf(hex, sizeof hex, "\\x%02X", c);
            out += hex;
        }
    }
    return out;
}

std::string nameBlock(SessionInput& in) {
    if (in.oneIn(6)) return anyText(in, 60);
    std::string block = oneOf(in, kNames);
    const std::size_t lines = in.pick(5);
    for (std::size_t i = 0; i < lines; ++i)
        block += kBreak + (i + 1 == lines ? oneOf(in, kCities) : oneOf(in, kStreets));
    return block;
}

std::string taxpayerNumber(SessionInput& in) {
    switch (in.pick(5)) {
        case 0:
            return digits(in, 12);
        case 1:
            return "123-45-6789";
        case 2:
            return "912-34-5678";
        case 3:
            return "";
        default:
            return anyText(in, 14);
    }
}

std::string dateText(SessionInput& in) {
    static const char* const kDates[] = {"02/29/2024", "02/29/1980", "01/15/1980", "12/31/20XX",
                                         "13/45/2000", "06/13/1980", "",           "7/4/76"};
    return in.oneIn(5) ? anyText(in, 12) : oneOf(in, kDates);
}

}  // namespace lw::fuzz
