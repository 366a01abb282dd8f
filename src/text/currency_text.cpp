#include "text/currency_text.h"

#include <cstdint>
#include <stdexcept>

#include "text/decimal.h"
#include "text/masks.h"

namespace lw::text {

namespace {

constexpr int kScaleDigits = 4;  // Currency::kScale is ten to this power
constexpr std::size_t kMostDigits = 19;

[[noreturn]] void overflow() { throw std::overflow_error("Currency overflow"); }

std::string withoutSignsAndCommas(std::string_view text) {
    std::string out;
    for (char c : text)
        if (c != '$' && c != ',') out += c;
    const std::size_t first = out.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return out.substr(first, out.find_last_not_of(' ') - first + 1);
}

// The value in ten-thousandths, from its significant digits: the whole count, then the digits dropped.
Currency fromDecimal(const Decimal& value) {
    if (value.isZero()) return Currency();
    const std::int64_t wholeDigits = value.pointPos + kScaleDigits;
    if (wholeDigits > static_cast<std::int64_t>(kMostDigits)) overflow();
    const std::string& digits = value.digits;
    unsigned __int128 count = 0;
    std::string dropped;
    // Below half a ten-thousandth: nought, however many zeros the text puts in front.
    if (wholeDigits < 0) return Currency();
    if (wholeDigits == 0) {
        dropped = digits;
    } else {
        const auto kept = static_cast<std::size_t>(wholeDigits);
        for (std::size_t i = 0; i < kept; ++i) count = count * 10 + (i < digits.size() ? digits[i] - '0' : 0);
        if (kept < digits.size()) dropped = digits.substr(kept);
    }
    // Ties to even: a dropped 5 followed by nothing but zeros rounds to the even count.
    if (!dropped.empty()) {
        const bool above =
            dropped[0] > '5' || (dropped[0] == '5' && dropped.find_first_not_of('0', 1) != std::string::npos);
        const bool tie = dropped[0] == '5' && !above;
        if (above || (tie && count % 2 == 1)) ++count;
    }
    const unsigned __int128 limit = static_cast<unsigned __int128>(INT64_MAX) + (value.negative ? 1 : 0);
    if (count > limit) overflow();
    if (!value.negative) return Currency::fromRaw(static_cast<std::int64_t>(count));
    return Currency::fromRaw(static_cast<std::int64_t>(0 - static_cast<std::uint64_t>(count)));
}

}  // namespace

std::optional<Currency> currencyFromText(std::string_view text) {
    std::string plain = withoutSignsAndCommas(text);
    bool parenthesised = false;
    if (plain.size() >= 2 && plain.front() == '(' && plain.back() == ')') {
        parenthesised = true;
        plain = plain.substr(1, plain.size() - 2);
    }
    std::optional<Decimal> value = parseDecimal(plain);
    if (!value) return std::nullopt;
    if (parenthesised) {
        if (value->negative || plain.front() == '+') return std::nullopt;
        value->negative = true;
    }
    return fromDecimal(*value);
}

std::string formatCurrency(Currency amount, std::string_view mask) {
    return formatNumberExact(amount.toDecimalString(), mask);
}

}  // namespace lw::text
