#pragma once
// A picture in memory, three bytes a pixel, and the few ways the runner's painter puts colour on it:
// rectangles, polygons with sharp edges, smoothed round marks, coverage from a glyph, and other pictures
// scaled into a rectangle. Everything is kept inside a clip.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "face/geometry.h"
#include "model/color.h"

namespace lw::headless {

// The pixels a clip lets through: those whose centres lie inside it, from x0 and y0 up to x1 and y1.
struct PixelBounds {
    int x0 = 0;
    int y0 = 0;
    int x1 = 0;
    int y1 = 0;
    bool contains(int x, int y) const { return x >= x0 && y >= y0 && x < x1 && y < y1; }
    PixelBounds intersected(const PixelBounds& other) const;
};

// A picture decoded from a file: three bytes a pixel, row by row.
struct DecodedPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgb;
};

class RasterImage {
public:
    RasterImage(int width, int height, Color ground);

    int width() const { return width_; }
    int height() const { return height_; }
    Color pixel(int x, int y) const;
    const std::vector<std::uint8_t>& rgb() const { return rgb_; }

    // The whole picture, or the part of it a clip lets through.
    PixelBounds bounds() const { return {0, 0, width_, height_}; }
    PixelBounds bounds(const face::RectF& clip) const;
    PixelBounds bounds(const face::Rect& clip) const;

    void fill(const face::Rect& area, Color colour, const PixelBounds& clip);
    // Mixes a colour into a pixel by a coverage from 0 (nothing) to 1 (the colour alone).
    void blend(int x, int y, Color colour, double coverage, const PixelBounds& clip);
    // Fills the pixels whose centres lie inside the polygon (by the winding of its edges).
    void fillPolygon(const std::vector<face::PointF>& corners, Color colour, const PixelBounds& clip);
    // Fills by how much of each pixel in an area a shape covers, sampled four by four in each pixel.
    void fillCovered(const face::Rect& area, Color colour, const PixelBounds& clip,
                     const std::function<bool(double x, double y)>& inside);
    // Draws a picture smoothed into a rectangle of fractional pixels.
    void drawPicture(const DecodedPicture& picture, const face::RectF& target, const PixelBounds& clip);

    // Copies another picture onto this one with its top-left corner at a pixel.
    void paste(const RasterImage& other, int left, int top);

    // Writes the picture as a PNG file; false when it cannot.
    bool savePng(const std::string& path) const;
    // The picture as the bytes of a PNG file; empty when it cannot be encoded.
    std::vector<std::uint8_t> pngBytes() const;

private:
    int width_;
    int height_;
    std::vector<std::uint8_t> rgb_;
};

}  // namespace lw::headless
