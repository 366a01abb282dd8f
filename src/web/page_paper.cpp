#include "web/page_paper.h"

#include <emscripten/val.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "face/face_description.h"
#include "headless/face_svg.h"
#include "headless/form_pictures.h"
#include "headless/picture_files.h"
#include "headless/truetype_faces.h"
#include "web/page_fields.h"

namespace lw::web {

using emscripten::val;

namespace {

// Letter in inches, less the margins the page keeps, and the dots to the inch the face is laid out at.
constexpr double kLetterShort = 8.5, kLetterLong = 11, kMargin = 0.25;
constexpr double kPaperDpi = 300;

headless::TrueTypeFaces& faces() {
    static headless::TrueTypeFaces read;
    return read;
}

headless::PictureFiles& pictures() {
    static headless::PictureFiles read(faces());
    return read;
}

std::string inches(double value) { return std::to_string(value) + "in"; }

val bytesForPage(const std::string& bytes) {
    val array = val::global("Uint8Array").new_(val(bytes.size()));
    array.call<void>("set", val(emscripten::typed_memory_view(
                                bytes.size(), reinterpret_cast<const std::uint8_t*>(bytes.data()))));
    return array;
}

}  // namespace

void printOnPaper(const Form& form) {
    const double wide = std::max(1, form.width) / 1440.0, high = std::max(1, form.height) / 1440.0;
    // The page turns when the form stands larger on it so; a form larger than the page is made smaller.
    const auto fit = [&](double pageWide, double pageHigh) {
        return std::min({1.0, (pageWide - 2 * kMargin) / wide, (pageHigh - 2 * kMargin) / high});
    };
    const bool landscape = fit(kLetterLong, kLetterShort) > fit(kLetterShort, kLetterLong);
    const double shrink = landscape ? fit(kLetterLong, kLetterShort) : fit(kLetterShort, kLetterLong);
    const face::FaceDescription face =
        face::describeFace(form, face::FaceRequest{kPaperDpi / 1440, false, {}}, faces());
    const std::string svg = headless::faceSvg(
        face, {inches(wide * shrink), inches(high * shrink)},
        [](const face::TextFace& text) { return cssFamily(text.name); }, pictures());
    val::global("LwFiles").call<void>("print", svg, landscape);
}

void clipPicture(const Form& form) {
    const std::string path = "/tmp/clip.png";
    if (!headless::drawForm(form)->savePng(path)) return;
    std::ifstream in(path, std::ios::binary);
    const std::string png((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::error_code ec;
    std::filesystem::remove(path, ec);
    val::global("LwFiles").call<void>("clip", bytesForPage(png));
}

bool openInTab(const std::string& path) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec)) return false;
    // The shipped documents stand in the page's own folder under their own names.
    val::global("LwFiles").call<void>("openTab", std::filesystem::path(path).filename().string());
    return true;
}

}  // namespace lw::web
