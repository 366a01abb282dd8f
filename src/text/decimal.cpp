#include "text/decimal.h"

namespace lw::text {

namespace {

// Larger exponents only pile up zeros; capping them keeps the arithmetic inside 64 bits.
constexpr std::int64_t kExponentCap = 1'000'000'000;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

void dropTrailingZeros(Decimal& value) {
    const std::size_t last = value.digits.find_last_not_of('0');
    value.digits.erase(last == std::string::npos ? 0 : last + 1);
    if (value.digits.empty()) value.pointPos = 0;
}

// Keeps the first `keep` digits, adding one to the last kept when the first dropped digit is 5 or more.
Decimal keepDigits(Decimal value, std::int64_t keep) {
    if (keep >= static_cast<std::int64_t>(value.digits.size())) return value;
    if (keep < 0) {
        value.digits.clear();
        value.pointPos = 0;
        return value;
    }
    const bool roundUp = value.digits[static_cast<std::size_t>(keep)] >= '5';
    value.digits.erase(static_cast<std::size_t>(keep));
    if (roundUp) {
        std::size_t at = value.digits.size();
        while (at > 0 && value.digits[at - 1] == '9') value.digits[--at] = '0';
        if (at == 0) {
            value.digits.insert(value.digits.begin(), '1');
            ++value.pointPos;
        } else {
            ++value.digits[at - 1];
        }
    }
    dropTrailingZeros(value);
    return value;
}

}  // namespace

std::optional<Decimal> parseDecimal(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return std::nullopt;
    text = text.substr(first, text.find_last_not_of(' ') - first + 1);

    Decimal value;
    std::size_t at = 0;
    if (text[at] == '+' || text[at] == '-') value.negative = text[at++] == '-';

    std::string mantissa;
    std::int64_t pointIndex = -1;
    for (; at < text.size(); ++at) {
        if (isDigit(text[at])) {
            mantissa += text[at];
        } else if (text[at] == '.' && pointIndex < 0) {
            pointIndex = static_cast<std::int64_t>(mantissa.size());
        } else {
            break;
        }
    }
    if (mantissa.empty()) return std::nullopt;
    if (pointIndex < 0) pointIndex = static_cast<std::int64_t>(mantissa.size());

    std::int64_t exponent = 0;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        ++at;
        bool negativeExponent = false;
        if (at < text.size() && (text[at] == '+' || text[at] == '-')) negativeExponent = text[at++] == '-';
        if (at == text.size() || !isDigit(text[at])) return std::nullopt;
        for (; at < text.size() && isDigit(text[at]); ++at) {
            if (exponent < kExponentCap) exponent = exponent * 10 + (text[at] - '0');
        }
        if (negativeExponent) exponent = -exponent;
    }
    if (at != text.size()) return std::nullopt;

    const std::size_t lead = mantissa.find_first_not_of('0');
    if (lead == std::string::npos) return Decimal{value.negative, "", 0};
    value.digits = mantissa.substr(lead);
    value.pointPos = pointIndex - static_cast<std::int64_t>(lead) + exponent;
    dropTrailingZeros(value);
    return value;
}

Decimal roundToSignificant(Decimal value, std::size_t count) {
    return keepDigits(std::move(value), static_cast<std::int64_t>(count));
}

Decimal roundToPlaces(Decimal value, std::int64_t places) {
    if (value.isZero()) return value;
    const std::int64_t keep = value.pointPos + places;
    return keepDigits(std::move(value), keep);
}

std::string integerDigits(const Decimal& value) {
    if (value.pointPos <= 0) return "";
    const auto length = static_cast<std::size_t>(value.pointPos);
    std::string out = value.digits.substr(0, length);
    out.resize(length, '0');
    return out;
}

std::string fractionDigits(const Decimal& value, std::size_t places) {
    std::string out(places, '0');
    for (std::size_t i = 0; i < places; ++i) {
        const std::int64_t at = value.pointPos + static_cast<std::int64_t>(i);
        if (at >= 0 && at < static_cast<std::int64_t>(value.digits.size()))
            out[i] = value.digits[static_cast<std::size_t>(at)];
    }
    return out;
}

}  // namespace lw::text
