#pragma once
// Text laid out once, in twips, with the measures of the face's own design: the same lines, the same
// breaks and the same widths on the screen at any zoom, on the clipboard and on paper. Only the drawing
// knows the resolution; it scales the laid-out text.

#include <string>
#include <vector>

#include "face/geometry.h"
#include "face/text_measure.h"

namespace lw::face {

// Where a text stands in its area: one of each direction, combined with |.
enum Alignment : unsigned {
    kAlignLeft = 0x1,
    kAlignRight = 0x2,
    kAlignHCenter = 0x4,
    kAlignTop = 0x20,
    kAlignBottom = 0x40,
    kAlignVCenter = 0x80,
    kAlignCenter = kAlignHCenter | kAlignVCenter,
};
inline Alignment operator|(Alignment a, Alignment b) {
    return static_cast<Alignment>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}

enum class TextFlow {
    OneLine,          // line breaks read as blanks; a long text runs past its area
    Words,            // broken between words; a word longer than the area runs past it
    WordsOrAnywhere,  // broken between words, and inside a word too long for a line
};

struct TextLine {
    std::string text;     // Windows-1252
    double x = 0;         // twips from the block's origin
    double baseline = 0;  // twips from the block's origin
    double width = 0;     // the advance of its characters and the ink of its last one
};

// A laid-out text: what a front end needs to draw it at any resolution.
struct TextBlock {
    TextFace face;      // the design face, its size in twips
    double points = 0;  // its size, which a text that shrinks to fit makes smaller than designed
    Point origin;       // twips of the form the positions start from: the top-left of the control
    RectF area;         // twips from the origin: where the text is meant to stay
    RectF clip;         // twips from the origin: what may show of it, the control's own rectangle
    double ascent = 0;
    double height = 0;      // of one line: its ascent and descent
    double lineHeight = 0;  // from one baseline to the next
    double lineWidth = 0;   // how long a line may grow before it breaks, in twips
    std::vector<TextLine> lines;

    // Where the lines' characters stand, twips from the origin.
    RectF extent() const;
    // The text stands wholly inside its area.
    bool fits() const;
};

// Lays a Windows-1252 text (lines ended by line feeds) out in an area (twips from the origin) as `flow`
// breaks it, placed by `alignment`. The lines break at the area's width unless given a width of their
// own; the block is clipped to the area unless given a clip of its own.
TextBlock layoutText(const std::string& text, const TextFace& face, const RectF& area, Alignment alignment,
                     TextFlow flow, TextMeasure& measure, Point origin = {}, double lineWidth = -1);

// A text that takes a smaller size of its face, down to the control's floor, to stand on one line; when
// it still does not, it breaks into two lines as even as its words allow, in the largest size that holds
// them. Sizes go down by half a point.
TextBlock layoutShrinking(const std::string& text, const Control& control, const RectF& area,
                          Alignment alignment, Point origin, TextMeasure& measure);

}  // namespace lw::face
