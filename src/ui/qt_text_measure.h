#pragma once
// The desktop's measures of text: the faces the forms name, as Qt draws them, measured without hinting
// so that a text measures the same at every size of the face. The engine lays out every form's text with
// these measures, and the painter draws it with the same faces.

#include <QFont>

#include "face/text_measure.h"

namespace lw::ui {

// The Qt face a face of the engine stands for, at its size in pixels: made once for each.
QFont qtFont(const face::TextFace& face);

class QtTextMeasure : public face::TextMeasure {
public:
    face::FaceMetrics metrics(const face::TextFace& face) override;
    double advance(const face::TextFace& face, std::string_view text) override;
    std::vector<double> caretPositions(const face::TextFace& face, std::string_view line) override;
    double overhang(const face::TextFace& face, std::string_view glyph) override;
    bool joins(const face::TextFace& face, char first, char second) override;
};

// The measure the desktop lays its forms out with; its measures are kept, as a form asks for the same
// ones again and again.
QtTextMeasure& qtTextMeasure();

}  // namespace lw::ui
