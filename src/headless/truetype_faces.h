#pragma once
// The faces of the forms' texts read from the machine's font files, without a font system: the
// measures a face's own design gives, and its glyphs drawn smoothed onto a picture. The forms name
// Windows faces; each is taken from the file of its metric twin where the original is not installed,
// as the window does. An italic the files lack is the upright face leaning.

#include <map>
#include <memory>
#include <string>

#include "face/face_metrics.h"
#include "headless/raster_image.h"

namespace lw::headless {

class TrueTypeFaces : public face::FaceMetrics {
public:
    TrueTypeFaces();
    ~TrueTypeFaces() override;

    double ascent(const face::TextFace& face, double pixelSize) const override;
    double descent(const face::TextFace& face, double pixelSize) const override;
    double leading(const face::TextFace& face, double pixelSize) const override;
    double advance(const face::TextFace& face, double pixelSize, const std::string& text) const override;

    void draw(RasterImage& image, const face::TextRun& run, const PixelBounds& clip) const;

    struct Font;

private:
    Font& fontFor(const face::TextFace& face) const;

    mutable std::map<std::string, std::unique_ptr<Font>> fonts_;
};

}  // namespace lw::headless
