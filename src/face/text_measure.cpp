#include "face/text_measure.h"

#include <algorithm>
#include <cmath>

namespace lw::face {

TextFace designFace(const std::string& name, double points, bool bold, bool italic) {
    return TextFace{name, std::max(1, static_cast<int>(std::lround(points * 20.0))), bold, italic};
}

TextFace designFace(const Control& control) {
    return designFace(control.fontName, control.fontSize, control.fontBold, control.fontItalic);
}

}  // namespace lw::face
