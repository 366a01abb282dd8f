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
        : text_(text),
          face_(face),
          width_(width),
          measure_(measure),
          breaks_(breaksInsideWords(text)),
          overhangBound_(measure.metrics(face).overhangBound) {}

    // The paragraph that runs from `start` to `end`: where its characters stand, measured once.
    void startParagraph(std::size_t start, std::size_t end) {
        paragraph_ = start;
        places_ = measure_.caretPositions(face_, std::string_view(text_).substr(start, end - start));
    }

    // The line that starts at `start` in the current paragraph, which ends at `end`, the last of the
    // text or one ended by a line feed; broken between pieces: words, or characters when `anywhere`.
    FilledLine fill(std::size_t start, std::size_t end, bool lastParagraph, bool anywhere) {
        std::size_t committed = start;
        double committedWidth = 0;
        double blanks = 0;  // the blanks after what is committed
        bool any = false;
        std::size_t i = start;
        while (i < end) {
            if (isBlank(text_[i])) {
                std::size_t j = i;
                while (j < end && isBlank(text_[j])) ++j;
                blanks = span(i, j);
                // Blanks wider than the whole line end it.
                if (blanks > width_) return {start, committed, j, committedWidth, true};
                i = j;
                continue;
            }
            const std::size_t k = pieceEnd(i, end, anywhere);
            const double piece = span(i, k);
            // A piece that does not fit goes to the next line, unless it would stand there alone. The ink
            // of its last glyph is looked at only where it might take the line past its width.
            const double wanted = committedWidth + blanks + piece;
            if (any && wanted + overhangBound_ > width_ && wanted + inkAfter(k) > width_)
                return {start, committed, i, committedWidth + inkAfter(i)};
            committedWidth += blanks + piece;
            blanks = 0;
            committed = k;
            any = true;
            i = k;
        }
        if (committed == end) return {start, end, end, any ? committedWidth + inkAfter(end) : 0};
        // Blanks that end the text count in its last line's width where they fit; blanks before a line
        // feed do not, and the ink of the last character does.
        const double withBlanks = committedWidth + blanks;
        if (lastParagraph && (!any || withBlanks <= width_)) return {start, committed, end, withBlanks};
        const double ink = lastParagraph || !any ? 0 : inkAfter(committed);
        return {start, committed, end, committedWidth + ink};
    }

private:
    // The advance of text_[from, to) as it stands in its paragraph.
    double span(std::size_t from, std::size_t to) const {
        return places_[to - paragraph_] - places_[from - paragraph_];
    }

    // Where the piece that starts at `from` ends: at the next blank or break inside a word, or after
    // one character (or the characters of one glyph) when breaking anywhere.
    std::size_t pieceEnd(std::size_t from, std::size_t end, bool anywhere) const {
        std::size_t k = from + 1;
        if (!anywhere)
            while (k < end && !isBlank(text_[k]) && !breaks_[k]) ++k;
        else
            while (k < end && joins(text_[k - 1], text_[k])) ++k;
        return k;
    }

    // Two letters or signs the face draws as one glyph; never a blank, a line feed or a control.
    bool joins(char a, char b) const {
        const auto drawn = [](char c) { return static_cast<unsigned char>(c) > ' '; };
        return drawn(a) && drawn(b) && measure_.joins(face_, a, b);
    }

    // How far the ink of the glyph that ends at `at` reaches past its advance.
    double inkAfter(std::size_t at) {
        if (isBlank(text_[at - 1])) return 0;
        const std::string_view text(text_);
        const bool joined = at >= 2 && joins(text_[at - 2], text_[at - 1]);
        return joined ? measure_.overhang(face_, text.substr(at - 2, 2))
                      : measure_.overhang(face_, text.substr(at - 1, 1));
    }

    const std::string& text_;
    const TextFace& face_;
    double width_;
    TextMeasure& measure_;
    std::vector<bool> breaks_;
    double overhangBound_;
    std::size_t paragraph_ = 0;
    std::vector<double> places_;  // of the current paragraph's characters, from its start
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
        filler.startParagraph(paragraph, end);
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
