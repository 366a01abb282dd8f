#pragma once
// The one source of chance of a class set: every choice of a case comes from it, so that the same seed
// makes the same cases on any machine (the engine's sequence is fixed by the standard, and the ranges
// are taken from it here rather than by the library's distributions, whose results may differ).

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace lw::cases {

class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}

    // A whole number from lo to hi, both included.
    long long between(long long lo, long long hi);
    // True in `percent` of the throws.
    bool chance(int percent);
    // An amount in cents from lo to hi whole dollars.
    long long centsBetween(long long loDollars, long long hiDollars);
    template <typename T>
    const T& pick(const std::vector<T>& from) {
        return from.at(static_cast<std::size_t>(between(0, static_cast<long long>(from.size()) - 1)));
    }
    // A string of `count` decimal digits.
    std::string digits(int count);

private:
    std::mt19937_64 engine_;
};

// The seed of case `number` of a class set: each case stands on its own, so a case made again alone
// comes out the same.
std::uint64_t caseSeed(std::uint64_t classSeed, int number);

}  // namespace lw::cases
