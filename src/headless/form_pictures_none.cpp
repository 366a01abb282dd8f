// The runner's pictures where no painter is built in: each has the size the painter would give it, and
// no pixels.
#include <algorithm>
#include <cmath>

#include "headless/form_pictures.h"

namespace lw::headless {

namespace {

// Device pixels of a length in twips, counted as the painter counts them: 15 twips to a pixel at 96 dpi,
// times the zoom, rounded, and never less than one.
int toPixels(int twips, double zoom) {
    const double scale = (1.0 / 15.0) * zoom;
    return std::max(1, static_cast<int>(std::lround(twips * scale)));
}

class UndrawnPicture : public FormPicture {
public:
    UndrawnPicture(int width, int height) : width_(width), height_(height) {}
    int width() const override { return width_; }
    int height() const override { return height_; }
    std::optional<std::string> colourAt(int, int) const override { return std::nullopt; }
    bool savePng(const std::string&) const override { return false; }

private:
    int width_;
    int height_;
};

}  // namespace

bool picturesDrawn() { return false; }

std::shared_ptr<const FormPicture> drawForm(const Form& form, double zoom) {
    return std::make_shared<UndrawnPicture>(toPixels(form.width, zoom), toPixels(form.height, zoom));
}

bool printFormToPdf(const Form&, const std::string&) { return false; }

}  // namespace lw::headless
