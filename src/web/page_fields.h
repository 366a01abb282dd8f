#pragma once
// The face's controls that the page does not host as inputs (buttons, option buttons, lists) are
// painted by the engine's description, as the runner paints them.

#include "headless/picture_files.h"
#include "headless/raster_image.h"
#include "headless/truetype_faces.h"
#include "model/form.h"

namespace lw::web {

void paintButtons(const Form& form, headless::RasterImage& image, headless::TrueTypeFaces& faces,
                  headless::PictureFiles& pictures);

// The CSS font of a field's face: the web font of the file the engine measures it with, at the size
// the engine writes its text (a text that shrinks to fit is smaller than designed), or as designed.
std::string cssFont(const Control& control, double points = 0);
std::string cssColor(Color color);
// A length of the page in whole pixels, as CSS writes it.
std::string cssPixels(int pixels);
// The family the page loads from the font file the engine measures a face of that name with.
std::string cssFamily(const std::string& faceName);

}  // namespace lw::web
