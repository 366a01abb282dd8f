#include "face/face_geometry.h"

#include <algorithm>
#include <cmath>

#include "face/control_text.h"
#include "fields/box_dollar_sign.h"
#include "model/containers.h"

namespace lw::face {

int toPixels(int twips, double scale) { return static_cast<int>(std::lround(twips * scale)); }

Rect controlRect(const Control& control, double scale) {
    const int left = formLeft(control);
    const int top = formTop(control);
    const int x = toPixels(left, scale);
    const int y = toPixels(top, scale);
    return Rect{x, y, toPixels(left + control.width, scale) - x, toPixels(top + control.height, scale) - y};
}

Rect paintedExtent(const Control& control, double scale) {
    Rect extent =
        control.kind == ControlKind::Line
            ? Rect::spanning(Point{toPixels(formLeft(control), scale), toPixels(formTop(control), scale)},
                             Point{toPixels(control.x2 + originLeft(control), scale),
                                   toPixels(control.y2 + originTop(control), scale)})
            : controlRect(control, scale);
    if (takesBoxDollarSign(control)) extent = extent.united(boxDollarSignRect(control, scale));
    const int stroke = std::max(2, static_cast<int>(std::ceil(control.borderWidth * 15 * scale))) + 1;
    return extent.adjusted(-stroke, -stroke, stroke, stroke);
}

Size formSize(const Form& form, double scale) {
    return Size{std::max(1, toPixels(form.width, scale)), std::max(1, toPixels(form.height, scale))};
}

Rect boxDollarSignRect(const Control& field, double scale) {
    const Rect r = controlRect(field, scale);
    const int left = toPixels(formLeft(field) - kBoxDollarSignRoom, scale);
    return Rect{left, r.top(), r.left() - left, r.height};
}

bool hasEditor(ControlKind kind) {
    switch (kind) {
        case ControlKind::TextBox:
        case ControlKind::ComboBox:
        case ControlKind::CommandButton:
        case ControlKind::OptionButton:
            return true;
        default:
            return false;
    }
}

namespace {

int layerOf(ControlKind kind) {
    switch (kind) {
        case ControlKind::Frame:
        case ControlKind::Picture:
        case ControlKind::TabControl:
            return 0;
        case ControlKind::Shape:
        case ControlKind::Line:
        case ControlKind::Image:
        case ControlKind::Label:
        case ControlKind::CheckLabel:
            return 1;
        default:
            return 2;
    }
}

}  // namespace

std::vector<const Control*> paintOrder(const Form& form) {
    std::vector<const Control*> order;
    order.reserve(form.controls().size());
    for (const auto& control : form.controls()) order.push_back(control.get());
    std::stable_sort(order.begin(), order.end(),
                     [](const Control* a, const Control* b) { return layerOf(a->kind) < layerOf(b->kind); });
    return order;
}

int tabStripHeight(const Control& control, double scale) { return toPixels(tabStripTwips(control), scale); }

int rowHeight(const Control& control, double scale, TextMeasure& measure) {
    return std::max(1, static_cast<int>(std::lround(rowTwips(control, measure) * scale)));
}

int entryAt(const Control& control, Point point, double scale, TextMeasure& measure) {
    const Rect r = controlRect(control, scale);
    if (!r.contains(point) || control.items.empty()) return -1;
    const int count = static_cast<int>(control.items.size());
    if (control.kind == ControlKind::TabControl) {
        if (point.y >= r.top() + tabStripHeight(control, scale)) return -1;
        return std::clamp((point.x - r.left()) * count / std::max(1, r.width), 0, count - 1);
    }
    if (control.kind != ControlKind::Grid && control.kind != ControlKind::ListBox) return -1;
    const int row = (point.y - r.top() - 1) / std::max(1, rowHeight(control, scale, measure));
    // The first row of a grid is its header and cannot be chosen.
    if (control.kind == ControlKind::Grid && row == 0) return -1;
    return row < count ? row : -1;
}

}  // namespace lw::face
