#pragma once
// Folds a value into a running hash, in the manner of boost::hash_combine: the fingerprints of a
// control's or a form's look are made of many small values.

#include <cstddef>
#include <functional>

namespace lw {

template <typename T>
void mix(std::size_t& seed, const T& value) {
    seed ^= std::hash<T>{}(value) + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2);
}

}  // namespace lw
