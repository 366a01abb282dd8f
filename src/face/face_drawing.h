#pragma once
// A form's face as data: what a front end paints, in device pixels at the scale it was made for. The
// shapes are filled or stroked in one colour each, the texts are laid out already (a face, a size and a
// baseline), and the pictures are named by their files. A front end paints the items in order, each
// within its clip.

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/color.h"

namespace lw::face {

struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    int right() const { return x + width; }  // the first column past the rectangle
    int bottom() const { return y + height; }
    bool empty() const { return width <= 0 || height <= 0; }
    PixelRect adjusted(int dx1, int dy1, int dx2, int dy2) const {
        return {x + dx1, y + dy1, width - dx1 + dx2, height - dy1 + dy2};
    }
    PixelRect intersected(const PixelRect& other) const;
    bool intersects(const PixelRect& other) const { return !intersected(other).empty(); }
};

struct Point {
    double x = 0;
    double y = 0;
};

// A rectangle of device pixels in fractions, for what is placed finer than a pixel (texts, round marks).
struct ExactRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

enum class LineStyle { Solid, Dash, Dot };

struct Fill {
    PixelRect area;
    Color colour = kBlack;
};

// A straight stroke between the centres of two pixels, its ends squared off by half its width.
struct Stroke {
    Point from;
    Point to;
    int width = 1;
    LineStyle style = LineStyle::Solid;
    Color colour = kBlack;
};

// A rectangle's outline of one width, stroked on its inside edge with a dashed or dotted pen.
struct Outline {
    PixelRect area;
    int width = 1;
    LineStyle style = LineStyle::Dash;
    Color colour = kBlack;
};

// A round mark, smoothed: filled, and ringed by a line of a width when that width is above nothing.
struct Ellipse {
    ExactRect box;
    std::optional<Color> fill;
    double ringWidth = 0;
    Color ring = kBlack;
};

// A polygon with sharp edges, filled where pixel centres lie inside it.
struct Polygon {
    std::vector<Point> corners;
    Color colour = kBlack;
};

// A picture in a control's rectangle, named as the control names it: a picture file, drawn at its own
// size times a scale from the rectangle's corner, or smoothed to fill the rectangle when that scale is 0;
// else a picture known by name (the icons of the boxes), drawn to fit a square in the corner.
struct Picture {
    std::string name;
    PixelRect area;
    double imageScale = 0;
};

// The face a text is drawn in: a family as the forms name it, in a weight and slant.
struct TextFace {
    std::string family;
    bool bold = false;
    bool italic = false;
};

// One line of text: its characters in the program's code page from a point on its baseline, in a face
// of a size in device pixels (the em's height).
struct TextRun {
    std::string text;
    TextFace face;
    double pixelSize = 0;
    Point baseline;
    Color colour = kBlack;
};

using FaceItem = std::variant<Fill, Stroke, Outline, Ellipse, Polygon, Picture, TextRun>;

struct ClippedItem {
    FaceItem item;
    std::optional<ExactRect> clip;  // nothing: the whole face
};

struct FaceDrawing {
    int width = 0;
    int height = 0;
    std::vector<ClippedItem> items;

    void add(FaceItem item, std::optional<ExactRect> clip = std::nullopt) {
        items.push_back({std::move(item), clip});
    }
};

}  // namespace lw::face
