#include "face/text_blocks.h"

#include <algorithm>
#include <cctype>
#include <cmath>

namespace lw::face {

namespace {

// Rounding of the face's measures stays far below this; a line that reaches past its area by less still
// shows whole at every resolution.
constexpr double kSlack = 0.5;
constexpr double kPointStep = 0.5;

double pixelsOf(const FaceSize& face) { return designPixels(face.points); }

std::string withoutTrailingBlanks(std::string text) {
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text;
}

// The places a line may break after: the blanks that end a word, and a hyphen inside a word (not one
// before a figure, which is a minus sign).
std::vector<std::size_t> wordEnds(const std::string& line) {
    std::vector<std::size_t> ends;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool lastBlank = line[i] == ' ' && (i + 1 == line.size() || line[i + 1] != ' ');
        const bool hyphen = line[i] == '-' && i > 0 && line[i - 1] != ' ' && i + 1 < line.size() &&
                            !std::isdigit(static_cast<unsigned char>(line[i + 1])) && line[i + 1] != ' ';
        if (lastBlank || hyphen) ends.push_back(i + 1);
    }
    if (ends.empty() || ends.back() != line.size()) ends.push_back(line.size());
    return ends;
}

// Breaks one line of the text (no line feeds in it) into lines no wider than the block's line width,
// where the flow allows.
void breakParagraph(const FaceMetrics& metrics, const FaceSize& face, const std::string& paragraph,
                    TextFlow flow, TextBlock& block) {
    const auto width = [&](std::size_t from, std::size_t to) {
        return advanceOf(metrics, face, withoutTrailingBlanks(paragraph.substr(from, to - from)));
    };
    const auto push = [&](std::size_t from, std::size_t to) {
        const std::string part = withoutTrailingBlanks(paragraph.substr(from, to - from));
        block.lines.push_back({part, 0, 0, advanceOf(metrics, face, part)});
    };
    const double room = std::max(0.0, block.lineWidth);
    const std::vector<std::size_t> ends = wordEnds(paragraph);
    std::size_t start = 0;
    std::size_t next = 0;  // the first word end not yet on a line
    if (paragraph.empty()) {
        push(0, 0);
        return;
    }
    while (start < paragraph.size()) {
        std::size_t end = start;
        while (next < ends.size() && width(start, ends[next]) <= room) end = ends[next++];
        if (end == start) {
            // The next word alone is wider than the line: whole on a line of its own, or cut where the
            // line ends when words may break anywhere.
            const std::size_t wordEnd = ends[next];
            if (flow == TextFlow::WordsOrAnywhere) {
                end = start + 1;
                while (end < wordEnd && width(start, end + 1) <= room) ++end;
                if (end == wordEnd) ++next;
            } else {
                end = wordEnd;
                ++next;
            }
        }
        push(start, end);
        start = end;
    }
}

void placeLines(TextBlock& block, unsigned alignment) {
    if (block.lines.empty()) return;
    const ExactRect& area = block.area;
    const double height = block.height + static_cast<double>(block.lines.size() - 1) * block.lineHeight;
    double top = area.y;
    if (alignment & kAlignVCenter) top = area.y + (area.height - height) / 2;
    if (alignment & kAlignBottom) top = area.y + area.height - height;
    for (std::size_t i = 0; i < block.lines.size(); ++i) {
        TextLine& line = block.lines[i];
        line.x = area.x;
        if (alignment & kAlignRight) line.x = area.x + area.width - line.width;
        if (alignment & kAlignHCenter) line.x = area.x + (area.width - line.width) / 2;
        line.baseline = top + block.ascent + static_cast<double>(i) * block.lineHeight;
    }
}

}  // namespace

double designPixels(double points) { return std::max(1.0, std::round(points * 20.0)); }

double advanceOf(const FaceMetrics& metrics, const FaceSize& face, const std::string& text) {
    return metrics.advance(face.face, pixelsOf(face), text);
}

double lineHeightOf(const FaceMetrics& metrics, const FaceSize& face) {
    return metrics.ascent(face.face, pixelsOf(face)) + metrics.descent(face.face, pixelsOf(face));
}

ExactRect TextBlock::extent() const {
    if (lines.empty()) return {};
    double left = lines.front().x, right = left + lines.front().width;
    double top = lines.front().baseline - ascent, bottom = top + height;
    for (const TextLine& line : lines) {
        left = std::min(left, line.x);
        right = std::max(right, line.x + line.width);
        top = std::min(top, line.baseline - ascent);
        bottom = std::max(bottom, line.baseline - ascent + height);
    }
    return {left, top, right - left, bottom - top};
}

bool TextBlock::fits() const {
    if (lines.empty()) return true;
    const ExactRect taken = extent();
    return taken.x >= area.x - kSlack && taken.x + taken.width <= area.x + area.width + kSlack &&
           taken.y >= area.y - kSlack && taken.y + taken.height <= area.y + area.height + kSlack;
}

TextBlock layoutText(const FaceMetrics& metrics, const std::string& text, const FaceSize& face,
                     const ExactRect& area, unsigned alignment, TextFlow flow, Point origin,
                     double lineWidth) {
    TextBlock block;
    block.lineWidth = lineWidth < 0 ? area.width : lineWidth;
    block.face = face.face;
    block.points = pixelsOf(face) / 20.0;
    block.origin = origin;
    block.area = area;
    block.clip = area;
    if (text.empty()) return block;
    const double pixels = pixelsOf(face);
    block.ascent = metrics.ascent(face.face, pixels);
    block.height = block.ascent + metrics.descent(face.face, pixels);
    block.lineHeight = block.height + metrics.leading(face.face, pixels);

    if (flow == TextFlow::OneLine) {
        // One line needs no breaking: its advance is its width.
        std::string shown = text;
        std::replace(shown.begin(), shown.end(), '\n', ' ');
        shown = withoutTrailingBlanks(shown);
        if (!shown.empty()) block.lines.push_back({shown, 0, 0, advanceOf(metrics, face, shown)});
    } else {
        std::size_t from = 0;
        while (true) {
            const std::size_t feed = text.find('\n', from);
            breakParagraph(metrics, face, text.substr(from, feed - from), flow, block);
            if (feed == std::string::npos) break;
            from = feed + 1;
        }
    }
    placeLines(block, alignment);
    return block;
}

namespace {

// The width that breaks a text between its words into two lines at most, as evenly as its words allow:
// the longer line of the two is as short as it can be. The width returned lies midway in the range of
// widths that make those same lines, so that a slightly different measure of the text breaks it alike.
double evenTwoLineWidth(const FaceMetrics& metrics, const std::string& text, const FaceSize& face,
                        double widest) {
    const auto laidAt = [&](double width) {
        return layoutText(metrics, text, face, {0, 0, width, 1e9}, kAlignLeft, TextFlow::Words, {}, width);
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

TextBlock layoutShrinking(const FaceMetrics& metrics, const std::string& text, const Control& control,
                          const ExactRect& area, unsigned alignment, Point origin) {
    const auto face = [&](double points) {
        return FaceSize{{control.fontName, control.fontBold, control.fontItalic}, points};
    };
    const double floor = std::min(control.fontSize, control.fitFloor);
    // One line, in a smaller size of the face down to the floor.
    for (double points = control.fontSize; points >= floor - 1e-9; points -= kPointStep) {
        TextBlock block = layoutText(metrics, text, face(points), area, alignment, TextFlow::OneLine, origin);
        if (block.lines.empty() || block.extent().width <= area.width + kSlack) return block;
    }
    // Two lines broken between words as evenly as they go, in the largest size that holds them.
    for (double points = control.fontSize; points >= floor - 1e-9; points -= kPointStep) {
        const double width = evenTwoLineWidth(metrics, text, face(points), area.width);
        TextBlock block =
            layoutText(metrics, text, face(points), area, alignment, TextFlow::Words, origin, width);
        if (block.lines.size() <= 2 && block.fits()) return block;
    }
    return layoutText(metrics, text, face(floor), area, alignment, TextFlow::WordsOrAnywhere, origin);
}

}  // namespace lw::face
