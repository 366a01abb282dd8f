#include "face/geometry.h"

namespace lw::face {

namespace {

// The first and last column (or row) of a side that may run backwards.
struct Span {
    int first;
    int last;
};

Span spanOf(int start, int length) {
    const int end = start + length - 1;
    return length < 0 ? Span{end, start} : Span{start, end};
}

}  // namespace

Rect Rect::spanning(Point a, Point b) {
    const int left = std::min(a.x, b.x);
    const int top = std::min(a.y, b.y);
    return {left, top, std::max(a.x, b.x) - left + 1, std::max(a.y, b.y) - top + 1};
}

bool Rect::intersects(const Rect& other) const {
    if (isNull() || other.isNull()) return false;
    const Span h1 = spanOf(x, width), h2 = spanOf(other.x, other.width);
    if (h1.first > h2.last || h2.first > h1.last) return false;
    const Span v1 = spanOf(y, height), v2 = spanOf(other.y, other.height);
    return !(v1.first > v2.last || v2.first > v1.last);
}

Rect Rect::intersected(const Rect& other) const {
    if (!intersects(other)) return {};
    const Span h1 = spanOf(x, width), h2 = spanOf(other.x, other.width);
    const Span v1 = spanOf(y, height), v2 = spanOf(other.y, other.height);
    const int left = std::max(h1.first, h2.first);
    const int top = std::max(v1.first, v2.first);
    return {left, top, std::min(h1.last, h2.last) - left + 1, std::min(v1.last, v2.last) - top + 1};
}

Rect Rect::united(const Rect& other) const {
    if (isNull()) return other;
    if (other.isNull()) return *this;
    const Span h1 = spanOf(x, width), h2 = spanOf(other.x, other.width);
    const Span v1 = spanOf(y, height), v2 = spanOf(other.y, other.height);
    const int left = std::min(h1.first, h2.first);
    const int top = std::min(v1.first, v2.first);
    return {left, top, std::max(h1.last, h2.last) - left + 1, std::max(v1.last, v2.last) - top + 1};
}

RectF RectF::united(const RectF& other) const {
    if (isNull()) return other;
    if (other.isNull()) return *this;
    const double left = std::min(std::min(x, right()), std::min(other.x, other.right()));
    const double top = std::min(std::min(y, bottom()), std::min(other.y, other.bottom()));
    const double right = std::max(std::max(x, this->right()), std::max(other.x, other.right()));
    const double bottom = std::max(std::max(y, this->bottom()), std::max(other.y, other.bottom()));
    return {left, top, right - left, bottom - top};
}

}  // namespace lw::face
