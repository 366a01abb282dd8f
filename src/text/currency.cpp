#include "text/currency.h"

#include <cmath>
#include <stdexcept>

namespace lw::text {

namespace {

// 2^63 exactly; every double below it in magnitude converts to a 64-bit count without overflow.
constexpr double kTwoTo63 = 9223372036854775808.0;

// Ties to even, computed rather than taken from the floating-point environment.
double roundHalfEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;  // exact: value and below share their exponent range
    if (rest > 0.5) return below + 1.0;
    if (rest < 0.5) return below;
    return std::fmod(below, 2.0) == 0.0 ? below : below + 1.0;
}

[[noreturn]] void overflow() { throw std::overflow_error("Currency overflow"); }

}  // namespace

Currency Currency::fromDouble(double value) {
    const double count = roundHalfEven(value * static_cast<double>(kScale));
    if (!(count >= -kTwoTo63 && count < kTwoTo63)) overflow();
    return Currency(static_cast<std::int64_t>(count));
}

Currency Currency::fromUnits(std::int64_t units) {
    std::int64_t raw = 0;
    if (__builtin_mul_overflow(units, kScale, &raw)) overflow();
    return Currency(raw);
}

double Currency::toDouble() const { return static_cast<double>(raw_) / static_cast<double>(kScale); }

std::string Currency::toDecimalString() const {
    // The magnitude in unsigned arithmetic, so that the smallest count has one too.
    const std::uint64_t magnitude =
        raw_ < 0 ? 0 - static_cast<std::uint64_t>(raw_) : static_cast<std::uint64_t>(raw_);
    const std::uint64_t scale = static_cast<std::uint64_t>(kScale);
    std::string out = raw_ < 0 ? "-" : "";
    out += std::to_string(magnitude / scale);
    std::string fraction = std::to_string(magnitude % scale);
    if (fraction != "0") {
        fraction.insert(0, 4 - fraction.size(), '0');
        fraction.erase(fraction.find_last_not_of('0') + 1);
        out += "." + fraction;
    }
    return out;
}

Currency Currency::operator-() const {
    std::int64_t raw = 0;
    if (__builtin_sub_overflow(std::int64_t{0}, raw_, &raw)) overflow();
    return Currency(raw);
}

Currency& Currency::operator+=(Currency other) {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(raw_, other.raw_, &sum)) overflow();
    raw_ = sum;
    return *this;
}

Currency& Currency::operator-=(Currency other) {
    std::int64_t difference = 0;
    if (__builtin_sub_overflow(raw_, other.raw_, &difference)) overflow();
    raw_ = difference;
    return *this;
}

}  // namespace lw::text
