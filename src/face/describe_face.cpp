#include <cmath>

#include "face/face_description.h"
#include "face/measure_memo.h"
#include "fields/box_dollar_sign.h"
#include "model/containers.h"

namespace lw::face {

TextItem textItemOf(const TextBlock& block, Color color, double scale) {
    TextItem item;
    item.face = block.face;
    item.color = color;
    item.origin = Point{toPixels(block.origin.x, scale), toPixels(block.origin.y, scale)};
    item.scale = scale;
    item.clip = block.clip;
    item.runs.reserve(block.lines.size());
    for (const TextLine& line : block.lines) item.runs.push_back({line.text, PointF{line.x, line.baseline}});
    return item;
}

TextItem describeBoxDollarSign(const Control& field, double scale, TextMeasure& measure) {
    // The sign's size is whole pixels of the device, and it is placed in them, set off from the field by
    // the width of its border.
    const int gap = std::max(1, static_cast<int>(std::lround(2 * kTwipsPerPixel * scale)));
    const Rect room = boxDollarSignRect(field, scale).adjusted(0, 0, -gap, 0);
    TextItem sign;
    sign.face =
        TextFace{"Tahoma", std::max(1, static_cast<int>(std::floor(8 * 20.0 * scale + 1e-6))), false, false};
    sign.color = kBlack;
    sign.scale = 1;
    sign.clip = RectF{static_cast<double>(room.x), static_cast<double>(room.y),
                      static_cast<double>(room.width), static_cast<double>(room.height)};
    const FaceMetrics metrics = measure.metrics(sign.face);
    const double x = room.x + room.width - measure.advance(sign.face, "$");
    const double baseline = room.y + (room.height - metrics.height()) / 2 + metrics.ascent;
    sign.runs.push_back({"$", PointF{x, baseline}});
    return sign;
}

FaceDescription describeFace(const Form& form, const FaceRequest& request, TextMeasure& frontEnd) {
    // The controls of a form repeat their words: each is measured once.
    MeasureMemo measure(frontEnd);
    FaceDescription face;
    face.size = formSize(form, request.scale);
    face.scale = request.scale;
    face.area = request.area;
    face.ground = form.backColor;
    for (const Control* control : paintOrder(form)) {
        if (!isShown(*control)) continue;
        const Rect extent = paintedExtent(*control, request.scale);
        if (request.area && !extent.intersects(*request.area)) continue;
        FacePiece piece{control, extent, {}};
        if (takesBoxDollarSign(*control))
            piece.items.push_back(describeBoxDollarSign(*control, request.scale, measure));
        if (!(request.skipEditors && hasEditor(control->kind))) {
            std::vector<FaceItem> items = describeControl(*control, request.scale, measure);
            piece.items.insert(piece.items.end(), std::make_move_iterator(items.begin()),
                               std::make_move_iterator(items.end()));
        }
        if (!piece.items.empty()) face.pieces.push_back(std::move(piece));
    }
    return face;
}

}  // namespace lw::face
