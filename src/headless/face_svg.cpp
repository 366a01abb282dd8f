#include "headless/face_svg.h"

#include <cstdio>
#include <sstream>

#include "text/cp1252.h"

namespace lw::headless {

namespace {

std::string number(double value) {
    char out[32];
    std::snprintf(out, sizeof out, "%.3f", value);
    std::string text = out;
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string colour(Color c) {
    char name[8];
    std::snprintf(name, sizeof name, "#%02X%02X%02X", redOf(c), greenOf(c), blueOf(c));
    return name;
}

// Text of the face (Windows-1252) as the characters of an XML document.
std::string xmlText(const std::string& cp1252) {
    std::string out;
    for (char c : text::cp1252ToUtf8(cp1252)) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            default:
                if (static_cast<unsigned char>(c) >= 0x20) out.push_back(c);
        }
    }
    return out;
}

// The on and off lengths of a pen's style, in widths of the pen, as the raster painter strokes them.
std::string dashArray(face::StrokeStyle style, int width) {
    switch (style) {
        case face::StrokeStyle::Dash:
            return number(4.0 * width) + " " + number(2.0 * width);
        case face::StrokeStyle::Dot:
            return number(1.0 * width) + " " + number(2.0 * width);
        default:
            return "";
    }
}

std::string rectAttributes(double x, double y, double width, double height) {
    return "x=\"" + number(x) + "\" y=\"" + number(y) + "\" width=\"" + number(width) + "\" height=\"" +
           number(height) + "\"";
}

class SvgWriter {
public:
    SvgWriter(std::ostringstream& out, const SvgFamilyOf& familyOf, PictureFiles& pictures)
        : out_(out), familyOf_(familyOf), pictures_(pictures) {}

    void operator()(const face::FillItem& fill) {
        out_ << "<rect " << rectAttributes(fill.rect.x, fill.rect.y, fill.rect.width, fill.rect.height)
             << " fill=\"" << colour(fill.color) << "\"/>\n";
    }

    // A border lies wholly inside its rectangle: its stroke runs along the middle of its band.
    void operator()(const face::BorderItem& border) {
        const double h = border.width / 2.0;
        const face::Rect& r = border.rect;
        out_ << "<rect " << rectAttributes(r.x + h, r.y + h, r.width - border.width, r.height - border.width)
             << " fill=\"none\"" << stroke(border.color, border.width, border.style, "butt") << "/>\n";
    }

    // A line joins the middles of two pixels, squared off beyond them.
    void operator()(const face::LineItem& line) {
        const bool solid = line.style == face::StrokeStyle::Solid;
        out_ << "<line x1=\"" << number(line.from.x + 0.5) << "\" y1=\"" << number(line.from.y + 0.5)
             << "\" x2=\"" << number(line.to.x + 0.5) << "\" y2=\"" << number(line.to.y + 0.5) << "\""
             << stroke(line.color, line.width, line.style, solid ? "square" : "butt") << "/>\n";
    }

    void operator()(const face::EllipseItem& e) {
        out_ << "<ellipse cx=\"" << number(e.rect.x + e.rect.width / 2) << "\" cy=\""
             << number(e.rect.y + e.rect.height / 2) << "\" rx=\"" << number(e.rect.width / 2) << "\" ry=\""
             << number(e.rect.height / 2) << "\" fill=\"" << colour(e.fill) << "\"";
        if (e.outline) out_ << stroke(*e.outline, e.outlineWidth, face::StrokeStyle::Solid, "butt");
        out_ << "/>\n";
    }

    void operator()(const face::PolygonItem& polygon) {
        out_ << "<polygon points=\"";
        for (const face::Point& corner : polygon.points)
            out_ << number(corner.x + 0.5) << "," << number(corner.y + 0.5) << " ";
        out_ << "\" fill=\"" << colour(polygon.color) << "\"/>\n";
    }

    // A picture is painted by the raster painter into its own place and embedded as a PNG.
    void operator()(const face::PictureItem& picture) {
        const face::Rect& place = picture.place;
        if (place.width <= 0 || place.height <= 0) return;
        RasterImage image(place.width, place.height, kWhite);
        face::PictureItem moved = picture;
        moved.place.x = 0;
        moved.place.y = 0;
        pictures_.draw(image, moved, image.bounds());
        const std::vector<std::uint8_t> png = image.pngBytes();
        if (png.empty()) return;
        out_ << "<image " << rectAttributes(place.x, place.y, place.width, place.height)
             << " preserveAspectRatio=\"none\" href=\"" << pngDataUrl(png) << "\"/>\n";
    }

    void operator()(const face::TextItem& text) {
        const face::RectF& own = text.clip;
        const std::string clip =
            openClip(text.origin.x + own.x * text.scale, text.origin.y + own.y * text.scale,
                     own.width * text.scale, own.height * text.scale);
        out_ << "<g clip-path=\"url(#" << clip << ")\" font-family=\"" << familyOf_(text.face)
             << "\" font-size=\"" << number(text.pixelSize()) << "\"";
        if (text.face.bold) out_ << " font-weight=\"bold\"";
        if (text.face.italic) out_ << " font-style=\"italic\"";
        out_ << " fill=\"" << colour(text.color) << "\">\n";
        for (const face::TextRun& run : text.runs) {
            if (run.text.empty()) continue;
            const face::PointF at = text.placeOf(run);
            out_ << "<text x=\"" << number(at.x) << "\" y=\"" << number(at.y) << "\">" << xmlText(run.text)
                 << "</text>\n";
        }
        out_ << "</g>\n";
    }

    void operator()(const face::ClipItem& item) {
        out_ << "<g clip-path=\"url(#"
             << openClip(item.area.x, item.area.y, item.area.width, item.area.height) << ")\">\n";
        ++openGroups_;
    }

    void operator()(const face::EndClipItem&) {
        if (openGroups_ == 0) return;
        out_ << "</g>\n";
        --openGroups_;
    }

    void closeGroups() {
        for (; openGroups_ > 0; --openGroups_) out_ << "</g>\n";
    }

private:
    std::string stroke(Color c, int width, face::StrokeStyle style, const char* cap) const {
        std::string attributes = " stroke=\"" + colour(c) + "\" stroke-width=\"" + number(width) +
                                 "\" stroke-linecap=\"" + cap + "\"";
        const std::string dashes = dashArray(style, width);
        if (!dashes.empty()) attributes += " stroke-dasharray=\"" + dashes + "\"";
        return attributes;
    }

    std::string openClip(double x, double y, double width, double height) {
        const std::string id = "c" + std::to_string(++clips_);
        out_ << "<clipPath id=\"" << id << "\"><rect " << rectAttributes(x, y, width, height)
             << "/></clipPath>\n";
        return id;
    }

    std::ostringstream& out_;
    const SvgFamilyOf& familyOf_;
    PictureFiles& pictures_;
    int clips_ = 0;
    int openGroups_ = 0;
};

}  // namespace

std::string pngDataUrl(const std::vector<std::uint8_t>& png) {
    static const char* const digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out = "data:image/png;base64,";
    for (std::size_t i = 0; i < png.size(); i += 3) {
        const std::uint32_t chunk = (std::uint32_t(png[i]) << 16) |
                                    (i + 1 < png.size() ? std::uint32_t(png[i + 1]) << 8 : 0) |
                                    (i + 2 < png.size() ? std::uint32_t(png[i + 2]) : 0);
        out.push_back(digits[(chunk >> 18) & 63]);
        out.push_back(digits[(chunk >> 12) & 63]);
        out.push_back(i + 1 < png.size() ? digits[(chunk >> 6) & 63] : '=');
        out.push_back(i + 2 < png.size() ? digits[chunk & 63] : '=');
    }
    return out;
}

std::string faceSvg(const face::FaceDescription& face, const SvgSize& size, const SvgFamilyOf& familyOf,
                    PictureFiles& pictures) {
    std::ostringstream out;
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << size.width << "\" height=\"" << size.height
        << "\" viewBox=\"0 0 " << face.size.width << " " << face.size.height
        << "\" xml:space=\"preserve\" style=\"white-space:pre\">\n";
    const face::Rect whole = face.area ? *face.area : face::Rect{0, 0, face.size.width, face.size.height};
    out << "<clipPath id=\"face\"><rect " << rectAttributes(whole.x, whole.y, whole.width, whole.height)
        << "/></clipPath>\n<g clip-path=\"url(#face)\">\n";
    out << "<rect " << rectAttributes(whole.x, whole.y, whole.width, whole.height) << " fill=\""
        << colour(face.ground) << "\"/>\n";
    SvgWriter writer(out, familyOf, pictures);
    for (const face::FacePiece& piece : face.pieces) {
        if (face.area && !piece.extent.intersects(*face.area)) continue;
        for (const face::FaceItem& item : piece.items) std::visit(writer, item);
        writer.closeGroups();
    }
    out << "</g>\n</svg>\n";
    return out.str();
}

}  // namespace lw::headless
