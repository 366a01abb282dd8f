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

std::vector<double> TextMeasure::caretPositions(const TextFace& face, std::string_view line) {
    // The characters before each place, the last of them kerned against the character at the place.
    std::vector<double> places(line.size() + 1, 0.0);
    for (std::size_t i = 1; i < line.size(); ++i)
        places[i] = advance(face, line.substr(0, i + 1)) - advance(face, line.substr(i, 1));
    if (!line.empty()) places[line.size()] = advance(face, line);
    return places;
}

}  // namespace lw::face
