#include "headless/picture_files.h"

#include <stb_image.h>

#include <algorithm>
#include <cmath>
#include <fstream>

#include "text/case.h"
#include "text/cp1252.h"

namespace lw::headless {

namespace {

constexpr Color rgb(int r, int g, int b) { return Color(r) | Color(g) << 8 | Color(b) << 16; }

// A path the program holds: the file system's own bytes when such a file exists, else code page text.
std::string filePath(const std::string& name) {
    if (std::ifstream(name, std::ios::binary).good()) return name;
    return text::cp1252ToUtf8(name);
}

std::optional<DecodedPicture> decode(const std::string& path) {
    int width = 0, height = 0, channels = 0;
    unsigned char* pixels = stbi_load(path.c_str(), &width, &height, &channels, 3);
    if (!pixels) return std::nullopt;
    DecodedPicture picture{width, height,
                           std::vector<std::uint8_t>(pixels, pixels + std::size_t(width) * height * 3)};
    stbi_image_free(pixels);
    return picture;
}

// The icons' own looks: a round blue sign, a yellow warning triangle, a round red stop.
struct IconLook {
    bool triangle;
    Color ground;
    Color mark;
    const char* sign;
};

std::optional<IconLook> iconLook(const std::string& name) {
    const std::string key = text::toLower(name);
    if (key == "information") return IconLook{false, rgb(0x25, 0x6F, 0xC9), rgb(0xFF, 0xFF, 0xFF), "i"};
    if (key == "question") return IconLook{false, rgb(0x25, 0x6F, 0xC9), rgb(0xFF, 0xFF, 0xFF), "?"};
    if (key == "exclamation" || key == "warning")
        return IconLook{true, rgb(0xF5, 0xC2, 0x18), rgb(0x20, 0x20, 0x20), "!"};
    if (key == "critical") return IconLook{false, rgb(0xD2, 0x2B, 0x2B), rgb(0xFF, 0xFF, 0xFF), "x"};
    return std::nullopt;
}

}  // namespace

const DecodedPicture* PictureFiles::file(const std::string& name) {
    if (const auto found = read_.find(name); found != read_.end()) return &found->second;
    auto picture = decode(filePath(name));
    if (!picture) return nullptr;
    return &read_.emplace(name, std::move(*picture)).first->second;
}

void PictureFiles::draw(RasterImage& image, const face::PictureItem& picture, const PixelBounds& clip) {
    const face::Rect& area = picture.place;
    // Nothing of a picture shows outside its place.
    const PixelBounds within = clip.intersected(image.bounds(area));
    if (const DecodedPicture* decoded = file(picture.source)) {
        const face::RectF target =
            picture.ownSize
                ? face::RectF{double(area.x), double(area.y), std::round(decoded->width * picture.pixelScale),
                              std::round(decoded->height * picture.pixelScale)}
                : face::RectF{double(area.x), double(area.y), double(area.width), double(area.height)};
        image.drawPicture(*decoded, target, within);
        return;
    }
    const int side = std::min(area.width, area.height);
    drawIcon(image, picture.source, {area.x, area.y, side, side}, within);
}

bool PictureFiles::drawIcon(RasterImage& image, const std::string& name, const face::Rect& square,
                            const PixelBounds& clip) {
    const auto look = iconLook(name);
    if (!look || square.isEmpty()) return false;
    const double side = square.width, cx = square.x + side / 2, cy = square.y + side / 2;
    if (look->triangle) {
        image.fillCovered(square, look->ground, clip, [&](double x, double y) {
            const double top = square.y + side * 0.08, bottom = square.y + side * 0.92;
            const double half = (y - top) / (bottom - top) * side * 0.46;
            return y >= top && y <= bottom && std::abs(x - cx) <= half;
        });
    } else {
        const double radius = side * 0.46;
        image.fillCovered(square, look->ground, clip, [&](double x, double y) {
            return (x - cx) * (x - cx) + (y - cy) * (y - cy) <= radius * radius;
        });
    }
    // The sign in the middle, in a heavy plain face.
    const double size = side * (look->triangle ? 0.5 : 0.6);
    const face::TextFace signFace{"DejaVu Sans", std::max(1, static_cast<int>(std::lround(size))), true,
                                  false};
    const double width = faces_.advance(signFace, look->sign) * size / signFace.size;
    const double baseline = (look->triangle ? square.y + side * 0.84 : cy + size * 0.36);
    faces_.draw(image, signFace, size, {cx - width / 2, baseline}, look->sign, look->mark, clip);
    return true;
}

}  // namespace lw::headless
