#pragma once
// A measure of text with fixed widths, so that a test knows where every line breaks and every run
// stands: each character is `letter` units wide at a face's size of 100 (a blank `blank` units), and
// every measure grows with the size of the face.

#include <map>
#include <string>
#include <vector>

#include "face/text_measure.h"

namespace lw::face::testing {

class FixedMeasure : public TextMeasure {
public:
    double letter = 100;
    double blank = 50;
    // Letters whose ink reaches this far past their advance, and pairs drawn as one glyph.
    std::string leaning;
    double lean = 0;
    std::vector<std::string> ligatures;
    // Pairs whose first character's advance changes when the second follows it, and by how much.
    std::map<std::string, double> kerning;
    // Every text measured, in order.
    std::vector<std::string> measured;

    FaceMetrics metrics(const TextFace& face) override {
        const double unit = face.size / 100.0;
        return FaceMetrics{80 * unit, 20 * unit, 120 * unit, lean * unit};
    }
    double advance(const TextFace& face, std::string_view text) override {
        measured.emplace_back(text);
        double units = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            units += text[i] == ' ' ? blank : letter;
            if (i + 1 < text.size())
                if (const auto kerned = kerning.find(std::string(text.substr(i, 2))); kerned != kerning.end())
                    units += kerned->second;
        }
        return units * face.size / 100.0;
    }
    double overhang(const TextFace& face, std::string_view glyph) override {
        return leaning.find(glyph.back()) != std::string::npos ? lean * face.size / 100.0 : 0;
    }
    bool joins(const TextFace&, char first, char second) override {
        for (const std::string& pair : ligatures)
            if (pair[0] == first && pair[1] == second) return true;
        return false;
    }
};

}  // namespace lw::face::testing
