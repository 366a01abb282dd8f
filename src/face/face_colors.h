#pragma once
// The colours of the parts of controls that the model gives no colour of their own: borders of boxes,
// faces and bevels of buttons, greyed text, the chosen row of a list.

#include "model/color.h"

namespace lw::face {

constexpr Color kBoxBorder = 0x007A7A7A;
constexpr Color kButtonFaceColor = 0x00F0F0F0;
constexpr Color kLight = 0x00FFFFFF;
constexpr Color kShadow = 0x00A0A0A0;
constexpr Color kDark = 0x00696969;
constexpr Color kGreyText = 0x006D6D6D;
constexpr Color kChosenRow = 0x00FF9933;  // blue

}  // namespace lw::face
