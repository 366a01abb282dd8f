#include "face/control_faces.h"

#include <algorithm>
#include <cmath>

#include "face/control_texts.h"
#include "face/form_face.h"
#include "fields/box_dollar_sign.h"
#include "model/containers.h"

namespace lw::face {

namespace {

constexpr Color rgb(int r, int g, int b) { return Color(r) | Color(g) << 8 | Color(b) << 16; }

constexpr Color kBoxBorder = rgb(0x7A, 0x7A, 0x7A);
constexpr Color kFace = rgb(0xF0, 0xF0, 0xF0);
constexpr Color kLight = rgb(0xFF, 0xFF, 0xFF);
constexpr Color kShadow = rgb(0xA0, 0xA0, 0xA0);
constexpr Color kDark = rgb(0x69, 0x69, 0x69);
constexpr Color kGreyText = rgb(0x6D, 0x6D, 0x6D);
constexpr Color kChosenRow = rgb(0x33, 0x99, 0xFF);

ExactRect exact(const PixelRect& r) { return {double(r.x), double(r.y), double(r.width), double(r.height)}; }

ExactRect intersection(const ExactRect& a, const ExactRect& b) {
    const double left = std::max(a.x, b.x), top = std::max(a.y, b.y);
    const double right = std::min(a.x + a.width, b.x + b.width),
                 bottom = std::min(a.y + a.height, b.y + b.height);
    return {left, top, std::max(0.0, right - left), std::max(0.0, bottom - top)};
}

// The middle pixel of a rectangle, rounded up and to the left.
Point middleOf(const PixelRect& r) {
    return {double((2 * r.x + r.width - 1) / 2), double((2 * r.y + r.height - 1) / 2)};
}

// A grid's ColAlignment across the cell, the header row's included.
unsigned columnAlignment(const Control& c, int col) {
    if (c.kind != ControlKind::Grid || static_cast<size_t>(col) >= c.colAlignments.size()) return kAlignLeft;
    switch (c.colAlignments[static_cast<size_t>(col)]) {
        case kGridAlignRightCenter:
            return kAlignRight;
        case kGridAlignCenterCenter:
            return kAlignHCenter;
        default:
            return kAlignLeft;
    }
}

std::vector<std::string> cellsOf(const std::string& row) {
    std::vector<std::string> cells;
    std::size_t from = 0;
    while (true) {
        const std::size_t tab = row.find('\t', from);
        cells.push_back(row.substr(from, tab - from));
        if (tab == std::string::npos) return cells;
        from = tab + 1;
    }
}

}  // namespace

void ControlFaces::control(const Control& c) {
    const PixelRect r = controlRect(c, scale_);
    switch (c.kind) {
        case ControlKind::Label:
            return label(c, r);
        case ControlKind::CheckLabel:
            return checkLabel(c, r);
        case ControlKind::Shape:
            return shape(c, r);
        case ControlKind::Line:
            return line(c);
        case ControlKind::Frame:
            return frame(c, r);
        case ControlKind::TextBox:
            return textBox(c, r);
        case ControlKind::CommandButton:
            return button(c, r);
        case ControlKind::OptionButton:
            return option(c, r);
        case ControlKind::ComboBox:
            return combo(c, r);
        case ControlKind::Picture:
        case ControlKind::Image:
            return picture(c, r);
        case ControlKind::TabControl:
            return tabs(c, r);
        case ControlKind::Grid:
        case ControlKind::ListBox:
            return rows(c, r);
    }
}

void ControlFaces::boxDollarSign(const Control& field) {
    const PixelRect r = controlRect(field, scale_);
    const int left = toPixels(formLeft(field) - kBoxDollarSignRoom, scale_);
    // Set off from the field by the width of its border, in the face's size at whole pixels.
    const PixelRect room{left, r.y, r.x - left - px(2), r.height};
    const TextFace face{"Tahoma", false, false};
    const double pixels = std::max(1.0, std::floor(8 * 20.0 * scale_ + 1e-6));
    const double ascent = metrics_.ascent(face, pixels);
    const double height = ascent + metrics_.descent(face, pixels);
    const Point baseline{room.right() - metrics_.advance(face, pixels, "$"),
                         room.y + (room.height - height) / 2 + ascent};
    add(TextRun{"$", face, pixels, baseline, kBlack});
}

void ControlFaces::label(const Control& c, const PixelRect& r) {
    // A label is its caption and, when opaque, its back colour; boxes around text are shapes of their own.
    if (c.opaque) fill(r, c.backColor);
    text(captionLayout(metrics_, c), c.enabled ? c.foreColor : kGreyText);
}

void ControlFaces::checkLabel(const Control& c, const PixelRect& r) {
    if (c.opaque) fill(r, c.backColor);
    strokeInside(r, px(1), c.borderColor);
    text(checkLayout(metrics_, c), c.foreColor);
}

void ControlFaces::shape(const Control& c, const PixelRect& r) {
    if (c.opaque) fill(r, c.backColor);
    if (c.borderStyle != 0) strokeInside(r, px(std::max(1, c.borderWidth)), c.borderColor, lineStyleOf(c));
}

void ControlFaces::line(const Control& c) {
    if (c.borderStyle == 0) return;
    const Point from{double(toPixels(formLeft(c), scale_)), double(toPixels(formTop(c), scale_))};
    const Point to{double(toPixels(c.x2 + originLeft(c), scale_)),
                   double(toPixels(c.y2 + originTop(c), scale_))};
    add(Stroke{from, to, px(std::max(1, c.borderWidth)), lineStyleOf(c), c.borderColor});
}

void ControlFaces::frame(const Control& c, const PixelRect& r) {
    fill(r, c.backColor);
    if (c.borderStyle == 0) return;
    const TextBlock caption = frameCaptionLayout(metrics_, c);
    const int top = caption.lines.empty() ? 0 : toPixels(static_cast<int>(caption.area.height / 2), scale_);
    const PixelRect box = r.adjusted(0, top, 0, 0);
    // An etched line: a shadow with a light line beside it.
    strokeInside(box.adjusted(px(1), px(1), 0, 0), px(1), kLight);
    strokeInside(box.adjusted(0, 0, -px(1), -px(1)), px(1), kShadow);
    if (caption.lines.empty()) return;
    const double areaLeft = caption.area.x + caption.origin.x;
    const double areaRight = areaLeft + caption.area.width;
    const int x1 = toPixels(static_cast<int>(areaLeft), scale_);
    const int x2 = toPixels(static_cast<int>(std::ceil(areaRight)), scale_);
    const int y2 = r.y + toPixels(static_cast<int>(std::ceil(caption.area.height)), scale_);
    fill(PixelRect{x1, r.y, x2 - x1 + 1, y2 - r.y + 1}.intersected(r), c.backColor);
    text(caption, c.enabled ? c.foreColor : kGreyText);
}

void ControlFaces::textBox(const Control& c, const PixelRect& r) {
    fill(r, c.backColor);
    if (c.borderStyle != 0) strokeInside(r, px(1), kBoxBorder);
    text(fieldLayout(metrics_, c), c.enabled ? c.foreColor : kGreyText);
}

void ControlFaces::button(const Control& c, const PixelRect& r) {
    fill(r, kFace);
    bevel(r, px(1), kLight, kDark);
    bevel(r.adjusted(px(1), px(1), -px(1), -px(1)), px(1), kFace, kShadow);
    text(buttonLayout(metrics_, c), c.enabled ? c.foreColor : kGreyText);
}

void ControlFaces::option(const Control& c, const PixelRect& r) {
    if (c.opaque) fill(r, c.backColor);
    const int d = px(12);
    const ExactRect circle{double(r.x + px(1)), middleOf(r).y - d / 2, double(d), double(d)};
    add(Ellipse{
        {circle.x + 0.5, circle.y + 0.5, circle.width - 1, circle.height - 1}, kLight, double(px(1)), kDark});
    if (c.value) {
        const double inset = d * 0.3;
        add(Ellipse{
            {circle.x + inset, circle.y + inset, d - 2 * inset, d - 2 * inset}, c.foreColor, 0, kBlack});
    }
    text(optionLayout(metrics_, c), c.enabled ? c.foreColor : kGreyText);
}

void ControlFaces::combo(const Control& c, const PixelRect& r) {
    fill(r, c.backColor);
    strokeInside(r, px(1), kBoxBorder);
    const int arrowWidth = r.right() - toPixels(formLeft(c) + c.width - comboArrowTwips(c), scale_);
    const PixelRect arrow{r.right() - arrowWidth, r.y + px(1), arrowWidth - px(1), r.height - 2 * px(1)};
    fill(arrow, kFace);
    const Point m = middleOf(arrow);
    const int a = std::max(2, px(3));
    add(Polygon{{{m.x - a, m.y - a / 2}, {m.x + a, m.y - a / 2}, {m.x, m.y + a / 2 + 1}}, kBlack});
    text(comboLayout(metrics_, c), c.enabled ? c.foreColor : kGreyText);
}

void ControlFaces::picture(const Control& c, const PixelRect& r) {
    const bool box = c.kind == ControlKind::Picture;
    if (box) fill(r, c.backColor);
    if (!c.picture.empty()) {
        // A picture box shows its picture at the picture's own size; an image is sized to fit.
        const double naturalScale = box || r.empty() ? kTwipsPerPixel * scale_ : 0;
        drawing_.add(Picture{c.picture, r, naturalScale}, exact(r));
    }
    if (box && c.borderStyle != 0) strokeInside(r, px(1), kBoxBorder);
}

void ControlFaces::tabs(const Control& c, const PixelRect& r) {
    const int strip = toPixels(tabStripTwips(c), scale_);
    const PixelRect body = r.adjusted(0, strip, 0, 0);
    fill(body, c.backColor);
    // With its strip taken away (a half printed as a page) the control is a plain ground, unframed.
    if (c.tabHeight <= 0) return;
    strokeInside(body, px(1), kBoxBorder);
    if (strip <= 0) return;
    const std::vector<TextBlock> captions = tabLayouts(metrics_, c);
    const int count = static_cast<int>(c.items.size());
    for (int i = 0; i < count; ++i) {
        const int x0 = r.x + r.width * i / count;
        const int x1 = r.x + r.width * (i + 1) / count;
        const bool current = i == c.listIndex;
        const PixelRect tab{x0, r.y + (current ? 0 : px(2)), x1 - x0, strip - (current ? 0 : px(2))};
        fill(tab, current ? c.backColor : kFace);
        strokeInside(tab.adjusted(0, 0, 0, current ? 0 : -1), px(1), kBoxBorder);
        text(captions[static_cast<size_t>(i)], c.foreColor);
    }
}

void ControlFaces::rows(const Control& c, const PixelRect& r) {
    fill(r, c.backColor);
    clip_ = exact(r);
    const int height = std::max(1, static_cast<int>(std::lround(rowTwips(metrics_, c) * scale_)));
    const bool grid = c.kind == ControlKind::Grid;
    for (size_t row = 0; row < c.items.size(); ++row) {
        const PixelRect line{r.x + 1, r.y + 1 + static_cast<int>(row) * height, r.width - 2, height};
        if (line.y >= r.bottom()) break;
        const bool header = grid && row == 0;
        const bool chosen = static_cast<int>(row) == c.listIndex && !header;
        if (header) fill(line, kFace);
        if (chosen) fill(line, kChosenRow);
        const std::vector<std::string> cells = cellsOf(c.items[row]);
        const bool sized = grid && !c.colWidths.empty();
        const int columns = sized  ? static_cast<int>(c.colWidths.size())
                            : grid ? static_cast<int>(cells.size())
                                   : 1;
        int x0 = line.x;
        for (int col = 0; col < columns; ++col) {
            const int x1 = sized ? x0 + toPixels(c.colWidths[static_cast<size_t>(col)], scale_)
                                 : line.x + line.width * (col + 1) / columns;
            const PixelRect cell{x0, line.y, x1 - x0, height};
            x0 = x1;
            if (grid) strokeInside(cell, px(1), kShadow);
            std::string shown;
            if (!grid) {
                for (std::size_t i = 0; i < cells.size(); ++i) shown += (i ? " " : "") + cells[i];
            } else if (col < static_cast<int>(cells.size())) {
                shown = cells[static_cast<size_t>(col)];
            }
            // Rows are placed in whole pixels of the screen; their text is measured as everywhere else.
            const PixelRect area = cell.adjusted(px(3), 0, -px(2), 0);
            const ExactRect twips{area.x / scale_, area.y / scale_, area.width / scale_,
                                  area.height / scale_};
            text(layoutText(metrics_, shown, faceOf(c), twips, kAlignVCenter | columnAlignment(c, col),
                            TextFlow::OneLine),
                 chosen ? kLight : c.foreColor);
        }
    }
    clip_.reset();
    strokeInside(r, px(1), kBoxBorder);
}

void ControlFaces::add(FaceItem item) { drawing_.add(std::move(item), clip_); }

void ControlFaces::fill(const PixelRect& r, Color colour) {
    if (!r.empty()) add(Fill{r, colour});
}

void ControlFaces::strokeInside(const PixelRect& r, int width, Color colour, LineStyle style) {
    if (r.empty()) return;
    if (style != LineStyle::Solid) return add(Outline{r, width, style, colour});
    fill({r.x, r.y, r.width, width}, colour);
    fill({r.x, r.bottom() - width, r.width, width}, colour);
    fill({r.x, r.y, width, r.height}, colour);
    fill({r.right() - width, r.y, width, r.height}, colour);
}

void ControlFaces::bevel(const PixelRect& r, int width, Color topLeft, Color bottomRight) {
    fill({r.x, r.y, r.width, width}, topLeft);
    fill({r.x, r.y, width, r.height}, topLeft);
    fill({r.x, r.bottom() - width, r.width, width}, bottomRight);
    fill({r.right() - width, r.y, width, r.height}, bottomRight);
}

void ControlFaces::text(const TextBlock& block, Color colour) {
    if (block.lines.empty()) return;
    // The control's corner lands on the whole pixel its box is drawn from, so text and box stay together.
    const double left = toPixels(static_cast<int>(block.origin.x), scale_);
    const double top = toPixels(static_cast<int>(block.origin.y), scale_);
    const ExactRect shown{left + block.clip.x * scale_, top + block.clip.y * scale_,
                          block.clip.width * scale_, block.clip.height * scale_};
    const ExactRect clip = clip_ ? intersection(*clip_, shown) : shown;
    const double pixels = designPixels(block.points) * scale_;
    for (const TextLine& line : block.lines) {
        if (line.text.empty()) continue;
        drawing_.add(TextRun{line.text,
                             block.face,
                             pixels,
                             {left + line.x * scale_, top + line.baseline * scale_},
                             colour},
                     clip);
    }
}

LineStyle ControlFaces::lineStyleOf(const Control& c) const {
    switch (c.borderStyle) {
        case 2:
            return LineStyle::Dash;
        case 3:
            return LineStyle::Dot;
        default:
            return LineStyle::Solid;
    }
}

int ControlFaces::px(int pixelsAt96) const {
    return std::max(1, static_cast<int>(std::lround(pixelsAt96 * kTwipsPerPixel * scale_)));
}

}  // namespace lw::face
