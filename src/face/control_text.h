#pragma once
// What each kind of control writes and where, laid out in twips from the control's corner: the same at
// every resolution, so that a text that fits on the screen fits on paper.

#include <vector>

#include "face/text_layout.h"
#include "face/text_measure.h"
#include "model/control.h"

namespace lw::face {

// Twips of the fixed margins, a pixel of the screen being fifteen.
constexpr int kPixelTwips = 15;

// The area a text box writes in, twips from its corner: inside its border, with the small margins of
// an edit control.
RectF fieldArea(const Control& box);
// A text box's text: one line in the middle of its height, or lines from the top in a multi-line box
// and in a box whose text shrinks and breaks to show whole.
TextBlock fieldLayout(const Control& box, TextMeasure& measure);
// A text box whose lines an editor of several lines must show.
bool breaksLines(const Control& box);
// A label's caption, word-wrapped from the top; a text whose lines all open with a blank is drawn as an
// indent, so the lines it wraps stay flush with the first.
TextBlock captionLayout(const Control& label, TextMeasure& measure);
// The captions of the other kinds, at their places in the control.
TextBlock checkLayout(const Control& check, TextMeasure& measure);
TextBlock frameCaptionLayout(const Control& frame, TextMeasure& measure);
TextBlock buttonLayout(const Control& button, TextMeasure& measure);
TextBlock optionLayout(const Control& option, TextMeasure& measure);
TextBlock comboLayout(const Control& combo, TextMeasure& measure);
// The width of a combo box's drop-down button, in twips.
int comboArrowTwips(const Control& combo);
// One block per tab of a tab control.
std::vector<TextBlock> tabLayouts(const Control& tabs, TextMeasure& measure);
// The height of a tab control's strip, in twips (0 for a tab control with no tabs).
int tabStripTwips(const Control& tabs);
// The twips from one row of a grid or list to the next.
double rowTwips(const Control& rows, TextMeasure& measure);

}  // namespace lw::face
