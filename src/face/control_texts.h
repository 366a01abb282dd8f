#pragma once
// What each kind of control writes and where, laid out in twips from the control's corner: the same at
// every resolution, so that a text that fits on the screen fits on paper.

#include <string>
#include <vector>

#include "face/text_blocks.h"
#include "model/control.h"

namespace lw::face {

// Twips of the fixed margins, a pixel of the screen being fifteen.
constexpr int kPixelTwips = 15;

// The program's text with every CR LF, or lone CR, as one line feed.
std::string withLineFeeds(const std::string& text);
// The caption of a button with its access key marker taken out: "&Save" shows "Save", "&&" an "&".
std::string withoutAccessMarks(const std::string& caption);

FaceSize faceOf(const Control& control);

// A text box's text: one line in the middle of its height, or lines from the top in a multi-line box
// and in a box whose text shrinks and breaks to show whole.
TextBlock fieldLayout(const FaceMetrics& metrics, const Control& box);
// A label's caption, word-wrapped from the top; a text whose lines all open with a blank is drawn as an
// indent, so the lines it wraps stay flush with the first.
TextBlock captionLayout(const FaceMetrics& metrics, const Control& label);
// The captions of the other kinds, at their places in the control.
TextBlock checkLayout(const FaceMetrics& metrics, const Control& check);
TextBlock frameCaptionLayout(const FaceMetrics& metrics, const Control& frame);
TextBlock buttonLayout(const FaceMetrics& metrics, const Control& button);
TextBlock optionLayout(const FaceMetrics& metrics, const Control& option);
TextBlock comboLayout(const FaceMetrics& metrics, const Control& combo);
// The width of a combo box's drop-down button, in twips.
int comboArrowTwips(const Control& combo);
// One block per tab of a tab control.
std::vector<TextBlock> tabLayouts(const FaceMetrics& metrics, const Control& tabs);
// The height of a tab control's strip, in twips (0 for a tab control with no tabs).
int tabStripTwips(const Control& tabs);
// The twips from one row of a grid or list to the next.
double rowTwips(const FaceMetrics& metrics, const Control& rows);

}  // namespace lw::face
