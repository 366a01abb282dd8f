#include "face/text_layout.h"

#include <algorithm>
#include <cmath>

#include "face/line_filling.h"
#include "face/measure_memo.h"

namespace lw::face {

namespace {

// Rounding of the face's measures stays far below this; a line that reaches past its area by less still
// shows whole at every resolution.
constexpr double kSlack = 0.5;
constexpr double kPointStep = 0.5;

// Places the lines in the area: across by the alignment, and down from the top or in the middle.
void placeLines(TextBlock& block, Alignment alignment) {
    if (block.lines.empty()) return;
    const RectF& area = block.area;
    const double height = block.height + static_cast<double>(block.lines.size() - 1) * block.lineHeight;
    double top = area.top();
    if (alignment & kAlignVCenter) top = area.top() + (area.height - height) / 2;
    if (alignment & kAlignBottom) top = area.bottom() - height;
    for (std::size_t i = 0; i < block.lines.size(); ++i) {
        TextLine& line = block.lines[i];
        line.x = area.left();
        if (alignment & kAlignRight) line.x = area.right() - line.width;
        if (alignment & kAlignHCenter) line.x = area.left() + (area.width - line.width) / 2;
        line.baseline = top + block.ascent + static_cast<double>(i) * block.lineHeight;
    }
}

// The text on one line: its line feeds read as blanks, and no blank at its end.
std::string oneLine(std::string text) {
    std::replace(text.begin(), text.end(), '\n', ' ');
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text;
}

}  // namespace

RectF TextBlock::extent() const {
    RectF all;
    for (const TextLine& line : lines) {
        const RectF taken{line.x, line.baseline - ascent, line.width, height};
        all = all.isNull() ? taken : all.united(taken);
    }
    return all;
}

bool TextBlock::fits() const {
    if (lines.empty()) return true;
    const RectF taken = extent();
    return taken.left() >= area.left() - kSlack && taken.right() <= area.right() + kSlack &&
           taken.top() >= area.top() - kSlack && taken.bottom() <= area.bottom() + kSlack;
}

TextBlock layoutText(const std::string& text, const TextFace& face, const RectF& area, Alignment alignment,
                     TextFlow flow, TextMeasure& measure, Point origin, double lineWidth) {
    TextBlock block;
    block.lineWidth = lineWidth < 0 ? area.width : lineWidth;
    block.face = face;
    block.points = face.size / 20.0;
    block.origin = origin;
    block.area = area;
    block.clip = area;
    if (text.empty()) return block;
    const FaceMetrics metrics = measure.metrics(face);
    block.ascent = metrics.ascent;
    block.height = metrics.height();
    block.lineHeight = metrics.lineSpacing;
    if (flow == TextFlow::OneLine) {
        // One line needs no breaking: its advance is its width.
        std::string shown = oneLine(text);
        if (!shown.empty()) {
            const double width = measure.advance(face, shown);
            block.lines.push_back({std::move(shown), 0, 0, width});
        }
    } else {
        block.lines =
            fillLines(text, face, std::max(0.0, block.lineWidth), flow == TextFlow::WordsOrAnywhere, measure);
    }
    placeLines(block, alignment);
    return block;
}

namespace {

// Lines that break a text between its words into two lines at most, as evenly as its words allow: the
// longer line of the two is as short as it can be. The width returned lies midway in the range of widths
// that make those same lines, so that a slightly different measure of the text breaks it alike.
double evenTwoLineWidth(const std::string& text, const TextFace& face, double widest, TextMeasure& measure) {
    const auto laidAt = [&](double width) {
        return layoutText(text, face, RectF{0, 0, width, 1e9}, kAlignLeft, TextFlow::Words, measure, Point{},
                          width);
    };
    const auto search = [](double yes, double no, const auto& holds) {
        while (std::abs(yes - no) > kSlack) {
            const double middle = (yes + no) / 2;
            (holds(middle) ? yes : no) = middle;
        }
        return yes;
    };
    if (laidAt(widest).lines.size() > 2) return widest;
    const double narrowest = search(widest, 0.0, [&](double w) { return laidAt(w).lines.size() <= 2; });
    const std::string first = laidAt(narrowest).lines.front().text;
    const bool sameAtWidest = laidAt(widest).lines.front().text == first;
    const double broadest = sameAtWidest ? widest : search(narrowest, widest, [&](double w) {
        return laidAt(w).lines.front().text == first;
    });
    return (narrowest + broadest) / 2;
}

}  // namespace

TextBlock layoutShrinking(const std::string& text, const Control& control, const RectF& area,
                          Alignment alignment, Point origin, TextMeasure& frontEnd) {
    // The text is laid out many times over, in several sizes and widths: its words are measured once.
    MeasureMemo measure(frontEnd);
    const auto face = [&](double points) {
        return designFace(control.fontName, points, control.fontBold, control.fontItalic);
    };
    const double floor = std::min(control.fontSize, control.fitFloor);
    // One line, in a smaller size of the face down to the floor.
    for (double points = control.fontSize; points >= floor - 1e-9; points -= kPointStep) {
        TextBlock block = layoutText(text, face(points), area, alignment, TextFlow::OneLine, measure, origin);
        if (block.lines.empty() || block.extent().width <= area.width + kSlack) return block;
    }
    // Two lines broken between words as evenly as they go, in the largest size that holds them.
    for (double points = control.fontSize; points >= floor - 1e-9; points -= kPointStep) {
        const TextFace sized = face(points);
        const double width = evenTwoLineWidth(text, sized, area.width, measure);
        TextBlock block = layoutText(text, sized, area, alignment, TextFlow::Words, measure, origin, width);
        if (block.lines.size() <= 2 && block.fits()) return block;
    }
    return layoutText(text, face(floor), area, alignment, TextFlow::WordsOrAnywhere, measure, origin);
}

}  // namespace lw::face
