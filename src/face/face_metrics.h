#pragma once
// The measures of the faces a form's texts are laid out in, as the faces' own designs give them: the
// drawing asks for them at the size a text is measured in, one twip to the pixel.

#include <string>

#include "face/face_drawing.h"

namespace lw::face {

class FaceMetrics {
public:
    virtual ~FaceMetrics() = default;
    // Above and below the baseline, and the room between lines, for a face at a size in pixels.
    virtual double ascent(const TextFace& face, double pixelSize) const = 0;
    virtual double descent(const TextFace& face, double pixelSize) const = 0;
    virtual double leading(const TextFace& face, double pixelSize) const = 0;
    // How far a text in the code page advances on one line, in pixels.
    virtual double advance(const TextFace& face, double pixelSize, const std::string& text) const = 0;
};

}  // namespace lw::face
