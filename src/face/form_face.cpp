#include "face/form_face.h"

#include <algorithm>
#include <cmath>

#include "face/control_faces.h"
#include "fields/box_dollar_sign.h"
#include "model/containers.h"

namespace lw::face {

int toPixels(int twips, double scale) { return static_cast<int>(std::lround(twips * scale)); }

PixelRect controlRect(const Control& control, double scale) {
    const int left = formLeft(control);
    const int top = formTop(control);
    const int x = toPixels(left, scale);
    const int y = toPixels(top, scale);
    return {x, y, toPixels(left + control.width, scale) - x, toPixels(top + control.height, scale) - y};
}

int faceWidth(const Form& form, double scale) { return std::max(1, toPixels(form.width, scale)); }
int faceHeight(const Form& form, double scale) { return std::max(1, toPixels(form.height, scale)); }

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

FaceDrawing describeForm(const Form& form, double scale, const FaceMetrics& metrics) {
    FaceDrawing drawing;
    drawing.width = faceWidth(form, scale);
    drawing.height = faceHeight(form, scale);
    drawing.add(Fill{{0, 0, drawing.width, drawing.height}, form.backColor});
    ControlFaces faces(drawing, scale, metrics);
    for (const Control* control : paintOrder(form)) {
        if (!isShown(*control)) continue;
        if (takesBoxDollarSign(*control)) faces.boxDollarSign(*control);
        faces.control(*control);
    }
    return drawing;
}

}  // namespace lw::face
