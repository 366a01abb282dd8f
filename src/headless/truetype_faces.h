#pragma once
// The faces of the forms' texts read from the machine's font files, without a font system: the
// measures a face's own design gives, with which the engine lays out the forms' texts where the window's
// painter is not built in, and its glyphs drawn smoothed onto a picture. The forms name Windows faces;
// each is taken from the file of its metric twin where the original is not installed, as the window
// does. An italic the files lack is the upright face leaning.

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "face/text_measure.h"
#include "headless/raster_image.h"

namespace lw::headless {

class TrueTypeFaces : public face::TextMeasure {
public:
    TrueTypeFaces();
    ~TrueTypeFaces() override;

    // A face's size is the em's height in the units it is measured in.
    face::FaceMetrics metrics(const face::TextFace& face) override;
    double advance(const face::TextFace& face, std::string_view text) override;
    double overhang(const face::TextFace& face, std::string_view glyph) override;
    // Each character is drawn as a glyph of its own: none join.
    bool joins(const face::TextFace& face, char first, char second) override;

    // Draws a line of Windows-1252 text in a face at a size in device pixels, from a point on its
    // baseline.
    void draw(RasterImage& image, const face::TextFace& face, double pixelSize, face::PointF baseline,
              std::string_view text, Color colour, const PixelBounds& clip);

    struct Font;

private:
    Font& fontFor(const face::TextFace& face);

    std::map<std::string, std::unique_ptr<Font>> fonts_;  // by name and style, at every size
};

}  // namespace lw::headless
