#pragma once
// The pictures a form's face names, as the runner's painter draws them: picture files read once each,
// and the icons of the boxes, drawn by this program.

#include <map>
#include <optional>
#include <string>

#include "face/face_drawing.h"
#include "headless/raster_image.h"
#include "headless/truetype_faces.h"

namespace lw::headless {

class PictureFiles {
public:
    explicit PictureFiles(const TrueTypeFaces& faces) : faces_(faces) {}

    // Draws the picture inside its control's rectangle; a name that is neither a picture file that can
    // be read nor an icon draws nothing.
    void draw(RasterImage& image, const face::Picture& picture, const PixelBounds& clip);

private:
    const DecodedPicture* file(const std::string& name);
    bool drawIcon(RasterImage& image, const std::string& name, const face::PixelRect& square,
                  const PixelBounds& clip);

    const TrueTypeFaces& faces_;
    std::map<std::string, DecodedPicture> read_;  // pictures read, by name; a file that cannot be read is
                                                  // looked for again next time
};

}  // namespace lw::headless
