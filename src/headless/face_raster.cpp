#include "headless/face_raster.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace lw::headless {

namespace {

using face::Point;

// The lengths a pen of a style is on and off along its way, in widths of the pen.
std::vector<double> dashPattern(face::LineStyle style) {
    switch (style) {
        case face::LineStyle::Dash:
            return {4, 2};
        case face::LineStyle::Dot:
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
void strokeWay(RasterImage& image, const std::vector<Point>& way, double width, face::LineStyle style,
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

void paintEllipse(RasterImage& image, const face::Ellipse& e, const PixelBounds& clip) {
    const double cx = e.box.x + e.box.width / 2, cy = e.box.y + e.box.height / 2;
    const double rx = e.box.width / 2, ry = e.box.height / 2;
    const auto within = [&](double x, double y, double grow) {
        const double ax = rx + grow, ay = ry + grow;
        if (ax <= 0 || ay <= 0) return false;
        const double dx = (x - cx) / ax, dy = (y - cy) / ay;
        return dx * dx + dy * dy <= 1;
    };
    const double half = e.ringWidth / 2;
    const face::PixelRect area{static_cast<int>(std::floor(e.box.x - half - 1)),
                               static_cast<int>(std::floor(e.box.y - half - 1)),
                               static_cast<int>(std::ceil(e.box.width + e.ringWidth + 2)),
                               static_cast<int>(std::ceil(e.box.height + e.ringWidth + 2))};
    if (e.fill)
        image.fillCovered(area, *e.fill, clip, [&](double x, double y) { return within(x, y, -half); });
    if (e.ringWidth > 0)
        image.fillCovered(area, e.ring, clip,
                          [&](double x, double y) { return within(x, y, half) && !within(x, y, -half); });
}

}  // namespace

void paintFace(const face::FaceDrawing& drawing, RasterImage& image, const TrueTypeFaces& faces,
               PictureFiles& pictures) {
    for (const face::ClippedItem& clipped : drawing.items) {
        const PixelBounds clip = image.bounds(clipped.clip);
        std::visit(
            [&](const auto& item) {
                using Item = std::decay_t<decltype(item)>;
                if constexpr (std::is_same_v<Item, face::Fill>) {
                    image.fill(item.area, item.colour, clip);
                } else if constexpr (std::is_same_v<Item, face::Stroke>) {
                    // A pen without smoothing covers the pixels right of and below the points it joins.
                    const Point from{item.from.x + 0.5, item.from.y + 0.5},
                        to{item.to.x + 0.5, item.to.y + 0.5};
                    strokeWay(image, {from, to}, item.width, item.style, item.colour, clip);
                } else if constexpr (std::is_same_v<Item, face::Outline>) {
                    const double h = item.width / 2.0;
                    const face::PixelRect& r = item.area;
                    const Point a{r.x + h, r.y + h}, b{r.right() - h, r.y + h},
                        c{r.right() - h, r.bottom() - h}, d{r.x + h, r.bottom() - h};
                    strokeWay(image, {a, b, c, d, a}, item.width, item.style, item.colour, clip);
                } else if constexpr (std::is_same_v<Item, face::Ellipse>) {
                    paintEllipse(image, item, clip);
                } else if constexpr (std::is_same_v<Item, face::Polygon>) {
                    std::vector<Point> corners = item.corners;
                    for (Point& corner : corners) corner = {corner.x + 0.5, corner.y + 0.5};
                    image.fillPolygon(corners, item.colour, clip);
                } else if constexpr (std::is_same_v<Item, face::Picture>) {
                    pictures.draw(image, item, clip);
                } else if constexpr (std::is_same_v<Item, face::TextRun>) {
                    faces.draw(image, item, clip);
                }
            },
            clipped.item);
    }
}

}  // namespace lw::headless
