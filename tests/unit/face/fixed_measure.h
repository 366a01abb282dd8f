#pragma once
// A measure of text with fixed widths, so that a test knows where every line breaks and every run
// stands: each character is `letter` units wide at a face's size of 100 (a blank `blank` units), and
// every measure grows with the size of the face.

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
    // Every text measured, in order.
    std::vector<std::string> measured;

    FaceMetrics metrics(const TextFace& face) override {
        const double unit = face.size / 100.0;
        return FaceMetrics{80 * unit, 20 * unit, 120 * unit, lean * unit};
    }
    double advance(const TextFace& face, std::string_view text) override {
        measured.emplace_back(text);
        double units = 0;
        for (char c : text) units += c == ' ' ? blank : letter;
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
