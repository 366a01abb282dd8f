#include "text/masks.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "text/decimal.h"
#include "text/number.h"

namespace lw::text {

namespace {

// Digits kept of any value, as a double-to-text conversion of the classic runtime keeps them.
constexpr std::size_t kSignificantDigits = 15;

bool isPlaceholder(char c) { return c == '#' || c == '0'; }

// The mask taken apart: its integer side, its decimal side, and whether the integer part is grouped.
struct NumberMask {
    std::string integerSide;
    bool hasPoint = false;
    std::string decimalSide;
    bool grouped = false;
    // Characters of integerSide that are grouping commas, not literals.
    std::vector<bool> groupingComma;
};

NumberMask parseMask(std::string_view mask) {
    NumberMask parsed;
    const std::size_t point = mask.find('.');
    parsed.integerSide = std::string(mask.substr(0, point));
    if (point != std::string_view::npos) {
        parsed.hasPoint = true;
        parsed.decimalSide = std::string(mask.substr(point + 1));
    }
    const std::string& side = parsed.integerSide;
    parsed.groupingComma.assign(side.size(), false);
    for (std::size_t i = 1; i + 1 < side.size(); ++i) {
        if (side[i] != ',') continue;
        const bool before = side.find_last_of("#0", i) != std::string::npos;
        const bool after = side.find_first_of("#0", i) != std::string::npos;
        if (before && after) {
            parsed.groupingComma[i] = true;
            parsed.grouped = true;
        }
    }
    return parsed;
}

// Placeholders from the leftmost "0" of the integer side to its end always show a digit.
std::size_t minimumIntegerDigits(const std::string& side) {
    const std::size_t firstZero = side.find('0');
    if (firstZero == std::string::npos) return 0;
    return static_cast<std::size_t>(
        std::count_if(side.begin() + static_cast<std::ptrdiff_t>(firstZero), side.end(), isPlaceholder));
}

// Walks the integer side from the right, so that surplus digits land on the leftmost placeholder.
std::string layIntegerSide(const NumberMask& mask, std::string digits) {
    const std::string& side = mask.integerSide;
    const std::size_t minimum = minimumIntegerDigits(side);
    if (digits.size() < minimum) digits.insert(0, minimum - digits.size(), '0');

    std::string reversed;
    std::size_t left = digits.size();
    std::size_t laid = 0;
    auto layDigit = [&] {
        if (mask.grouped && laid > 0 && laid % 3 == 0) reversed += ',';
        reversed += digits[--left];
        ++laid;
    };
    const std::size_t leftmost = side.find_first_of("#0");
    if (leftmost == std::string::npos) {
        while (left > 0) layDigit();
    }
    for (std::size_t i = side.size(); i-- > 0;) {
        if (isPlaceholder(side[i])) {
            if (left > 0) layDigit();
            if (i == leftmost) {
                while (left > 0) layDigit();
            }
        } else if (!mask.groupingComma[i]) {
            reversed += side[i];
        }
    }
    return std::string(reversed.rbegin(), reversed.rend());
}

std::string layDecimalSide(const std::string& side, const Decimal& value) {
    const auto places = static_cast<std::size_t>(std::count_if(side.begin(), side.end(), isPlaceholder));
    std::string digits = fractionDigits(value, places);
    // Trailing zeros may be dropped up to the rightmost "0" placeholder.
    const std::size_t lastZero = side.find_last_of('0');
    std::size_t minimum = 0;
    if (lastZero != std::string::npos)
        minimum =
            static_cast<std::size_t>(std::count_if(side.begin(), side.begin() + lastZero + 1, isPlaceholder));
    while (digits.size() > minimum && digits.back() == '0') digits.pop_back();

    std::string out;
    std::size_t next = 0;
    for (char c : side) {
        if (!isPlaceholder(c)) {
            out += c;
        } else if (next < digits.size()) {
            out += digits[next++];
        }
    }
    return out;
}

}  // namespace

namespace {

std::string formatDecimal(std::string_view numberText, std::string_view mask, bool keepAllDigits) {
    const std::optional<Decimal> parsed = parseDecimal(numberText);
    if (!parsed || !isNumeric(numberText))
        throw std::invalid_argument("not a number: \"" + std::string(numberText) + "\"");

    const NumberMask parts = parseMask(mask);
    const auto places = std::count_if(parts.decimalSide.begin(), parts.decimalSide.end(), isPlaceholder);
    const Decimal value =
        roundToPlaces(keepAllDigits ? *parsed : roundToSignificant(*parsed, kSignificantDigits), places);

    std::string out = value.negative && !value.isZero() ? "-" : "";
    out += layIntegerSide(parts, integerDigits(value));
    if (parts.hasPoint) out += "." + layDecimalSide(parts.decimalSide, value);
    return out;
}

}  // namespace

std::string formatNumber(std::string_view numberText, std::string_view mask) {
    return formatDecimal(numberText, mask, false);
}

std::string formatNumberExact(std::string_view numberText, std::string_view mask) {
    return formatDecimal(numberText, mask, true);
}

std::string formatText(std::string_view text, std::string_view mask) {
    const auto placeholders = static_cast<std::size_t>(std::count(mask.begin(), mask.end(), '@'));
    const std::size_t surplus = text.size() > placeholders ? text.size() - placeholders : 0;

    std::string reversed;
    std::size_t left = text.size();
    for (std::size_t i = mask.size(); i-- > 0;) {
        if (mask[i] != '@') {
            reversed += mask[i];
        } else if (left > surplus) {
            reversed += text[--left];
        } else {
            reversed += ' ';
        }
    }
    return std::string(text.substr(0, surplus)) + std::string(reversed.rbegin(), reversed.rend());
}

}  // namespace lw::text
