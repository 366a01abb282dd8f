#pragma once
// Colours are numbers of the shape 0x00BBGGRR, as the forms and the legend store them.

#include <cstdint>

namespace lw {

using Color = std::uint32_t;

constexpr Color kWhite = 0x00FFFFFF;
constexpr Color kBlack = 0x00000000;
constexpr Color kRed = 0x000000FF;
constexpr Color kButtonFace = 0x00E0E0E0;

constexpr int redOf(Color c) { return static_cast<int>(c & 0xFF); }
constexpr int greenOf(Color c) { return static_cast<int>((c >> 8) & 0xFF); }
constexpr int blueOf(Color c) { return static_cast<int>((c >> 16) & 0xFF); }

}  // namespace lw
