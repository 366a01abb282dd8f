#pragma once
// A typed field's look: its alignment, tip and fixed colours once when the form is set up, and its
// focus colour and selection each time it takes the focus. The field's Tag alone decides.

#include "model/control.h"

namespace lw {

// bSetUp true: the one-time set-up of Form_Init_Reset; false: the field has just taken the focus.
void Control_Setup(Control& ctl, bool bSetUp);
void Control_SetupAlignment(Control& ctl);
void Control_SetupBackColor(Control& ctl);

// Hands the focus back to the field named by LastFieldKey after the taxpayer fill.
void TPInfo_Focus_After();

// The colour of a failed field of each type: the legend's colour of that index.
Color legendColor(int index);

constexpr Color kOutOfScopeColor = 0x00E0E0E0;
constexpr const char* kMoneyTip = "Money: Dollar sign/commas optional";

}  // namespace lw
