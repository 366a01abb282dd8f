#pragma once
// Text laid out once, in twips, with the measures of the face's own design: the same lines, the same
// breaks and the same widths at any scale. Only the drawing knows the resolution.

#include <string>
#include <vector>

#include "face/face_drawing.h"
#include "face/face_metrics.h"
#include "model/control.h"

namespace lw::face {

// Where a text stands in its area: one of the three across, with one of the three down.
enum TextAlign : unsigned {
    kAlignLeft = 0x1,
    kAlignRight = 0x2,
    kAlignHCenter = 0x4,
    kAlignTop = 0x20,
    kAlignBottom = 0x40,
    kAlignVCenter = 0x80,
    kAlignCenter = kAlignHCenter | kAlignVCenter,
};

enum class TextFlow {
    OneLine,          // line breaks read as blanks; a long text runs past its area
    Words,            // broken between words; a word longer than the area runs past it
    WordsOrAnywhere,  // broken between words, and inside a word too long for a line
};

struct TextLine {
    std::string text;     // in the code page
    double x = 0;         // twips from the block's origin
    double baseline = 0;  // twips from the block's origin
    double width = 0;     // the advance of its characters
};

struct TextBlock {
    TextFace face;
    double points = 0;  // its size, which a text that shrinks to fit makes smaller than designed
    Point origin;       // twips of the form the positions start from: the top-left of the control
    ExactRect area;     // twips from the origin: where the text is meant to stay
    ExactRect clip;     // twips from the origin: what may show of it, the control's own rectangle
    double ascent = 0;
    double height = 0;      // of one line: its ascent and descent
    double lineHeight = 0;  // from one baseline to the next
    double lineWidth = 0;   // how long a line may grow before it breaks, in twips
    std::vector<TextLine> lines;

    // Where the lines' characters stand, twips from the origin; nothing when there are no lines.
    ExactRect extent() const;
    // The text stands wholly inside its area.
    bool fits() const;
};

// The size a face is measured in, in twips (one pixel each): a point is twenty, in whole pixels.
double designPixels(double points);

// A face at a size in points.
struct FaceSize {
    TextFace face;
    double points = 0;
};

// Lays a text (code page, "\n" between lines) out in an area as `flow` breaks it, placed by
// `alignment`. The lines break at the area's width unless given a width of their own.
TextBlock layoutText(const FaceMetrics& metrics, const std::string& text, const FaceSize& face,
                     const ExactRect& area, unsigned alignment, TextFlow flow, Point origin = {},
                     double lineWidth = -1);

// A text that takes a smaller size of its face, down to the control's floor, to stand on one line; when
// it still does not, it breaks into two lines as even as its words allow, in the largest size that holds
// them. Sizes go down by half a point.
TextBlock layoutShrinking(const FaceMetrics& metrics, const std::string& text, const Control& control,
                          const ExactRect& area, unsigned alignment, Point origin);

// The advance of a text on one line, in twips, and the height of a line of the face.
double advanceOf(const FaceMetrics& metrics, const FaceSize& face, const std::string& text);
double lineHeightOf(const FaceMetrics& metrics, const FaceSize& face);

}  // namespace lw::face
