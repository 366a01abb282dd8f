#include "headless/page_pdf.h"

#include <stb_image_write.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace lw::headless {

namespace {

// A text string of the file: its brackets and backslashes escaped.
std::string pdfString(const std::string& text) {
    std::string quoted = "(";
    for (const char c : text) {
        if (c == '(' || c == ')' || c == '\\') quoted += '\\';
        quoted += c;
    }
    return quoted + ")";
}

std::uint32_t bigEndian(const std::string& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

// The picture's rows compressed as a PNG file holds them (each row led by its filter's number), which a
// PDF reads as they are: the data of the file's IDAT chunks, one after the other.
std::string compressedRows(const RasterImage& picture) {
    std::string png;
    const auto append = [](void* to, void* data, int size) {
        static_cast<std::string*>(to)->append(static_cast<const char*>(data), std::size_t(size));
    };
    if (!stbi_write_png_to_func(append, &png, picture.width(), picture.height(), 3, picture.rgb().data(),
                                picture.width() * 3))
        return {};
    std::string rows;
    for (std::size_t at = 8; at + 12 <= png.size();) {
        const std::size_t length = bigEndian(png, at);
        if (at + 12 + length > png.size()) return {};
        if (png.compare(at + 4, 4, "IDAT") == 0) rows.append(png, at + 8, length);
        at += 12 + length;
    }
    return rows;
}

}  // namespace

bool writePagePdf(const std::string& path, const RasterImage& page, double widthPoints, double heightPoints,
                  const std::string& title) {
    const std::string pixels = compressedRows(page);
    if (pixels.empty()) return false;

    char size[64];
    std::snprintf(size, sizeof size, "%.2f %.2f", widthPoints, heightPoints);
    // The picture, a unit square, stretched over the page.
    char content[96];
    std::snprintf(content, sizeof content, "q %.2f 0 0 %.2f 0 0 cm /Page Do Q\n", widthPoints, heightPoints);
    const std::string contents = content;

    std::vector<std::string> objects = {
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        std::string("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 ") + size +
            "] /Resources << /XObject << /Page 5 0 R >> >> /Contents 4 0 R >>",
        "<< /Length " + std::to_string(contents.size()) + " >>\nstream\n" + contents + "endstream",
        "<< /Type /XObject /Subtype /Image /Width " + std::to_string(page.width()) + " /Height " +
            std::to_string(page.height()) +
            " /ColorSpace /DeviceRGB /BitsPerComponent 8 /Filter /FlateDecode" +
            " /DecodeParms << /Predictor 15 /Colors 3 /BitsPerComponent 8 /Columns " +
            std::to_string(page.width()) + " >>" + " /Length " + std::to_string(pixels.size()) +
            " >>\nstream\n" + pixels + "\nendstream",
        "<< /Title " + pdfString(title) + " /Producer (Ledgerwick) >>",
    };
    std::ostringstream file;
    file << "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
    std::vector<std::size_t> offsets;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        offsets.push_back(static_cast<std::size_t>(file.tellp()));
        file << i + 1 << " 0 obj\n" << objects[i] << "\nendobj\n";
    }
    const auto table = static_cast<std::size_t>(file.tellp());
    file << "xref\n0 " << objects.size() + 1 << "\n0000000000 65535 f \n";
    for (const std::size_t offset : offsets) {
        char entry[24];
        std::snprintf(entry, sizeof entry, "%010zu 00000 n \n", offset);
        file << entry;
    }
    file << "trailer\n<< /Size " << objects.size() + 1 << " /Root 1 0 R /Info " << objects.size()
         << " 0 R >>\nstartxref\n"
         << table << "\n%%EOF\n";
    std::ofstream out(path, std::ios::binary);
    out << file.str();
    return static_cast<bool>(out.flush());
}

}  // namespace lw::headless
