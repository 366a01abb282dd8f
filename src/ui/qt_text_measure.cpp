#include "ui/qt_text_measure.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QTextLayout>
#include <array>
#include <memory>
#include <string>
#include <unordered_map>

#include "ui/form_painter.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

// Everything measured of one face, kept for as long as the program runs; the advances of texts only
// up to a bound, past which they are measured afresh.
struct MeasuredFace {
    explicit MeasuredFace(const QFont& made) : font(made), measures(made) {
        vertical.ascent = measures.ascent();
        vertical.descent = measures.descent();
        vertical.lineSpacing = measures.lineSpacing();
        overhangs.fill(-1);
    }
    QFont font;
    QFontMetricsF measures;
    face::FaceMetrics vertical;
    std::array<double, 256> overhangs;
    std::unordered_map<std::string, double> advances;
    std::unordered_map<std::uint16_t, bool> joined;  // by the two characters
    std::unordered_map<std::string, double> glyphOverhangs;
};

constexpr std::size_t kMostAdvancesKept = 20000;

struct FaceKeyHash {
    std::size_t operator()(const face::TextFace& face) const {
        return std::hash<std::string>{}(face.name) ^ (static_cast<std::size_t>(face.size) << 3) ^
               (face.bold ? 1u : 0u) ^ (face.italic ? 2u : 0u);
    }
};

MeasuredFace& measured(const face::TextFace& face) {
    static std::unordered_map<face::TextFace, std::unique_ptr<MeasuredFace>, FaceKeyHash> faces;
    auto found = faces.find(face);
    if (found == faces.end()) {
        installFontSubstitutes();
        QFont font(toQString(face.name));
        // Unhinted outlines measure the same at every size, so the lines laid out with them keep their
        // widths on any screen or printer.
        font.setPixelSize(std::max(1, face.size));
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setStyleStrategy(QFont::ForceOutline);
        font.setBold(face.bold);
        font.setItalic(face.italic);
        found = faces.emplace(face, std::make_unique<MeasuredFace>(font)).first;
    }
    return *found->second;
}

}  // namespace

QFont qtFont(const face::TextFace& face) { return measured(face).font; }

face::FaceMetrics QtTextMeasure::metrics(const face::TextFace& face) { return measured(face).vertical; }

double QtTextMeasure::advance(const face::TextFace& face, std::string_view text) {
    MeasuredFace& kept = measured(face);
    std::string key(text);
    if (const auto found = kept.advances.find(key); found != kept.advances.end()) return found->second;
    const double width = kept.measures.horizontalAdvance(toQString(key));
    if (kept.advances.size() >= kMostAdvancesKept) kept.advances.clear();
    kept.advances.emplace(std::move(key), width);
    return width;
}

double QtTextMeasure::overhang(const face::TextFace& face, std::string_view glyph) {
    MeasuredFace& kept = measured(face);
    if (glyph.size() == 1) {
        double& known = kept.overhangs[static_cast<unsigned char>(glyph.front())];
        if (known < 0)
            known = std::max(0.0, -kept.measures.rightBearing(toQString(std::string(glyph)).front()));
        return known;
    }
    // A glyph of several characters: how much wider a line of it is than its advance.
    const std::string key(glyph);
    if (const auto found = kept.glyphOverhangs.find(key); found != kept.glyphOverhangs.end())
        return found->second;
    QTextLayout layout(toQString(key), kept.font);
    QTextOption option;
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1e6);
    const double natural = line.naturalTextWidth();
    layout.endLayout();
    const double ink = std::max(0.0, natural - kept.measures.horizontalAdvance(toQString(key)));
    kept.glyphOverhangs.emplace(key, ink);
    return ink;
}

bool QtTextMeasure::joins(const face::TextFace& face, char first, char second) {
    MeasuredFace& kept = measured(face);
    const auto pair = static_cast<std::uint16_t>(static_cast<unsigned char>(first) << 8 |
                                                 static_cast<unsigned char>(second));
    if (const auto found = kept.joined.find(pair); found != kept.joined.end()) return found->second;
    QTextLayout layout(toQString(std::string{first, second}), kept.font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    qsizetype glyphs = 0;
    for (const QGlyphRun& run : layout.glyphRuns()) glyphs += run.glyphIndexes().size();
    const bool one = glyphs == 1;
    kept.joined.emplace(pair, one);
    return one;
}

QtTextMeasure& qtTextMeasure() {
    static QtTextMeasure measure;
    return measure;
}

}  // namespace lw::ui
