#pragma once
// The pictures a form's face names, as the runner's painter draws them: picture files read once each,
// and the icons of the boxes, drawn by this program.

#include <map>
#include <optional>
#include <string>

#include "face/face_description.h"
#include "headless/raster_image.h"
#include "headless/truetype_faces.h"

namespace lw::headless {

class PictureFiles {
public:
    explicit PictureFiles(TrueTypeFaces& faces) : faces_(faces) {}

    // Draws the picture inside its place; a source that is neither a picture file that can be read nor
    // an icon draws nothing.
    void draw(RasterImage& image, const face::PictureItem& picture, const PixelBounds& clip);

private:
    const DecodedPicture* file(const std::string& name);
    bool drawIcon(RasterImage& image, const std::string& name, const face::Rect& square,
                  const PixelBounds& clip);

    TrueTypeFaces& faces_;
    std::map<std::string, DecodedPicture> read_;  // pictures read, by name; a file that cannot be read is
                                                  // looked for again next time
};

}  // namespace lw::headless
