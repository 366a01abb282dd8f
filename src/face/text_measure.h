#pragma once
// How wide and tall text is: the one thing the engine asks of a front end to lay out a form's text.
// Each front end measures with the faces it draws with; the engine places every line from these
// measures alone, so that the lines break and stand alike wherever the same faces are measured.

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "model/control.h"

namespace lw::face {

// A face at a size: its name as a form names it (the front end finds the face it stands for), and the
// height of its letters' em in the units of the text laid out in it.
struct TextFace {
    std::string name;
    int size = 0;
    bool bold = false;
    bool italic = false;

    bool operator==(const TextFace& other) const {
        return size == other.size && bold == other.bold && italic == other.italic && name == other.name;
    }
    bool operator!=(const TextFace& other) const { return !(*this == other); }
};

// The face a form's text is laid out in, in twips: a point is twenty.
TextFace designFace(const std::string& name, double points, bool bold, bool italic);
TextFace designFace(const Control& control);

// The vertical measures of a face, in its units.
struct FaceMetrics {
    double ascent = 0;
    double descent = 0;
    double lineSpacing = 0;  // from one baseline to the next
    // The farthest the ink of any glyph of the face reaches past its advance: a line shorter than its
    // room by more than this fits whatever its last glyph. Not known, the ink of every line's last glyph
    // is looked at.
    double overhangBound = std::numeric_limits<double>::infinity();
    double height() const { return ascent + descent; }
};

class TextMeasure {
public:
    virtual ~TextMeasure() = default;
    virtual FaceMetrics metrics(const TextFace& face) = 0;
    // The advance of a line of Windows-1252 text in the face: where the next character would start.
    virtual double advance(const TextFace& face, std::string_view text) = 0;
    // Where each character of a line of text starts, and where the line ends: as many places as the line
    // has characters, and one more. A character's advance is as it stands in the line, kerned against the
    // one after it; the characters of one glyph (see joins()) share its advance. Measured here from the
    // advances of the line's beginnings, which a front end that lays a line out whole does better.
    virtual std::vector<double> caretPositions(const TextFace& face, std::string_view line);
    // How far the ink of a glyph reaches past its advance, or 0 where it stays within it: a character,
    // or the characters a face draws as one glyph (see joins()).
    virtual double overhang(const TextFace& face, std::string_view glyph) = 0;
    // Whether two characters side by side are drawn as one glyph, as a face may draw "fi": a word broken
    // between its characters is never broken between these.
    virtual bool joins(const TextFace& face, char first, char second) = 0;
};

}  // namespace lw::face
