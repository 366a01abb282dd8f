#include "face/line_filling.h"

#include "face/line_breaks.h"

namespace lw::face {

namespace {

// One line of a paragraph: its text runs from `start` to `end`; the next line starts at `next`, past
// the blanks that end this one.
struct FilledLine {
    std::size_t start = 0;
    std::size_t end = 0;
    std::size_t next = 0;
    double width = 0;
    bool overflowed = false;  // blanks wider than the line ended it
};

class LineFiller {
public:
    LineFiller(const std::string& text, const TextFace& face, double width, TextMeasure& measure)
        : text_(text), face_(face), width_(width), measure_(measure), breaks_(breaksInsideWords(text)) {}

    // The line that starts at `start` in the paragraph that ends at `end`, the last of the text or one
    // ended by a line feed; broken between pieces: words, or characters when `anywhere`.
    FilledLine fill(std::size_t start, std::size_t end, bool lastParagraph, bool anywhere) {
        std::size_t committed = start;
        bool any = false;
        std::size_t i = start;
        while (i < end) {
            if (isBlank(text_[i])) {
                std::size_t j = i;
                while (j < end && isBlank(text_[j])) ++j;
                // Blanks wider than the whole line end it.
                if (advanceInContext(committed, j, end) > width_)
                    return {start, committed, j, advanceInContext(start, committed, end), true};
                i = j;
                continue;
            }
            std::size_t k = i + 1;
            if (!anywhere)
                while (k < end && !isBlank(text_[k]) && !breaks_[k]) ++k;
            else
                while (k < end && !isBlank(text_[k]) && measure_.joins(face_, text_[k - 1], text_[k])) ++k;
            // A piece that does not fit goes to the next line, unless it would stand there alone.
            const double wanted = advanceInContext(start, k, end) + overhang(text_[k - 1]);
            if (any && wanted > width_)
                return {start, committed, i,
                        advanceInContext(start, committed, end) + overhang(text_[i - 1])};
            committed = k;
            any = true;
            i = k;
        }
        if (committed == end)
            return {start, end, end, any ? advanceInContext(start, end, end) + overhang(text_[end - 1]) : 0};
        // Blanks that end the text count in its last line's width where they fit; blanks before a line
        // feed do not, and the ink of the last character does.
        const double withBlanks = advanceInContext(start, end, end);
        if (lastParagraph && (!any || withBlanks <= width_)) return {start, committed, end, withBlanks};
        const double ink = lastParagraph || !any ? 0 : overhang(text_[committed - 1]);
        return {start, committed, end, advanceInContext(start, committed, end) + ink};
    }

private:
    // The advance of text_[from, to) as it stands in its paragraph, which ends at `end`: its last
    // character kerned against the glyph after it, a ligature such as "fi" being one glyph.
    double advanceInContext(std::size_t from, std::size_t to, std::size_t end) {
        if (to <= from) return 0;
        const std::string_view text(text_);
        if (to >= end) return measure_.advance(face_, text.substr(from, to - from));
        const std::size_t glyph = to + 1 < end && measure_.joins(face_, text_[to], text_[to + 1]) ? 2 : 1;
        return measure_.advance(face_, text.substr(from, to + glyph - from)) -
               measure_.advance(face_, text.substr(to, glyph));
    }

    double overhang(char c) { return isBlank(c) ? 0 : measure_.overhang(face_, c); }

    const std::string& text_;
    const TextFace& face_;
    double width_;
    TextMeasure& measure_;
    std::vector<bool> breaks_;
};

}  // namespace

std::vector<TextLine> fillLines(const std::string& text, const TextFace& face, double width,
                                bool insideLongWords, TextMeasure& measure) {
    std::vector<TextLine> lines;
    LineFiller filler(text, face, width, measure);
    std::size_t paragraph = 0;
    while (true) {
        const std::size_t feed = text.find('\n', paragraph);
        const bool last = feed == std::string::npos;
        const std::size_t end = last ? text.size() : feed;
        std::size_t start = paragraph;
        bool feedAlone = false;
        do {
            FilledLine line = filler.fill(start, end, last, false);
            // A word too long for a line is broken inside.
            if (insideLongWords && line.width > width) line = filler.fill(start, end, last, true);
            lines.push_back({text.substr(line.start, line.end - line.start), 0, 0, line.width});
            start = line.next;
            feedAlone = line.overflowed && !last;
        } while (start < end);
        // Blanks that overflowed their line before a line feed leave the feed a line of its own.
        if (feedAlone) lines.push_back({});
        if (last) break;
        paragraph = feed + 1;
    }
    return lines;
}

}  // namespace lw::face
