#include "cases/dice.h"

namespace lw::cases {

long long Dice::between(long long lo, long long hi) {
    if (hi <= lo) return lo;
    const auto span = static_cast<std::uint64_t>(hi - lo) + 1;
    // Rejection keeps every value equally likely.
    const std::uint64_t limit = UINT64_MAX - UINT64_MAX % span;
    std::uint64_t value = engine_();
    while (value >= limit) value = engine_();
    return lo + static_cast<long long>(value % span);
}

bool Dice::chance(int percent) { return between(0, 99) < percent; }

long long Dice::centsBetween(long long loDollars, long long hiDollars) {
    return between(loDollars * 100, hiDollars * 100);
}

std::string Dice::digits(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += static_cast<char>('0' + between(0, 9));
    return text;
}

std::uint64_t caseSeed(std::uint64_t classSeed, int number) {
    // SplitMix64 spreads neighbouring seeds far apart.
    std::uint64_t z = classSeed + 0x9E3779B97F4A7C15ULL * static_cast<std::uint64_t>(number);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

}  // namespace lw::cases
