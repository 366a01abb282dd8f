#pragma once
// The stored block of a person cut into the parts that the forms fill.

#include "model/tp_info_rec.h"

namespace lw {

// Cuts the stored block (lines joined by "»") of rec.NameAddr into its lines, in place: a block gives
// every part anew, an empty one leaves every other field as it was.
void parseNameAddress(TPInfoRec& rec);

}  // namespace lw
