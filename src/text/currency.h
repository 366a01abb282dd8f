// Money as an exact signed count of ten-thousandths, so that sums and differences never drift.
#pragma once

#include <cstdint>
#include <string>

namespace lw::text {

class Currency {
public:
    static constexpr std::int64_t kScale = 10000;

    constexpr Currency() = default;

    // Rounds value * 10000, as the machine multiplies it, to the nearest count, ties to even
    // (0.00025 gives 2, 0.00035 gives 4, 0.5 ten-thousandth gives 0), whatever the rounding mode of
    // the processor. Throws std::overflow_error when the count would leave 64 bits, and for NaN.
    static Currency fromDouble(double value);
    // Whole units (dollars); throws std::overflow_error when they do not fit.
    static Currency fromUnits(std::int64_t units);
    // Ten-thousandths as they are.
    static constexpr Currency fromRaw(std::int64_t tenThousandths) { return Currency(tenThousandths); }

    constexpr std::int64_t raw() const { return raw_; }
    // Nearest double of the amount.
    double toDouble() const;
    // Exact, with no trailing zeros and no point for a whole amount: "1234.5", "-0.0001", "0".
    std::string toDecimalString() const;

    // Exact; std::overflow_error beyond 64 bits.
    Currency operator-() const;
    Currency& operator+=(Currency other);
    Currency& operator-=(Currency other);
    friend Currency operator+(Currency a, Currency b) { return a += b; }
    friend Currency operator-(Currency a, Currency b) { return a -= b; }

    friend constexpr bool operator==(Currency a, Currency b) { return a.raw_ == b.raw_; }
    friend constexpr bool operator!=(Currency a, Currency b) { return a.raw_ != b.raw_; }
    friend constexpr bool operator<(Currency a, Currency b) { return a.raw_ < b.raw_; }
    friend constexpr bool operator<=(Currency a, Currency b) { return a.raw_ <= b.raw_; }
    friend constexpr bool operator>(Currency a, Currency b) { return a.raw_ > b.raw_; }
    friend constexpr bool operator>=(Currency a, Currency b) { return a.raw_ >= b.raw_; }

private:
    constexpr explicit Currency(std::int64_t raw) : raw_(raw) {}

    std::int64_t raw_ = 0;
};

}  // namespace lw::text
