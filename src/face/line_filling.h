#pragma once
// Lines filled with words, as wide as a width allows: the breaking of a text laid out in lines.

#include <string>
#include <vector>

#include "face/text_layout.h"
#include "face/text_measure.h"

namespace lw::face {

// The lines of a Windows-1252 text (its paragraphs ended by line feeds) broken to `width`: between words,
// where the line breaking rules allow inside them, and inside a word too long for a line when
// `insideLongWords`. Each line holds its text without the blanks that end it, and its width.
std::vector<TextLine> fillLines(const std::string& text, const TextFace& face, double width,
                                bool insideLongWords, TextMeasure& measure);

}  // namespace lw::face
