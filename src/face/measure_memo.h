#pragma once
// A measure that remembers the advances and places it was asked for, for as long as one piece of work lasts:
// the texts of a form repeat their words, and a text that shrinks to fit is laid out many times over.

#include <string>
#include <unordered_map>

#include "face/text_measure.h"

namespace lw::face {

class MeasureMemo : public TextMeasure {
public:
    explicit MeasureMemo(TextMeasure& measure) : measure_(measure) {}

    FaceMetrics metrics(const TextFace& face) override { return measure_.metrics(face); }
    double advance(const TextFace& face, std::string_view text) override;
    std::vector<double> caretPositions(const TextFace& face, std::string_view line) override;
    double overhang(const TextFace& face, std::string_view glyph) override {
        return measure_.overhang(face, glyph);
    }
    bool joins(const TextFace& face, char first, char second) override {
        return measure_.joins(face, first, second);
    }

private:
    struct Kept {
        std::unordered_map<std::string, double> advances;
        std::unordered_map<std::string, std::vector<double>> places;
    };
    Kept& keptOf(const TextFace& face);

    TextMeasure& measure_;
    std::unordered_map<std::string, Kept> faces_;  // by the face's name, size and style
    TextFace lastFace_;                            // the face asked for last, and what is kept of it
    Kept* last_ = nullptr;
};

}  // namespace lw::face
