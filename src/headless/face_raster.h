#pragma once
// Paints a form's face, as the engine describes it, onto a picture in memory: the runner's painter
// where the window's is not built in.

#include <vector>

#include "face/face_description.h"
#include "headless/picture_files.h"
#include "headless/raster_image.h"
#include "headless/truetype_faces.h"

namespace lw::headless {

// The ground and every piece of the face; a face of one area is painted within that area only.
void paintFace(const face::FaceDescription& face, RasterImage& image, TrueTypeFaces& faces,
               PictureFiles& pictures);
// The items of one piece, in their order, within a clip.
void paintItems(const std::vector<face::FaceItem>& items, RasterImage& image, const PixelBounds& clip,
                TrueTypeFaces& faces, PictureFiles& pictures);

}  // namespace lw::headless
