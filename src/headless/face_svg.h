#pragma once
// Writes a form's face, as the engine describes it, as an SVG drawing: the second painter of the same
// description, for a page that prints. Its text stays text (<text> runs in the faces the engine measured
// with), so that a printed or saved copy can be searched; the pictures are painted as the runner paints
// them and embedded.

#include <functional>
#include <string>

#include "face/face_description.h"
#include "headless/picture_files.h"

namespace lw::headless {

struct SvgSize {
    // The drawing's size on the page in CSS units ("8.5in"); its own units are the face's device pixels.
    std::string width;
    std::string height;
};

// The CSS family that stands for a face of the engine.
using SvgFamilyOf = std::function<std::string(const face::TextFace&)>;

std::string faceSvg(const face::FaceDescription& face, const SvgSize& size, const SvgFamilyOf& familyOf,
                    PictureFiles& pictures);

// A picture's bytes as a data address ("data:image/png;base64,...").
std::string pngDataUrl(const std::vector<std::uint8_t>& png);

}  // namespace lw::headless
