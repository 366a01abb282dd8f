#pragma once
// Text laid out once, in twips, with the unhinted measures of the face's own design: the same lines, the
// same breaks and the same widths on the screen at any zoom, on the clipboard and on paper. Only the
// drawing knows the resolution; it scales the laid-out text with the painter.

#include <QFont>
#include <QPoint>
#include <QRectF>
#include <QString>
#include <string>
#include <vector>

#include "model/control.h"

class QPainter;

namespace lw::ui {

// The face of a text at the size it is measured in: one of its pixels is one twip.
QFont designFont(const std::string& name, double points, bool bold, bool italic);
QFont designFont(const Control& control);
// How tall a line of the face is, in twips: its ascent and descent.
double lineHeightOf(const QFont& designFont);
// The advance of a text on one line, in twips.
double advanceOf(const QFont& designFont, const QString& text);

enum class TextFlow {
    OneLine,          // line breaks read as blanks; a long text runs past its area
    Words,            // broken between words; a word longer than the area runs past it
    WordsOrAnywhere,  // broken between words, and inside a word too long for a line
};

struct TextLine {
    QString text;
    double x = 0;         // twips from the block's origin
    double baseline = 0;  // twips from the block's origin
    double width = 0;     // the advance of its characters
};

// A laid-out text: what a front end needs to draw it at any resolution.
struct TextBlock {
    QFont font;         // the design face
    double points = 0;  // its size, which a text that shrinks to fit makes smaller than designed
    QPoint origin;      // twips of the form the positions start from: the top-left of the control
    QRectF area;        // twips from the origin: where the text is meant to stay
    QRectF clip;        // twips from the origin: what may show of it, the control's own rectangle
    double ascent = 0;
    double height = 0;      // of one line: its ascent and descent
    double lineHeight = 0;  // from one baseline to the next
    double lineWidth = 0;   // how long a line may grow before it breaks, in twips
    std::vector<TextLine> lines;

    // Where the lines' characters stand, twips from the origin.
    QRectF extent() const;
    // The text stands wholly inside its area.
    bool fits() const;
};

// Lays a text out in an area (twips from the origin) as `flow` breaks it, placed by `alignment`.
// The lines break at the area's width unless given a width of their own; the block is clipped to the
// area unless given a clip of its own.
TextBlock layoutText(const QString& text, const QFont& designFont, const QRectF& area,
                     Qt::Alignment alignment, TextFlow flow, QPoint origin = QPoint(), double lineWidth = -1);

// A text that takes a smaller size of its face, down to the control's floor, to stand on one line; when
// it still does not, it breaks into two lines as even as its words allow, in the largest size that holds
// them. Sizes go down by half a point.
TextBlock layoutShrinking(const QString& text, const Control& control, const QRectF& area,
                          Qt::Alignment alignment, QPoint origin);

// Draws the lines at a scale of device pixels per twip, clipped to the control's rectangle.
void drawText(QPainter& painter, const TextBlock& block, double scale);

}  // namespace lw::ui
