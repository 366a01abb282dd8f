#pragma once
// How a code gets into a coded box of a K-1: the list of the box's valid codes, the code put in the field,
// the focus moved on to its amount, and the amount's money check switched off for codes that take words.

#include "model/form.h"

namespace lw {

// Called from a K-1 code field (Text2 or Text4) whose Tag reads "K1HELP·<section>": shows the section's
// list and, on a choice, writes the code into the field and moves on to the row's amount (Text3 or Text5
// of the same Index). Cancel leaves the field, the amount and its Tag as they were.
void openK1CodeList(Form& form, Control& field);

// Keeps the design Text of Text2 and Text4 and the design Tag of Text3 and Text5 of a K-1 form as it
// loads; Clear restores them and a new choice of code takes back an earlier override from them.
void keepK1DesignValues(Form& form);
// Puts back the kept design values: the box numbers of the code fields and the amounts' money checks,
// so that no code or override chosen from the list outlives Clear.
void restoreK1DesignValues(Form& form);

}  // namespace lw
