#include "headless/truetype_faces.h"

#include <stb_truetype.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <optional>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

#include "text/case.h"
#include "text/cp1252.h"

namespace lw::headless {

// A glyph drawn as coverage, from a corner relative to the whole pixel its origin falls in.
struct GlyphCoverage {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    std::vector<unsigned char> coverage;
};

struct TrueTypeFaces::Font {
    std::vector<unsigned char> bytes;
    stbtt_fontinfo info{};
    bool loaded = false;
    bool oblique = false;  // an italic made from the upright face, slanted
    double unitsPerEm = 2048;
    double ascent = 0.8 * 2048;  // in the face's units
    double descent = 0.2 * 2048;
    double lineGap = 0;
    bool wholePixels = false;  // its measures are rounded to whole pixels at each size

    // What a text asks for again and again: the glyph and advance of each character of the code page,
    // the kerning of pairs of glyphs, and the glyphs drawn at a size and a quarter-pixel place.
    std::array<int, 256> glyphs{};
    std::array<int, 256> advances{};
    std::unordered_map<std::uint32_t, int> kerning;
    std::map<std::tuple<int, long, int, int>, GlyphCoverage> drawn;

    int kern(int left, int right) {
        const std::uint32_t pair = std::uint32_t(left) << 16 | std::uint32_t(right & 0xFFFF);
        const auto found = kerning.find(pair);
        if (found != kerning.end()) return found->second;
        return kerning[pair] = stbtt_GetGlyphKernAdvance(&info, left, right);
    }
};

namespace {

const char* const kWineTahoma = "/usr/share/wine/fonts/tahoma.ttf";
const char* const kTrueType = "/usr/share/fonts/truetype/";

// The files of a family: regular, bold, italic, bold italic; empty where the family has none.
struct FamilyFiles {
    std::string regular, bold, italic, boldItalic;
};

FamilyFiles liberation(const std::string& name) {
    const std::string base = std::string(kTrueType) + "liberation/Liberation" + name + "-";
    return {base + "Regular.ttf", base + "Bold.ttf", base + "Italic.ttf", base + "BoldItalic.ttf"};
}

FamilyFiles dejaVuSans() {
    const std::string base = std::string(kTrueType) + "dejavu/DejaVuSans";
    return {base + ".ttf", base + "-Bold.ttf", base + "-Oblique.ttf", base + "-BoldOblique.ttf"};
}

bool exists(const std::string& path) { return std::ifstream(path, std::ios::binary).good(); }

// The metric twins of the faces the forms name; any other face is the system's plain sans.
FamilyFiles familyFiles(const std::string& family) {
    const std::string name = text::toLower(family);
    // Debian's Wine fonts carry a Tahoma of the same metrics as the one the forms were laid out with; its
    // bold face lists no characters, so bold is drawn from the regular face.
    if (name == "tahoma" && exists(kWineTahoma)) return {kWineTahoma, "", "", ""};
    if (name == "arial narrow" || name == "arialnarrow") return liberation("SansNarrow");
    if (name == "arial") return liberation("Sans");
    if (name == "times new roman") return liberation("Serif");
    if (name == "courier new") return liberation("Mono");
    return dejaVuSans();
}

std::vector<unsigned char> readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return {};
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The characters of a text in the code page, as Unicode.
std::vector<int> codePoints(const std::string& cp1252) {
    const std::string utf8 = text::cp1252ToUtf8(cp1252);
    std::vector<int> points;
    for (std::size_t i = 0; i < utf8.size();) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        const int length = byte < 0x80 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
        int point = length == 1 ? byte : byte & (0x3F >> (length - 1));
        for (int k = 1; k < length && i + k < utf8.size(); ++k) point = point << 6 | (utf8[i + k] & 0x3F);
        points.push_back(point);
        i += length;
    }
    return points;
}

std::uint16_t unsignedAt(const unsigned char* at) { return static_cast<std::uint16_t>(at[0] << 8 | at[1]); }
std::int16_t signedAt(const unsigned char* at) { return static_cast<std::int16_t>(unsignedAt(at)); }

std::uint32_t unsignedLongAt(const unsigned char* at) {
    return std::uint32_t(unsignedAt(at)) << 16 | unsignedAt(at + 2);
}

// Where a table of the face's file starts, and how long it is; nothing for a table it lacks.
std::optional<std::pair<std::uint32_t, std::uint32_t>> findTable(const TrueTypeFaces::Font& font,
                                                                 const char* tag) {
    const auto& bytes = font.bytes;
    const auto start = static_cast<std::size_t>(font.info.fontstart);
    if (start + 12 > bytes.size()) return std::nullopt;
    const std::size_t count = unsignedAt(&bytes[start + 4]);
    for (std::size_t i = 0; i < count && start + 12 + 16 * (i + 1) <= bytes.size(); ++i) {
        const unsigned char* record = &bytes[start + 12 + 16 * i];
        if (std::equal(tag, tag + 4, record))
            return std::make_pair(unsignedLongAt(record + 8), unsignedLongAt(record + 12));
    }
    return std::nullopt;
}

// The face's height above and below the baseline and the room between lines, as the font system measures
// them: a face that asks for its typographic measures has them, in whole pixels at each size; any other
// has the heights it gives for Windows and the room between lines of its horizontal header.
void readVerticalMeasures(TrueTypeFaces::Font& font) {
    const unsigned char* bytes = font.bytes.data();
    int headerAscent = 0, headerDescent = 0, headerGap = 0;
    stbtt_GetFontVMetrics(&font.info, &headerAscent, &headerDescent, &headerGap);
    constexpr int kUseTypoMetrics = 0x80;
    const auto table = findTable(font, "OS/2");
    const std::size_t os2 = table ? table->first : 0;
    if (table && table->second >= 78 && os2 + 78 <= font.bytes.size()) {
        const bool typographic = unsignedAt(bytes + os2 + 62) & kUseTypoMetrics;
        font.wholePixels = typographic;
        font.ascent = typographic ? signedAt(bytes + os2 + 68) : unsignedAt(bytes + os2 + 74);
        font.descent = typographic ? -signedAt(bytes + os2 + 70) : unsignedAt(bytes + os2 + 76);
        font.lineGap = typographic ? signedAt(bytes + os2 + 72) : headerGap;
        if (font.ascent + font.descent > 0) return;
    }
    font.ascent = headerAscent;
    font.descent = -headerDescent;
    font.lineGap = headerGap;
}

bool load(TrueTypeFaces::Font& font, const std::string& path) {
    if (path.empty()) return false;
    font.bytes = readFile(path);
    if (font.bytes.empty()) return false;
    const int offset = stbtt_GetFontOffsetForIndex(font.bytes.data(), 0);
    if (offset < 0 || !stbtt_InitFont(&font.info, font.bytes.data(), offset)) return false;
    font.unitsPerEm = 1.0 / stbtt_ScaleForMappingEmToPixels(&font.info, 1.0f);
    readVerticalMeasures(font);
    for (int byte = 0; byte < 256; ++byte) {
        const std::vector<int> point = codePoints(std::string(1, static_cast<char>(byte)));
        font.glyphs[byte] = stbtt_FindGlyphIndex(&font.info, point.empty() ? 0 : point.front());
        int bearing = 0;
        stbtt_GetGlyphHMetrics(&font.info, font.glyphs[byte], &font.advances[byte], &bearing);
    }
    font.loaded = true;
    return true;
}

// How far an italic made from the upright face leans: across for each unit up.
constexpr double kObliqueSlant = 0.2126;

// The outline of a glyph, slanted for an oblique face, drawn as coverage at a scale, its origin moved
// by a part of a pixel; nothing for a glyph with no outline (a blank).
GlyphCoverage rasterizeGlyph(const stbtt_fontinfo& info, int glyph, float scale, double slant, float shiftX,
                             float shiftY) {
    GlyphCoverage result;
    stbtt_vertex* vertices = nullptr;
    const int count = stbtt_GetGlyphShape(&info, glyph, &vertices);
    if (count <= 0) return result;
    const auto lean = [&](stbtt_vertex_type& across, stbtt_vertex_type up) {
        across = static_cast<stbtt_vertex_type>(std::lround(across + slant * up));
    };
    float minX = 1e9f, minY = 1e9f, maxX = -1e9f, maxY = -1e9f;
    const auto take = [&](float x, float y) {
        minX = std::min(minX, x), maxX = std::max(maxX, x), minY = std::min(minY, y),
        maxY = std::max(maxY, y);
    };
    for (int i = 0; i < count; ++i) {
        stbtt_vertex& v = vertices[i];
        lean(v.x, v.y);
        take(v.x, v.y);
        // A curve stays inside the points that steer it.
        if (v.type == STBTT_vcurve || v.type == STBTT_vcubic) {
            lean(v.cx, v.cy);
            take(v.cx, v.cy);
        }
        if (v.type == STBTT_vcubic) {
            lean(v.cx1, v.cy1);
            take(v.cx1, v.cy1);
        }
    }
    const int x0 = static_cast<int>(std::floor(minX * scale + shiftX)),
              x1 = static_cast<int>(std::ceil(maxX * scale + shiftX));
    const int y0 = static_cast<int>(std::floor(-maxY * scale + shiftY)),
              y1 = static_cast<int>(std::ceil(-minY * scale + shiftY));
    result.left = x0;
    result.top = y0;
    result.width = x1 - x0;
    result.height = y1 - y0;
    if (result.width > 0 && result.height > 0) {
        result.coverage.assign(std::size_t(result.width) * result.height, 0);
        stbtt__bitmap bitmap{result.width, result.height, result.width, result.coverage.data()};
        stbtt_Rasterize(&bitmap, 0.35f, vertices, count, scale, scale, shiftX, shiftY, x0, y0, 1, nullptr);
    }
    stbtt_FreeShape(&info, vertices);
    return result;
}

// Glyphs are placed to a quarter of a pixel.
constexpr int kPlaces = 4;

}  // namespace

TrueTypeFaces::TrueTypeFaces() = default;
TrueTypeFaces::~TrueTypeFaces() = default;

TrueTypeFaces::Font& TrueTypeFaces::fontFor(const face::TextFace& face) {
    const std::string key = text::toLower(face.name) + (face.bold ? "/b" : "/-") + (face.italic ? "i" : "-");
    auto& font = fonts_[key];
    if (font) return *font;
    font = std::make_unique<Font>();
    const FamilyFiles files = familyFiles(face.name);
    const std::string& styled = face.bold && face.italic ? files.boldItalic
                                : face.bold              ? files.bold
                                : face.italic            ? files.italic
                                                         : files.regular;
    if (!load(*font, styled)) {
        // A style the family has no file for is drawn from its regular face, which leans for an italic;
        // a bold is as heavy as the regular face, as the window draws it.
        load(*font, files.regular) || load(*font, dejaVuSans().regular);
        font->oblique = face.italic;
    }
    return *font;
}

face::FaceMetrics TrueTypeFaces::metrics(const face::TextFace& face) {
    const Font& font = fontFor(face);
    const double size = face.size;
    const auto measured = [&](double units) {
        const double exact = units * size / font.unitsPerEm;
        return font.wholePixels ? std::ceil(exact) : exact;
    };
    face::FaceMetrics result;
    result.ascent = measured(font.ascent);
    result.descent = measured(font.descent);
    // A face measured in whole pixels rounds its whole line; the room between lines is what is left.
    result.lineSpacing =
        font.wholePixels ? std::round((font.ascent + font.descent + font.lineGap) * size / font.unitsPerEm)
                         : result.height() + font.lineGap * size / font.unitsPerEm;
    return result;
}

double TrueTypeFaces::advance(const face::TextFace& face, std::string_view text) {
    Font& font = fontFor(face);
    if (!font.loaded) return 0.5 * face.size * static_cast<double>(text.size());
    long units = 0;
    int previous = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const int glyph = font.glyphs[byte];
        units += font.advances[byte] + (previous ? font.kern(previous, glyph) : 0);
        previous = glyph;
    }
    return static_cast<double>(units) * face.size / font.unitsPerEm;
}

double TrueTypeFaces::overhang(const face::TextFace& face, std::string_view glyph) {
    // Glyphs never join here, so only the last character of a glyph can reach past the advance.
    Font& font = fontFor(face);
    if (!font.loaded || glyph.empty()) return 0;
    const auto byte = static_cast<unsigned char>(glyph.back());
    int x0 = 0, y0 = 0, x1 = 0, y1 = 0;
    if (!stbtt_GetGlyphBox(&font.info, font.glyphs[byte], &x0, &y0, &x1, &y1)) return 0;
    // An oblique face leans its top to the right.
    const double reach = x1 + (font.oblique ? kObliqueSlant * std::max(0, y1) : 0.0);
    return std::max(0.0, reach - font.advances[byte]) * face.size / font.unitsPerEm;
}

bool TrueTypeFaces::joins(const face::TextFace&, char, char) { return false; }

void TrueTypeFaces::draw(RasterImage& image, const face::TextFace& face, double pixelSize,
                         face::PointF baseline, std::string_view text, Color colour,
                         const PixelBounds& clip) {
    Font& font = fontFor(face);
    if (!font.loaded || pixelSize <= 0) return;
    const float scale = stbtt_ScaleForMappingEmToPixels(&font.info, static_cast<float>(pixelSize));
    const long size = std::lround(pixelSize * 64);
    const double y = baseline.y;
    const int placeY = static_cast<int>(std::lround((y - std::floor(y)) * kPlaces));
    double x = baseline.x;
    int previous = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const int glyph = font.glyphs[byte];
        if (previous) x += font.kern(previous, glyph) * scale;
        previous = glyph;
        const int placeX = static_cast<int>(std::lround((x - std::floor(x)) * kPlaces));
        auto [found, fresh] = font.drawn.try_emplace({glyph, size, placeX, placeY});
        if (fresh)
            found->second = rasterizeGlyph(font.info, glyph, scale, font.oblique ? kObliqueSlant : 0,
                                           float(placeX) / kPlaces, float(placeY) / kPlaces);
        const GlyphCoverage& drawn = found->second;
        const int left = static_cast<int>(std::floor(x)) + drawn.left,
                  top = static_cast<int>(std::floor(y)) + drawn.top;
        for (int gy = 0; gy < drawn.height; ++gy)
            for (int gx = 0; gx < drawn.width; ++gx)
                image.blend(left + gx, top + gy, colour,
                            drawn.coverage[std::size_t(gy) * drawn.width + gx] / 255.0, clip);
        x += font.advances[byte] * scale;
    }
}

}  // namespace lw::headless
