// How each kind of control looks, described inside its rectangle at a scale of device pixels per twip.
#include <algorithm>
#include <cmath>

#include "face/control_text.h"
#include "face/face_colors.h"
#include "face/face_description.h"
#include "model/containers.h"

namespace lw::face {

namespace {

StrokeStyle strokeStyleOf(int borderStyle) {
    switch (borderStyle) {
        case 2:
            return StrokeStyle::Dash;
        case 3:
            return StrokeStyle::Dot;
        default:
            return StrokeStyle::Solid;
    }
}

// The middle row of a rectangle, counted as its top and bottom rows' mean, rounded down.
int middleRow(const Rect& r) { return static_cast<int>((static_cast<long long>(r.top()) + r.bottom()) / 2); }
int middleColumn(const Rect& r) {
    return static_cast<int>((static_cast<long long>(r.left()) + r.right()) / 2);
}

class ControlDescriber {
public:
    ControlDescriber(const Control& c, double scale, TextMeasure& measure)
        : c_(c), scale_(scale), measure_(measure), r_(controlRect(c, scale)) {}

    std::vector<FaceItem> describe() {
        switch (c_.kind) {
            case ControlKind::Label:
                label();
                break;
            case ControlKind::CheckLabel:
                checkLabel();
                break;
            case ControlKind::Shape:
                shape();
                break;
            case ControlKind::Line:
                line();
                break;
            case ControlKind::Frame:
                frame();
                break;
            case ControlKind::TextBox:
                textBox();
                break;
            case ControlKind::CommandButton:
                button();
                break;
            case ControlKind::OptionButton:
                option();
                break;
            case ControlKind::ComboBox:
                combo();
                break;
            case ControlKind::Picture:
            case ControlKind::Image:
                picture();
                break;
            case ControlKind::TabControl:
                tabs();
                break;
            case ControlKind::Grid:
            case ControlKind::ListBox:
                rows();
                break;
        }
        return std::move(items_);
    }

private:
    // A size fixed in pixels of the screen, at this scale.
    int px(int pixelsAt96) const {
        return std::max(1, static_cast<int>(std::lround(pixelsAt96 * kTwipsPerPixel * scale_)));
    }
    Color textColor() const { return c_.enabled ? c_.foreColor : kGreyText; }

    void fill(const Rect& r, Color color) { items_.push_back(FillItem{r, color}); }
    // A border wholly inside the rectangle, whatever its width; nothing where the rectangle is empty.
    void border(const Rect& r, int width, Color color, StrokeStyle style = StrokeStyle::Solid) {
        if (r.isEmpty()) return;
        items_.push_back(BorderItem{r, width, style, color});
    }
    void text(const TextBlock& block, Color color) {
        if (!block.lines.empty()) items_.push_back(textItemOf(block, color, scale_));
    }
    void bevel(const Rect& r, int w, Color topLeft, Color bottomRight) {
        fill(Rect{r.left(), r.top(), r.width, w}, topLeft);
        fill(Rect{r.left(), r.top(), w, r.height}, topLeft);
        fill(Rect{r.left(), r.bottom() - w + 1, r.width, w}, bottomRight);
        fill(Rect{r.right() - w + 1, r.top(), w, r.height}, bottomRight);
    }

    void label() {
        // A label is its caption and, when opaque, its back colour; boxes around text are shapes of their
        // own.
        if (c_.opaque) fill(r_, c_.backColor);
        text(captionLayout(c_, measure_), textColor());
    }

    void checkLabel() {
        if (c_.opaque) fill(r_, c_.backColor);
        border(r_, px(1), c_.borderColor);
        text(checkLayout(c_, measure_), c_.foreColor);
    }

    void shape() {
        if (c_.opaque) fill(r_, c_.backColor);
        if (c_.borderStyle != 0)
            border(r_, px(std::max(1, c_.borderWidth)), c_.borderColor, strokeStyleOf(c_.borderStyle));
    }

    void line() {
        if (c_.borderStyle == 0) return;
        items_.push_back(
            LineItem{Point{toPixels(formLeft(c_), scale_), toPixels(formTop(c_), scale_)},
                     Point{toPixels(c_.x2 + originLeft(c_), scale_), toPixels(c_.y2 + originTop(c_), scale_)},
                     px(std::max(1, c_.borderWidth)), strokeStyleOf(c_.borderStyle), c_.borderColor});
    }

    void frame() {
        fill(r_, c_.backColor);
        if (c_.borderStyle == 0) return;
        const TextBlock caption = frameCaptionLayout(c_, measure_);
        const int top =
            caption.lines.empty() ? 0 : toPixels(static_cast<int>(caption.area.height / 2), scale_);
        const Rect box = r_.adjusted(0, top, 0, 0);
        // An etched line: a shadow with a light line beside it.
        border(box.adjusted(px(1), px(1), 0, 0), px(1), kLight);
        border(box.adjusted(0, 0, -px(1), -px(1)), px(1), kShadow);
        if (caption.lines.empty()) return;
        const RectF area = caption.area.translated(caption.origin.x, caption.origin.y);
        const Rect words =
            Rect::spanning(Point{toPixels(static_cast<int>(area.left()), scale_), r_.top()},
                           Point{toPixels(static_cast<int>(std::ceil(area.right())), scale_),
                                 r_.top() + toPixels(static_cast<int>(std::ceil(area.height)), scale_)});
        const Rect behind = words.intersected(r_);
        if (!behind.isEmpty()) fill(behind, c_.backColor);
        text(caption, textColor());
    }

    void textBox() {
        fill(r_, c_.backColor);
        if (c_.borderStyle != 0) border(r_, px(1), kBoxBorder);
        text(fieldLayout(c_, measure_), textColor());
    }

    void button() {
        fill(r_, kButtonFaceColor);
        bevel(r_, px(1), kLight, kDark);
        bevel(r_.adjusted(px(1), px(1), -px(1), -px(1)), px(1), kButtonFaceColor, kShadow);
        text(buttonLayout(c_, measure_), textColor());
    }

    void option() {
        if (c_.opaque) fill(r_, c_.backColor);
        const int d = px(12);
        const RectF circle{static_cast<double>(r_.left() + px(1)), static_cast<double>(middleRow(r_) - d / 2),
                           static_cast<double>(d), static_cast<double>(d)};
        items_.push_back(EllipseItem{circle.adjusted(0.5, 0.5, -0.5, -0.5), kLight, kDark, px(1)});
        if (c_.value)
            items_.push_back(
                EllipseItem{circle.adjusted(d * 0.3, d * 0.3, -d * 0.3, -d * 0.3), c_.foreColor, {}, 0});
        text(optionLayout(c_, measure_), textColor());
    }

    void combo() {
        fill(r_, c_.backColor);
        border(r_, px(1), kBoxBorder);
        const int arrowWidth =
            r_.right() + 1 - toPixels(formLeft(c_) + c_.width - comboArrowTwips(c_), scale_);
        const Rect arrow{r_.right() - arrowWidth + 1, r_.top() + px(1), arrowWidth - px(1),
                         r_.height - 2 * px(1)};
        fill(arrow, kButtonFaceColor);
        const Point m{middleColumn(arrow), middleRow(arrow)};
        const int a = std::max(2, px(3));
        items_.push_back(PolygonItem{
            {Point{m.x - a, m.y - a / 2}, Point{m.x + a, m.y - a / 2}, Point{m.x, m.y + a / 2 + 1}}, kBlack});
        text(comboLayout(c_, measure_), textColor());
    }

    void picture() {
        const bool box = c_.kind == ControlKind::Picture;
        if (box) fill(r_, c_.backColor);
        // A picture box shows its picture at the picture's own size; an image is sized to fit.
        if (!c_.picture.empty())
            items_.push_back(PictureItem{c_.picture, r_, box || r_.isEmpty(), kTwipsPerPixel * scale_});
        if (box && c_.borderStyle != 0) border(r_, px(1), kBoxBorder);
    }

    void tabs() {
        const int strip = tabStripHeight(c_, scale_);
        const Rect body = r_.adjusted(0, strip, 0, 0);
        fill(body, c_.backColor);
        // With its strip taken away (a half printed as a page) the control is a plain ground, unframed.
        if (c_.tabHeight <= 0) return;
        border(body, px(1), kBoxBorder);
        if (strip <= 0) return;
        const std::vector<TextBlock> captions = tabLayouts(c_, measure_);
        const int count = static_cast<int>(c_.items.size());
        for (int i = 0; i < count; ++i) {
            const int x0 = r_.left() + r_.width * i / count;
            const int x1 = r_.left() + r_.width * (i + 1) / count;
            const bool current = i == c_.listIndex;
            const Rect tab{x0, r_.top() + (current ? 0 : px(2)), x1 - x0, strip - (current ? 0 : px(2))};
            fill(tab, current ? c_.backColor : kButtonFaceColor);
            border(tab.adjusted(0, 0, 0, current ? 0 : -1), px(1), kBoxBorder);
            text(captions[static_cast<size_t>(i)], c_.foreColor);
        }
    }

    void rows();

    const Control& c_;
    double scale_;
    TextMeasure& measure_;
    Rect r_;
    std::vector<FaceItem> items_;
};

// A grid's ColAlignment across the cell, the header row's included.
Alignment columnAlignment(const Control& c, int col) {
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

// The cells of a row of a grid: its text parted at its tabs.
std::vector<std::string> cellsOf(const std::string& row) {
    std::vector<std::string> cells(1);
    for (char c : row) {
        if (c == '\t')
            cells.emplace_back();
        else
            cells.back() += c;
    }
    return cells;
}

void ControlDescriber::rows() {
    fill(r_, c_.backColor);
    items_.push_back(ClipItem{r_});
    const int height = rowHeight(c_, scale_, measure_);
    const bool grid = c_.kind == ControlKind::Grid;
    for (size_t row = 0; row < c_.items.size(); ++row) {
        const Rect line{r_.left() + 1, r_.top() + 1 + static_cast<int>(row) * height, r_.width - 2, height};
        if (line.top() > r_.bottom()) break;
        const bool header = grid && row == 0;
        const bool chosen = static_cast<int>(row) == c_.listIndex && !header;
        if (header) fill(line, kButtonFaceColor);
        if (chosen) fill(line, kChosenRow);
        const std::vector<std::string> cells = cellsOf(c_.items[row]);
        const bool sized = grid && !c_.colWidths.empty();
        const int columns = sized  ? static_cast<int>(c_.colWidths.size())
                            : grid ? static_cast<int>(cells.size())
                                   : 1;
        int x0 = line.left();
        for (int col = 0; col < columns; ++col) {
            const int x1 = sized ? x0 + toPixels(c_.colWidths[static_cast<size_t>(col)], scale_)
                                 : line.left() + line.width * (col + 1) / columns;
            const Rect cell{x0, line.top(), x1 - x0, height};
            x0 = x1;
            if (grid) border(cell, px(1), kShadow);
            std::string shown;
            if (!grid)
                for (std::size_t i = 0; i < cells.size(); ++i) shown += (i > 0 ? " " : "") + cells[i];
            else if (static_cast<std::size_t>(col) < cells.size())
                shown = cells[static_cast<std::size_t>(col)];
            // Rows are placed in whole pixels of the screen; their text is measured as everywhere else.
            const Rect area = cell.adjusted(px(3), 0, -px(2), 0);
            const RectF twips{area.x / scale_, area.y / scale_, area.width / scale_, area.height / scale_};
            text(layoutText(shown, designFace(c_), twips, kAlignVCenter | columnAlignment(c_, col),
                            TextFlow::OneLine, measure_),
                 chosen ? kLight : c_.foreColor);
        }
    }
    items_.push_back(EndClipItem{});
    border(r_, px(1), kBoxBorder);
}

}  // namespace

std::vector<FaceItem> describeControl(const Control& control, double scale, TextMeasure& measure) {
    return ControlDescriber(control, scale, measure).describe();
}

}  // namespace lw::face
