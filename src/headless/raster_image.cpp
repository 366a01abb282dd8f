#include "headless/raster_image.h"

#include <stb_image_write.h>

#include <algorithm>
#include <cmath>

namespace lw::headless {

namespace {

// The first pixel whose centre lies at or past a position.
int firstCentreFrom(double position) { return static_cast<int>(std::ceil(position - 0.5)); }

PixelBounds intersection(const PixelBounds& a, const PixelBounds& b) { return a.intersected(b); }

PixelBounds boundsOf(const face::Rect& area) {
    return {area.x, area.y, area.x + area.width, area.y + area.height};
}

}  // namespace

PixelBounds PixelBounds::intersected(const PixelBounds& other) const {
    return {std::max(x0, other.x0), std::max(y0, other.y0), std::min(x1, other.x1), std::min(y1, other.y1)};
}

RasterImage::RasterImage(int width, int height, Color ground)
    : width_(std::max(1, width)), height_(std::max(1, height)), rgb_(std::size_t(width_) * height_ * 3) {
    fill({0, 0, width_, height_}, ground, bounds());
}

Color RasterImage::pixel(int x, int y) const {
    const std::uint8_t* p = &rgb_[(std::size_t(y) * width_ + x) * 3];
    return Color(p[0]) | Color(p[1]) << 8 | Color(p[2]) << 16;
}

PixelBounds RasterImage::bounds(const face::RectF& clip) const {
    return intersection(
        bounds(), {firstCentreFrom(clip.x), firstCentreFrom(clip.y), firstCentreFrom(clip.x + clip.width),
                   firstCentreFrom(clip.y + clip.height)});
}

PixelBounds RasterImage::bounds(const face::Rect& clip) const {
    return intersection(bounds(), boundsOf(clip));
}

void RasterImage::fill(const face::Rect& area, Color colour, const PixelBounds& clip) {
    const PixelBounds b = intersection(clip, boundsOf(area));
    for (int y = b.y0; y < b.y1; ++y) {
        for (int x = b.x0; x < b.x1; ++x) {
            std::uint8_t* p = &rgb_[(std::size_t(y) * width_ + x) * 3];
            p[0] = static_cast<std::uint8_t>(redOf(colour));
            p[1] = static_cast<std::uint8_t>(greenOf(colour));
            p[2] = static_cast<std::uint8_t>(blueOf(colour));
        }
    }
}

void RasterImage::blend(int x, int y, Color colour, double coverage, const PixelBounds& clip) {
    if (coverage <= 0 || !clip.contains(x, y) || x < 0 || y < 0 || x >= width_ || y >= height_) return;
    coverage = std::min(1.0, coverage);
    std::uint8_t* p = &rgb_[(std::size_t(y) * width_ + x) * 3];
    const int parts[3] = {redOf(colour), greenOf(colour), blueOf(colour)};
    for (int i = 0; i < 3; ++i)
        p[i] = static_cast<std::uint8_t>(std::lround(p[i] + (parts[i] - p[i]) * coverage));
}

void RasterImage::fillPolygon(const std::vector<face::PointF>& corners, Color colour,
                              const PixelBounds& clip) {
    if (corners.size() < 3) return;
    double top = corners.front().y, bottom = top;
    for (const auto& c : corners) {
        top = std::min(top, c.y);
        bottom = std::max(bottom, c.y);
    }
    const PixelBounds b = intersection(clip, {0, firstCentreFrom(top), width_, firstCentreFrom(bottom)});
    for (int y = b.y0; y < b.y1; ++y) {
        const double cy = y + 0.5;
        // Where the edges cross this row's centre line, with the way each edge runs.
        std::vector<std::pair<double, int>> crossings;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const face::PointF& a = corners[i];
            const face::PointF& c = corners[(i + 1) % corners.size()];
            if ((a.y <= cy) == (c.y <= cy)) continue;
            crossings.push_back({a.x + (cy - a.y) * (c.x - a.x) / (c.y - a.y), a.y < c.y ? 1 : -1});
        }
        std::sort(crossings.begin(), crossings.end());
        int winding = 0;
        for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
            winding += crossings[i].second;
            if (winding == 0) continue;
            const int x0 = std::max(b.x0, firstCentreFrom(crossings[i].first));
            const int x1 = std::min(b.x1, firstCentreFrom(crossings[i + 1].first));
            for (int x = x0; x < x1; ++x) blend(x, y, colour, 1.0, clip);
        }
    }
}

void RasterImage::fillCovered(const face::Rect& area, Color colour, const PixelBounds& clip,
                              const std::function<bool(double, double)>& inside) {
    constexpr int kSamples = 4;
    const PixelBounds b = intersection(clip, boundsOf(area));
    for (int y = b.y0; y < b.y1; ++y) {
        for (int x = b.x0; x < b.x1; ++x) {
            int hits = 0;
            for (int sy = 0; sy < kSamples; ++sy)
                for (int sx = 0; sx < kSamples; ++sx)
                    hits += inside(x + (sx + 0.5) / kSamples, y + (sy + 0.5) / kSamples) ? 1 : 0;
            blend(x, y, colour, double(hits) / (kSamples * kSamples), clip);
        }
    }
}

void RasterImage::drawPicture(const DecodedPicture& picture, const face::RectF& target,
                              const PixelBounds& clip) {
    if (picture.width <= 0 || picture.height <= 0 || target.width <= 0 || target.height <= 0) return;
    const PixelBounds b = intersection(
        clip, {firstCentreFrom(target.x), firstCentreFrom(target.y), firstCentreFrom(target.x + target.width),
               firstCentreFrom(target.y + target.height)});
    const double sx = picture.width / target.width, sy = picture.height / target.height;
    const auto at = [&](int px, int py, int channel) {
        px = std::clamp(px, 0, picture.width - 1);
        py = std::clamp(py, 0, picture.height - 1);
        return double(picture.rgb[(std::size_t(py) * picture.width + px) * 3 + channel]);
    };
    for (int y = b.y0; y < b.y1; ++y) {
        const double fy = (y + 0.5 - target.y) * sy - 0.5;
        const int py = static_cast<int>(std::floor(fy));
        const double ty = fy - py;
        for (int x = b.x0; x < b.x1; ++x) {
            const double fx = (x + 0.5 - target.x) * sx - 0.5;
            const int px = static_cast<int>(std::floor(fx));
            const double tx = fx - px;
            int parts[3];
            for (int c = 0; c < 3; ++c) {
                const double top = at(px, py, c) * (1 - tx) + at(px + 1, py, c) * tx;
                const double low = at(px, py + 1, c) * (1 - tx) + at(px + 1, py + 1, c) * tx;
                parts[c] = static_cast<int>(std::lround(top * (1 - ty) + low * ty));
            }
            blend(x, y, Color(parts[0]) | Color(parts[1]) << 8 | Color(parts[2]) << 16, 1.0, clip);
        }
    }
}

void RasterImage::paste(const RasterImage& other, int left, int top) {
    const PixelBounds b = intersection(bounds(), {left, top, left + other.width_, top + other.height_});
    for (int y = b.y0; y < b.y1; ++y) {
        const auto from = other.rgb_.begin() + (std::ptrdiff_t(y - top) * other.width_ + (b.x0 - left)) * 3;
        std::copy(from, from + std::ptrdiff_t(b.x1 - b.x0) * 3,
                  rgb_.begin() + (std::ptrdiff_t(y) * width_ + b.x0) * 3);
    }
}

bool RasterImage::savePng(const std::string& path) const {
    return stbi_write_png(path.c_str(), width_, height_, 3, rgb_.data(), width_ * 3) != 0;
}

std::vector<std::uint8_t> RasterImage::pngBytes() const {
    std::vector<std::uint8_t> bytes;
    const auto append = [](void* into, void* data, int size) {
        const auto* from = static_cast<const std::uint8_t*>(data);
        static_cast<std::vector<std::uint8_t>*>(into)->insert(
            static_cast<std::vector<std::uint8_t>*>(into)->end(), from, from + size);
    };
    if (!stbi_write_png_to_func(append, &bytes, width_, height_, 3, rgb_.data(), width_ * 3)) bytes.clear();
    return bytes;
}

}  // namespace lw::headless
