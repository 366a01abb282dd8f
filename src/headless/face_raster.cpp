#include "headless/face_raster.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace lw::headless {

namespace {

using Point = face::PointF;

// The lengths a pen of a style is on and off along its way, in widths of the pen.
std::vector<double> dashPattern(face::StrokeStyle style) {
    switch (style) {
        case face::StrokeStyle::Dash:
            return {4, 2};
        case face::StrokeStyle::Dot:
            return {1, 2};
        default:
            return {};
    }
}

// A band of a width along a piece of a straight way, reaching past each end by half the width.
void fillBand(RasterImage& image, Point from, Point to, double width, Color colour, const PixelBounds& clip) {
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    const double ux = length > 0 ? (to.x - from.x) / length : 1,
                 uy = length > 0 ? (to.y - from.y) / length : 0;
    const double h = width / 2;
    const Point a{from.x - ux * h, from.y - uy * h}, b{to.x + ux * h, to.y + uy * h};
    const double nx = -uy * h, ny = ux * h;
    image.fillPolygon(
        {{a.x + nx, a.y + ny}, {b.x + nx, b.y + ny}, {b.x - nx, b.y - ny}, {a.x - nx, a.y - ny}}, colour,
        clip);
}

// Strokes a way of straight pieces with a pen of a width, solid or on and off by its pattern, which runs
// on from one piece to the next.
void strokeWay(RasterImage& image, const std::vector<Point>& way, double width, face::StrokeStyle style,
               Color colour, const PixelBounds& clip) {
    const std::vector<double> pattern = dashPattern(style);
    std::size_t part = 0;
    double left = pattern.empty() ? 0 : pattern[0] * width;  // of the part of the pattern under way
    for (std::size_t i = 0; i + 1 < way.size(); ++i) {
        const Point from = way[i], to = way[i + 1];
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        if (pattern.empty()) {
            fillBand(image, from, to, width, colour, clip);
            continue;
        }
        const auto at = [&](double d) {
            return length > 0
                       ? Point{from.x + (to.x - from.x) * d / length, from.y + (to.y - from.y) * d / length}
                       : from;
        };
        double done = 0;
        while (done < length) {
            const double step = std::min(left, length - done);
            if (part % 2 == 0 && step > 0) {
                // Each dash is squared off by the pen, so it is drawn half a width shorter at each end.
                const double inset = std::min(width / 2, step / 2);
                fillBand(image, at(done + inset), at(done + step - inset), width, colour, clip);
            }
            done += step;
            left -= step;
            if (left <= 1e-9) {
                part = (part + 1) % pattern.size();
                left = pattern[part] * width;
            }
        }
    }
}

void paintEllipse(RasterImage& image, const face::EllipseItem& e, const PixelBounds& clip) {
    const face::RectF& box = e.rect;
    const double cx = box.x + box.width / 2, cy = box.y + box.height / 2;
    const double rx = box.width / 2, ry = box.height / 2;
    const auto within = [&](double x, double y, double grow) {
        const double ax = rx + grow, ay = ry + grow;
        if (ax <= 0 || ay <= 0) return false;
        const double dx = (x - cx) / ax, dy = (y - cy) / ay;
        return dx * dx + dy * dy <= 1;
    };
    // The outline is stroked along the edge, half its width on either side.
    const double ring = e.outline ? e.outlineWidth : 0;
    const double half = ring / 2;
    const face::Rect area{static_cast<int>(std::floor(box.x - half - 1)),
                          static_cast<int>(std::floor(box.y - half - 1)),
                          static_cast<int>(std::ceil(box.width + ring + 2)),
                          static_cast<int>(std::ceil(box.height + ring + 2))};
    image.fillCovered(area, e.fill, clip, [&](double x, double y) { return within(x, y, -half); });
    if (e.outline && ring > 0)
        image.fillCovered(area, *e.outline, clip,
                          [&](double x, double y) { return within(x, y, half) && !within(x, y, -half); });
}

void paintText(RasterImage& image, const face::TextItem& text, const PixelBounds& clip,
               TrueTypeFaces& faces) {
    // Nothing of the text shows outside its clip, given in the text's units from its origin.
    const face::RectF& own = text.clip;
    const PixelBounds within = clip.intersected(
        image.bounds(face::RectF{text.origin.x + own.x * text.scale, text.origin.y + own.y * text.scale,
                                 own.width * text.scale, own.height * text.scale}));
    for (const face::TextRun& run : text.runs)
        faces.draw(image, text.face, text.pixelSize(), text.placeOf(run), run.text, text.color, within);
}

// Paints items one after the other; a clip item narrows what follows until its end.
struct ItemPainter {
    RasterImage& image;
    TrueTypeFaces& faces;
    PictureFiles& pictures;
    std::vector<PixelBounds> clips;

    const PixelBounds& clip() const { return clips.back(); }

    void operator()(const face::FillItem& fill) { image.fill(fill.rect, fill.color, clip()); }

    void operator()(const face::BorderItem& border) {
        const face::Rect& r = border.rect;
        const int w = border.width;
        if (border.style == face::StrokeStyle::Solid) {
            image.fill({r.x, r.y, r.width, w}, border.color, clip());
            image.fill({r.x, r.y + r.height - w, r.width, w}, border.color, clip());
            image.fill({r.x, r.y, w, r.height}, border.color, clip());
            image.fill({r.x + r.width - w, r.y, w, r.height}, border.color, clip());
            return;
        }
        // A dashed or dotted border runs along the middle of its band, its pattern going on round the
        // corners.
        const double h = w / 2.0;
        const double left = r.x + h, top = r.y + h, right = r.x + r.width - h, bottom = r.y + r.height - h;
        const Point a{left, top}, b{right, top}, c{right, bottom}, d{left, bottom};
        strokeWay(image, {a, b, c, d, a}, w, border.style, border.color, clip());
    }

    void operator()(const face::LineItem& line) {
        // A pen without smoothing covers the pixels right of and below the points it joins.
        const Point from{line.from.x + 0.5, line.from.y + 0.5}, to{line.to.x + 0.5, line.to.y + 0.5};
        strokeWay(image, {from, to}, line.width, line.style, line.color, clip());
    }

    void operator()(const face::EllipseItem& ellipse) { paintEllipse(image, ellipse, clip()); }

    void operator()(const face::PolygonItem& polygon) {
        std::vector<Point> corners;
        corners.reserve(polygon.points.size());
        for (const face::Point& corner : polygon.points) corners.push_back({corner.x + 0.5, corner.y + 0.5});
        image.fillPolygon(corners, polygon.color, clip());
    }

    void operator()(const face::PictureItem& picture) { pictures.draw(image, picture, clip()); }

    void operator()(const face::TextItem& text) { paintText(image, text, clip(), faces); }

    void operator()(const face::ClipItem& item) {
        clips.push_back(clip().intersected(image.bounds(item.area)));
    }

    void operator()(const face::EndClipItem&) {
        if (clips.size() > 1) clips.pop_back();
    }
};

}  // namespace

void paintItems(const std::vector<face::FaceItem>& items, RasterImage& image, const PixelBounds& clip,
                TrueTypeFaces& faces, PictureFiles& pictures) {
    ItemPainter paint{image, faces, pictures, {clip}};
    for (const face::FaceItem& item : items) std::visit(paint, item);
}

void paintFace(const face::FaceDescription& face, RasterImage& image, TrueTypeFaces& faces,
               PictureFiles& pictures) {
    const PixelBounds clip = face.area ? image.bounds(*face.area) : image.bounds();
    image.fill(face.area ? *face.area : face::Rect{0, 0, face.size.width, face.size.height}, face.ground,
               clip);
    for (const face::FacePiece& piece : face.pieces) {
        if (face.area && !piece.extent.intersects(*face.area)) continue;
        paintItems(piece.items, image, clip, faces, pictures);
    }
}

}  // namespace lw::headless
