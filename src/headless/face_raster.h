#pragma once
// Paints a form's face, as the engine describes it, onto a picture in memory: the runner's painter
// where the window's is not built in.

#include "face/face_drawing.h"
#include "headless/picture_files.h"
#include "headless/raster_image.h"
#include "headless/truetype_faces.h"

namespace lw::headless {

void paintFace(const face::FaceDrawing& drawing, RasterImage& image, const TrueTypeFaces& faces,
               PictureFiles& pictures);

}  // namespace lw::headless
