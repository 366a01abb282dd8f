#include "config/classic_number.h"

#include <cctype>
#include <stdexcept>

#include "text/decimal.h"
#include "text/masks.h"
#include "text/number.h"
#include "text/pieces.h"

namespace lw::config {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

text::Decimal decimalOf(std::string_view numberText) {
    const std::optional<std::string> plain = plainNumber(numberText);
    const std::optional<text::Decimal> value = plain ? text::parseDecimal(*plain) : std::nullopt;
    if (!value) throw std::invalid_argument("Type mismatch");
    return *value;
}

}  // namespace

std::optional<std::string> plainNumber(std::string_view text) {
    std::string body = text::trim(text);
    char sign = 0;
    if (!body.empty() && (body.front() == '-' || body.front() == '+')) {
        sign = body.front();
        body.erase(0, 1);
    } else if (!body.empty() && (body.back() == '-' || body.back() == '+')) {
        sign = body.back();
        body.pop_back();
    }

    std::string plain;
    if (sign == '-') plain += '-';
    std::size_t at = 0;
    bool wholeDigits = false;
    for (; at < body.size() && (isDigit(body[at]) || (body[at] == ',' && wholeDigits)); ++at) {
        if (body[at] == ',') continue;
        plain += body[at];
        wholeDigits = true;
    }
    bool fractionDigits = false;
    if (at < body.size() && body[at] == '.') {
        plain += '.';
        for (++at; at < body.size() && isDigit(body[at]); ++at) {
            plain += body[at];
            fractionDigits = true;
        }
    }
    if (!wholeDigits && !fractionDigits) return std::nullopt;
    if (at < body.size() && (body[at] == 'e' || body[at] == 'E')) {
        plain += 'e';
        ++at;
        if (at < body.size() && (body[at] == '-' || body[at] == '+')) plain += body[at++];
        const std::size_t exponentStart = at;
        for (; at < body.size() && isDigit(body[at]); ++at) plain += body[at];
        if (at == exponentStart) return std::nullopt;
    }
    if (at != body.size()) return std::nullopt;
    if (!text::isNumeric(plain)) return std::nullopt;
    return plain;
}

bool isClassicNumeric(std::string_view text) { return plainNumber(text).has_value(); }

std::string formatClassic(std::string_view text, std::string_view mask) {
    if (text.empty()) return "";
    const std::optional<std::string> plain = plainNumber(text);
    if (!plain) return std::string(text);
    return text::formatNumber(*plain, mask);
}

std::string roundHalfEvenToWhole(std::string_view numberText) {
    const text::Decimal value = decimalOf(numberText);
    std::string whole = text::integerDigits(value);
    // The digits behind the point, leading zeros included; no trailing zero, so a second digit means
    // more than an exact half.
    std::string fraction;
    const auto count = static_cast<std::int64_t>(value.digits.size());
    if (value.pointPos < count) {
        if (value.pointPos < 0) fraction.assign(static_cast<std::size_t>(-value.pointPos), '0');
        fraction += value.digits.substr(static_cast<std::size_t>(std::max<std::int64_t>(value.pointPos, 0)));
    }
    bool up = false;
    if (!fraction.empty()) {
        const char first = fraction.front();
        const bool lastWholeOdd = !whole.empty() && ((whole.back() - '0') % 2 == 1);
        up = first > '5' || (first == '5' && (fraction.size() > 1 || lastWholeOdd));
    }
    if (whole.empty()) whole = "0";
    if (up) {
        std::size_t i = whole.size();
        while (i > 0 && whole[i - 1] == '9') whole[--i] = '0';
        if (i == 0)
            whole.insert(whole.begin(), '1');
        else
            ++whole[i - 1];
    }
    if (whole == "0") return "0";
    return (value.negative ? "-" : "") + whole;
}

int compareDecimal(std::string_view a, std::string_view b) {
    const text::Decimal x = decimalOf(a);
    const text::Decimal y = decimalOf(b);
    const bool xNegative = x.negative && !x.isZero();
    const bool yNegative = y.negative && !y.isZero();
    if (xNegative != yNegative) return xNegative ? -1 : 1;
    // Magnitudes first, then turned round for two negative values.
    int magnitude = 0;
    if (x.isZero() || y.isZero()) {
        magnitude = x.isZero() == y.isZero() ? 0 : (x.isZero() ? -1 : 1);
    } else if (x.pointPos != y.pointPos) {
        magnitude = x.pointPos < y.pointPos ? -1 : 1;
    } else {
        const int order = x.digits.compare(y.digits);
        magnitude = order < 0 ? -1 : (order > 0 ? 1 : 0);
    }
    return xNegative ? -magnitude : magnitude;
}

}  // namespace lw::config
