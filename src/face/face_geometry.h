#pragma once
// Where a form's controls stand on its face in whole device pixels, at a scale of device pixels per
// twip, and the order they are drawn in.

#include <vector>

#include "face/geometry.h"
#include "face/text_measure.h"
#include "model/form.h"

namespace lw::face {

// Twips to a pixel on a 96 dpi screen.
constexpr double kTwipsPerPixel = 15.0;
constexpr double kScreenScale = 1.0 / kTwipsPerPixel;

struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size& other) const { return width == other.width && height == other.height; }
};

// Whole device pixels of a length or position in twips.
int toPixels(int twips, double scale);
Rect controlRect(const Control& control, double scale);
// Everything a control's painting may touch: its rectangle (a line's two ends) and the width of its
// border and strokes, and the "$" its box prints beside it.
Rect paintedExtent(const Control& control, double scale);
Size formSize(const Form& form, double scale);
// Where the box prints the "$" of an amount whose text carries none: in the room left of the field.
Rect boxDollarSignRect(const Control& field, double scale);

// The kinds a form view hosts as real editors instead of painting them.
bool hasEditor(ControlKind kind);
// Controls in the order they are drawn: containers first, then the light controls, then the boxes.
std::vector<const Control*> paintOrder(const Form& form);

// The height of a tab control's strip of captions, and the height of a row of a grid or list.
int tabStripHeight(const Control& control, double scale);
int rowHeight(const Control& control, double scale, TextMeasure& measure);
// The entry of a tab control, grid or list under a point of the form, or -1.
int entryAt(const Control& control, Point point, double scale, TextMeasure& measure);

}  // namespace lw::face
