#pragma once
// Describes a form's face as data at a scale of device pixels per twip: its ground and its visible
// controls, each drawn as its kind looks, in the order they stand on each other.

#include <vector>

#include "face/face_drawing.h"
#include "face/face_metrics.h"
#include "model/form.h"

namespace lw::face {

// Twips to a pixel on a 96 dpi screen.
constexpr double kTwipsPerPixel = 15.0;
constexpr double kScreenScale = 1.0 / kTwipsPerPixel;

// Whole device pixels of a length or position in twips.
int toPixels(int twips, double scale);
PixelRect controlRect(const Control& control, double scale);
// The form's size in device pixels, never less than one.
int faceWidth(const Form& form, double scale);
int faceHeight(const Form& form, double scale);

// Controls in the order they are drawn: containers first, then the light controls, then the boxes.
std::vector<const Control*> paintOrder(const Form& form);

FaceDrawing describeForm(const Form& form, double scale, const FaceMetrics& metrics);

}  // namespace lw::face
