#include "text/currency_text.h"

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>

#include "text/decimal.h"
#include "text/pieces.h"

namespace lw::text {

namespace {

[[noreturn]] void notAnAmount(std::string_view text) {
    throw std::invalid_argument("not an amount: \"" + std::string(text) + "\"");
}

// The text without its dollar sign, separators and parentheses; a sign in any of the accepted places
// is put in front, where the decimal reader expects it.
std::string plainNumber(std::string_view typed) {
    std::string rest = trim(typed);
    bool negative = false;
    if (rest.size() >= 2 && rest.front() == '(' && rest.back() == ')') {
        negative = true;
        rest = trim(std::string_view(rest).substr(1, rest.size() - 2));
    }
    auto takeSign = [&] {
        if (!rest.empty() && (rest.front() == '-' || rest.front() == '+')) {
            if (rest.front() == '-') negative = !negative;
            rest.erase(0, 1);
            return true;
        }
        return false;
    };
    const bool signBefore = takeSign();
    if (!rest.empty() && rest.front() == '$') {
        rest.erase(0, 1);
        if (!signBefore) takeSign();
    }
    // Separators belong to the whole part only: a comma after the point is not a number.
    const std::size_t point = rest.find('.');
    const std::string whole = replaceAll(rest.substr(0, point), ",", "");
    const std::string fraction = point == std::string::npos ? "" : rest.substr(point);
    if (fraction.find(',') != std::string::npos) notAnAmount(typed);
    // The digits must follow at once: a second sign or a blank after the sign is no amount.
    const std::string number = whole + fraction;
    if (number.empty() || number.front() == '-' || number.front() == '+' || number.front() == ' ')
        notAnAmount(typed);
    return (negative ? "-" : "") + number;
}

}  // namespace

Currency currencyFromText(std::string_view text) {
    const std::optional<Decimal> value = parseDecimal(plainNumber(text));
    if (!value) notAnAmount(text);
    if (value->isZero()) return Currency{};

    // The value is 0.digits x 10^pointPos; the count of ten-thousandths is its first `whole` digits.
    const std::string& digits = value->digits;
    const std::int64_t whole = value->pointPos + 4;
    if (whole > 19) throw std::overflow_error("Currency overflow");
    std::uint64_t count = 0;
    for (std::int64_t i = 0; i < whole; ++i) {
        const std::size_t at = static_cast<std::size_t>(i);
        const unsigned digit = at < digits.size() ? static_cast<unsigned>(digits[at] - '0') : 0;
        if (count > (std::numeric_limits<std::uint64_t>::max() - digit) / 10)
            throw std::overflow_error("Currency overflow");
        count = count * 10 + digit;
    }
    // The dropped digits: more than half rounds up, exactly half goes to the even count.
    const std::size_t kept = whole > 0 ? static_cast<std::size_t>(whole) : 0;
    if (whole >= 0 && kept < digits.size()) {
        const char first = digits[kept];
        const bool moreThanHalf = first > '5' || (first == '5' && kept + 1 < digits.size());
        const bool half = first == '5' && kept + 1 == digits.size();
        if (moreThanHalf || (half && count % 2 == 1)) ++count;
    }
    constexpr std::uint64_t kLimit = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (value->negative) {
        if (count > kLimit + 1) throw std::overflow_error("Currency overflow");
        return Currency::fromRaw(count == kLimit + 1 ? std::numeric_limits<std::int64_t>::min()
                                                     : -static_cast<std::int64_t>(count));
    }
    if (count > kLimit) throw std::overflow_error("Currency overflow");
    return Currency::fromRaw(static_cast<std::int64_t>(count));
}

}  // namespace lw::text
