#include "ui/qt_text_measure.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QTextLayout>
#include <array>
#include <bitset>
#include <memory>
#include <string>
#include <unordered_map>

#include "ui/form_painter.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

// Which pairs of characters a face draws as one glyph, found out a pair at a time.
class Ligatures {
public:
    bool joins(const QFont& font, char first, char second) {
        const std::size_t pair = static_cast<unsigned char>(first) << 8 | static_cast<unsigned char>(second);
        if (!known_[pair]) {
            known_[pair] = true;
            QTextLayout layout(toQString(std::string{first, second}), font);
            layout.beginLayout();
            layout.createLine();
            layout.endLayout();
            qsizetype glyphs = 0;
            for (const QGlyphRun& run : layout.glyphRuns()) glyphs += run.glyphIndexes().size();
            joined_[pair] = glyphs == 1;
        }
        return joined_[pair];
    }

private:
    std::bitset<65536> known_;
    std::bitset<65536> joined_;
};

// Everything measured of one face that is asked for again and again, kept for as long as the program
// runs: its characters one by one and the pairs it draws as one glyph. Longer texts are measured afresh;
// the engine keeps what it measures while it lays out a form.
class MeasuredFace {
public:
    explicit MeasuredFace(const QFont& made) : font(made), measures_(made) {
        vertical.ascent = measures_.ascent();
        vertical.descent = measures_.descent();
        vertical.lineSpacing = measures_.lineSpacing();
        vertical.overhangBound = std::max(0.0, -measures_.minRightBearing());
        letters_.fill(-1);
        overhangs_.fill(-1);
    }

    QFont font;
    face::FaceMetrics vertical;

    double advance(std::string_view text) {
        if (text.size() == 1) {
            double& known = letters_[static_cast<unsigned char>(text.front())];
            if (known < 0) known = measures_.horizontalAdvance(toQString(std::string(text)));
            return known;
        }
        return measures_.horizontalAdvance(toQString(std::string(text)));
    }

    double overhang(std::string_view glyph) {
        if (glyph.size() == 1) {
            double& known = overhangs_[static_cast<unsigned char>(glyph.front())];
            if (known < 0)
                known = std::max(0.0, -measures_.rightBearing(toQString(std::string(glyph)).front()));
            return known;
        }
        // A glyph of several characters: how much wider a line of it is than its advance.
        const std::string key(glyph);
        if (const auto found = glyphOverhangs_.find(key); found != glyphOverhangs_.end())
            return found->second;
        QTextLayout layout(toQString(key), font);
        QTextOption option;
        option.setUseDesignMetrics(true);
        layout.setTextOption(option);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(1e6);
        const double natural = line.naturalTextWidth();
        layout.endLayout();
        const double ink = std::max(0.0, natural - measures_.horizontalAdvance(toQString(key)));
        glyphOverhangs_.emplace(key, ink);
        return ink;
    }

    // Each place where a line's characters stand after those before them, the line laid out whole as the
    // text engine lays out a paragraph. A clip or a print lays out the same captions again, so the lines
    // measured last are kept, up to a bound past which they are forgotten at once.
    const std::vector<double>& caretPositions(std::string_view line) {
        std::string key(line);
        if (const auto found = lines_.find(key); found != lines_.end()) return found->second;
        if (lines_.size() >= kKeptLines) lines_.clear();
        std::vector<double> places = layOut(key);
        return lines_.emplace(std::move(key), std::move(places)).first->second;
    }

    // The pairs drawn as one glyph are the same at every size of a face: they are shared by its sizes.
    std::shared_ptr<Ligatures> ligatures;

private:
    static constexpr std::size_t kKeptLines = 128;

    std::vector<double> layOut(const std::string& line) const {
        const QString text = toQString(line);
        QTextLayout layout(text, font);
        QTextOption option;
        option.setWrapMode(QTextOption::NoWrap);
        option.setUseDesignMetrics(true);
        layout.setTextOption(option);
        layout.beginLayout();
        QTextLine laid = layout.createLine();
        laid.setLineWidth(1e9);
        layout.endLayout();
        std::vector<double> places(line.size() + 1, 0.0);
        for (int i = 1; i <= text.size(); ++i) places[static_cast<std::size_t>(i)] = laid.cursorToX(i);
        return places;
    }

    std::unordered_map<std::string, std::vector<double>> lines_;
    QFontMetricsF measures_;
    std::array<double, 256> letters_;
    std::array<double, 256> overhangs_;
    std::unordered_map<std::string, double> glyphOverhangs_;
};

struct FaceKeyHash {
    std::size_t operator()(const face::TextFace& face) const {
        return std::hash<std::string>{}(face.name) ^ (static_cast<std::size_t>(face.size) << 3) ^
               (face.bold ? 1u : 0u) ^ (face.italic ? 2u : 0u);
    }
};

std::shared_ptr<Ligatures> ligaturesOf(const face::TextFace& face) {
    static std::unordered_map<std::string, std::shared_ptr<Ligatures>> variants;
    std::shared_ptr<Ligatures>& kept =
        variants[face.name + (face.bold ? "/bold" : "/") + (face.italic ? "/italic" : "/")];
    if (!kept) kept = std::make_shared<Ligatures>();
    return kept;
}

std::unique_ptr<MeasuredFace> made(const face::TextFace& face) {
    installFontSubstitutes();
    QFont font(toQString(face.name));
    // Unhinted outlines measure the same at every size, so the lines laid out with them keep their widths
    // on any screen or printer.
    font.setPixelSize(std::max(1, face.size));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::ForceOutline);
    font.setBold(face.bold);
    font.setItalic(face.italic);
    auto measured = std::make_unique<MeasuredFace>(font);
    measured->ligatures = ligaturesOf(face);
    return measured;
}

MeasuredFace& measured(const face::TextFace& face) {
    // Text is measured a face at a time: the face measured last is looked for first.
    static face::TextFace lastFace;
    static MeasuredFace* last = nullptr;
    if (last && face == lastFace) return *last;
    static std::unordered_map<face::TextFace, std::unique_ptr<MeasuredFace>, FaceKeyHash> faces;
    auto found = faces.find(face);
    if (found == faces.end()) found = faces.emplace(face, made(face)).first;
    lastFace = face;
    last = found->second.get();
    return *last;
}

}  // namespace

QFont qtFont(const face::TextFace& face) { return measured(face).font; }

face::FaceMetrics QtTextMeasure::metrics(const face::TextFace& face) { return measured(face).vertical; }

double QtTextMeasure::advance(const face::TextFace& face, std::string_view text) {
    return measured(face).advance(text);
}

std::vector<double> QtTextMeasure::caretPositions(const face::TextFace& face, std::string_view line) {
    return measured(face).caretPositions(line);
}

double QtTextMeasure::overhang(const face::TextFace& face, std::string_view glyph) {
    return measured(face).overhang(glyph);
}

bool QtTextMeasure::joins(const face::TextFace& face, char first, char second) {
    MeasuredFace& kept = measured(face);
    return kept.ligatures->joins(kept.font, first, second);
}

QtTextMeasure& qtTextMeasure() {
    static QtTextMeasure measure;
    return measure;
}

}  // namespace lw::ui
