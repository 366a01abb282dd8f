#pragma once
// A typed field's look: its alignment, tip and fixed colours once when the form is set up, and its
// focus colour and selection each time it takes the focus. The field's Tag alone decides.

#include "model/control.h"

namespace lw {

// bSetUp true: the one-time set-up of resetFormLook; false: the field has just taken the focus.
void setUpControl(Control& ctl, bool bSetUp);
void setUpAlignment(Control& ctl);
void setUpBackColor(Control& ctl);

// Hands the focus back to the field named by LastFieldKey after the taxpayer fill.
void refocusAfterTaxpayerFill();

// The colour of a failed field of each type: the legend's colour of that index.
Color legendColor(int index);

constexpr Color kOutOfScopeColor = 0x00E0E0E0;
constexpr const char* kMoneyTip = "Money: Dollar sign/commas optional";

}  // namespace lw
