#pragma once
// One "$" for each amount: the text of most amounts carries its own, and the box of an amount whose
// text carries none prints one beside it.

#include "model/control.h"

namespace lw {

// A text box whose amount is written without a "$" (SMONEY, told by the exact Tag as its edit tells it):
// its box prints the sign, just left of the field. Every other amount's mask writes the sign itself.
bool takesBoxDollarSign(const Control& field);

// The room a box keeps for its "$" left of the field, in twips.
constexpr int kBoxDollarSignRoom = 150;

}  // namespace lw
