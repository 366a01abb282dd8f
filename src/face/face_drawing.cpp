#include "face/face_drawing.h"

#include <algorithm>

namespace lw::face {

PixelRect PixelRect::intersected(const PixelRect& other) const {
    const int left = std::max(x, other.x), top = std::max(y, other.y);
    const int r = std::min(right(), other.right()), b = std::min(bottom(), other.bottom());
    return {left, top, std::max(0, r - left), std::max(0, b - top)};
}

}  // namespace lw::face
