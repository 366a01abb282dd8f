#pragma once
// Places and areas of a form's face: whole device pixels for what is filled and stroked, fractions of
// twips for text laid out at its design size.

#include <algorithm>

namespace lw::face {

struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point& other) const { return x == other.x && y == other.y; }
    bool operator!=(const Point& other) const { return !(*this == other); }
};

struct PointF {
    double x = 0;
    double y = 0;
    bool operator==(const PointF& other) const { return x == other.x && y == other.y; }
};

// An area of whole pixels. Its last column is left + width - 1, its last row top + height - 1, as the
// desktop's toolkit counts them.
struct Rect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    // The rectangle from one corner pixel to the other, both inside it, in either order.
    static Rect spanning(Point a, Point b);

    int left() const { return x; }
    int top() const { return y; }
    int right() const { return x + width - 1; }
    int bottom() const { return y + height - 1; }
    bool isEmpty() const { return width <= 0 || height <= 0; }
    // No area and no extent at all: neither of its sides.
    bool isNull() const { return width == 0 && height == 0; }
    bool contains(Point p) const { return p.x >= x && p.x <= right() && p.y >= y && p.y <= bottom(); }
    bool intersects(const Rect& other) const;
    Rect intersected(const Rect& other) const;
    Rect united(const Rect& other) const;
    Rect adjusted(int dLeft, int dTop, int dRight, int dBottom) const {
        return {x + dLeft, y + dTop, width - dLeft + dRight, height - dTop + dBottom};
    }
    bool operator==(const Rect& other) const {
        return x == other.x && y == other.y && width == other.width && height == other.height;
    }
    bool operator!=(const Rect& other) const { return !(*this == other); }
};

// An area measured in fractions: its right edge is left + width.
struct RectF {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    double left() const { return x; }
    double top() const { return y; }
    double right() const { return x + width; }
    double bottom() const { return y + height; }
    bool isNull() const { return width == 0 && height == 0; }
    RectF adjusted(double dLeft, double dTop, double dRight, double dBottom) const {
        return {x + dLeft, y + dTop, width - dLeft + dRight, height - dTop + dBottom};
    }
    RectF translated(double dx, double dy) const { return {x + dx, y + dy, width, height}; }
    RectF united(const RectF& other) const;
    void setLeft(double left) {
        width += x - left;
        x = left;
    }
    bool operator==(const RectF& other) const {
        return x == other.x && y == other.y && width == other.width && height == other.height;
    }
};

}  // namespace lw::face
