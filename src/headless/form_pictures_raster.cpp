// The runner's pictures where the window's painter is not built in (the WebAssembly build): the engine's
// description of a form's face, painted in memory with the faces and pictures read from their files.
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "face/face_description.h"
#include "headless/face_raster.h"
#include "headless/form_pictures.h"
#include "headless/page_pdf.h"

namespace lw::headless {

namespace {

class RasterFormPicture : public FormPicture {
public:
    explicit RasterFormPicture(RasterImage image) : image_(std::move(image)) {}
    int width() const override { return image_.width(); }
    int height() const override { return image_.height(); }
    std::optional<std::string> colourAt(int x, int y) const override {
        if (!contains(x, y)) return std::nullopt;
        const Color c = image_.pixel(x, y);
        char name[8];
        std::snprintf(name, sizeof name, "#%02X%02X%02X", redOf(c), greenOf(c), blueOf(c));
        return std::string(name);
    }
    bool savePng(const std::string& path) const override { return image_.savePng(path); }

private:
    RasterImage image_;
};

// The faces and pictures are read once for the whole run.
TrueTypeFaces& faces() {
    static TrueTypeFaces read;
    return read;
}

PictureFiles& pictures() {
    static PictureFiles read(faces());
    return read;
}

RasterImage paintedForm(const Form& form, double scale) {
    // The engine lays out the form's text with the measures of the faces this painter draws with.
    const face::FaceDescription face = face::describeFace(form, face::FaceRequest{scale, false, {}}, faces());
    RasterImage image(face.size.width, face.size.height, face.ground);
    paintFace(face, image, faces(), pictures());
    return image;
}

// US Letter in points, with the margins the printer keeps, and the dots to the inch of a printed page.
constexpr double kLetterShort = 612, kLetterLong = 792, kMargin = 10;
constexpr double kPageDpi = 150;

}  // namespace

std::shared_ptr<const FormPicture> drawForm(const Form& form, double zoom) {
    return std::make_shared<RasterFormPicture>(paintedForm(form, face::kScreenScale * zoom));
}

bool printFormToPdf(const Form& form, const std::string& path) {
    const double twipsWide = std::max(1, form.width), twipsHigh = std::max(1, form.height);
    // Most forms are wider than a page is across when upright: the page turns when that lets the form
    // stand larger on it, and a form larger than the page is made smaller to fit it.
    const auto fit = [&](double pageWide, double pageHigh) {
        return std::min(
            {1.0, (pageWide - 2 * kMargin) * 20 / twipsWide, (pageHigh - 2 * kMargin) * 20 / twipsHigh});
    };
    const bool turned = fit(kLetterLong, kLetterShort) > fit(kLetterShort, kLetterLong);
    const double pageWide = turned ? kLetterLong : kLetterShort,
                 pageHigh = turned ? kLetterShort : kLetterLong;
    const double dotsPerPoint = kPageDpi / 72;
    RasterImage page(static_cast<int>(std::lround(pageWide * dotsPerPoint)),
                     static_cast<int>(std::lround(pageHigh * dotsPerPoint)), kWhite);
    const double scale = kPageDpi / 1440 * fit(pageWide, pageHigh);
    const int margin = static_cast<int>(std::lround(kMargin * dotsPerPoint));
    page.paste(paintedForm(form, scale), margin, margin);
    return writePagePdf(path, page, pageWide, pageHigh, form.caption);
}

}  // namespace lw::headless
