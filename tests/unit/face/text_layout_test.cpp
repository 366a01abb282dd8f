// The engine lays text out from the measures of its port alone: where lines break, where they stand
// and how wide they are follow what the measure says.
#include "face/text_layout.h"

#include <gtest/gtest.h>

#include "face/control_text.h"
#include "face/measure_memo.h"
#include "fixed_measure.h"

namespace lw::face {
namespace {

using testing::FixedMeasure;

const TextFace kFace{"Tahoma", 100, false, false};

std::vector<std::string> linesOf(const TextBlock& block) {
    std::vector<std::string> lines;
    for (const TextLine& line : block.lines) lines.push_back(line.text);
    return lines;
}

TextBlock laidOut(const std::string& text, double width, TextFlow flow, FixedMeasure& measure,
                  Alignment alignment = kAlignLeft | kAlignTop) {
    return layoutText(text, kFace, RectF{0, 0, width, 2000}, alignment, flow, measure);
}

TEST(TextLayout, AWrappedBlockBreaksWhereTheMeasureSays) {
    FixedMeasure measure;
    // "AB CD" is 450 wide: it fits in 460.
    EXPECT_EQ(linesOf(laidOut("AB CD EF", 460, TextFlow::Words, measure)),
              (std::vector<std::string>{"AB CD", "EF"}));
    // Wider letters make "AB CD" 490: the line breaks after "AB".
    measure.letter = 110;
    EXPECT_EQ(linesOf(laidOut("AB CD EF", 460, TextFlow::Words, measure)),
              (std::vector<std::string>{"AB", "CD", "EF"}));
}

TEST(TextLayout, ALineIsAsWideAsItsCharactersAndTheInkOfItsLast) {
    FixedMeasure measure;
    measure.leaning = "F";
    measure.lean = 30;
    const TextBlock block = laidOut("AB CDF", 1000, TextFlow::Words, measure);
    ASSERT_EQ(block.lines.size(), 1u);
    EXPECT_EQ(block.lines[0].width, 550 + 30);
    // The ink of "F" takes the line past 570: "CDF" goes to the next line.
    EXPECT_EQ(linesOf(laidOut("AB CDF", 570, TextFlow::Words, measure)),
              (std::vector<std::string>{"AB", "CDF"}));
}

TEST(TextLayout, ACharacterIsKernedAgainstTheOneAfterItEvenAcrossABreak) {
    FixedMeasure measure;
    measure.kerning = {{"AV", -30}, {"A ", -30}};
    EXPECT_EQ(measure.caretPositions(kFace, "AV"), (std::vector<double>{0, 70, 170}));
    // "XA" ends its line before a blank: its "A" is kerned against that blank, as it stands in the text.
    const TextBlock block = laidOut("XA BC", 400, TextFlow::Words, measure);
    ASSERT_EQ(linesOf(block), (std::vector<std::string>{"XA", "BC"}));
    EXPECT_EQ(block.lines[0].width, 170);
    EXPECT_EQ(block.lines[1].width, 200);
}

TEST(TextLayout, AWordTooLongForItsLineBreaksInsideOnlyWhereAllowed) {
    FixedMeasure measure;
    EXPECT_EQ(linesOf(laidOut("ABCDEF GH", 350, TextFlow::Words, measure)),
              (std::vector<std::string>{"ABCDEF", "GH"}));
    EXPECT_EQ(linesOf(laidOut("ABCDEF GH", 350, TextFlow::WordsOrAnywhere, measure)),
              (std::vector<std::string>{"ABC", "DEF", "GH"}));
    // Two characters drawn as one glyph stay together.
    measure.ligatures = {"CD"};
    EXPECT_EQ(linesOf(laidOut("ABCDEF GH", 350, TextFlow::WordsOrAnywhere, measure)),
              (std::vector<std::string>{"AB", "CDE", "F GH"}));
}

TEST(TextLayout, LineFeedsEndLinesAndOneLineReadsThemAsBlanks) {
    FixedMeasure measure;
    EXPECT_EQ(linesOf(laidOut("AB\n\nCD", 5000, TextFlow::Words, measure)),
              (std::vector<std::string>{"AB", "", "CD"}));
    EXPECT_EQ(linesOf(laidOut("AB\nCD ", 5000, TextFlow::OneLine, measure)),
              (std::vector<std::string>{"AB CD"}));
}

TEST(TextLayout, LinesStandByTheirAlignment) {
    FixedMeasure measure;
    const RectF area{100, 50, 1000, 400};
    const TextBlock right =
        layoutText("AB", kFace, area, kAlignRight | kAlignTop, TextFlow::OneLine, measure);
    EXPECT_EQ(right.lines[0].x, 1100 - 200);
    EXPECT_EQ(right.lines[0].baseline, 50 + 80);
    const TextBlock centred = layoutText("AB\nCDEF", kFace, area, kAlignCenter, TextFlow::Words, measure);
    ASSERT_EQ(centred.lines.size(), 2u);
    EXPECT_EQ(centred.lines[0].x, 100 + (1000 - 200) / 2.0);
    EXPECT_EQ(centred.lines[1].x, 100 + (1000 - 400) / 2.0);
    // Two lines of 100 and 120 between baselines: 220 tall, in the middle of 400.
    EXPECT_EQ(centred.lines[0].baseline, 50 + 90 + 80);
    EXPECT_EQ(centred.lines[1].baseline, 50 + 90 + 80 + 120);
}

TEST(TextLayout, AFieldThatShrinksTakesASmallerSizeBeforeItBreaks) {
    FixedMeasure measure;
    Control box;
    box.kind = ControlKind::TextBox;
    box.place(0, 0, 1500 + 4 * kPixelTwips, 400);
    box.borderStyle = 0;
    box.fontSize = 10;  // 200 twips: "ABCDEFGH" is 1600 wide, 100 too many
    box.fitFloor = 8;
    box.text = "ABCDEFGH";
    const TextBlock block = fieldLayout(box, measure);
    ASSERT_EQ(block.lines.size(), 1u);
    EXPECT_EQ(block.points, 9.0) << "the largest half point at which the line fits";
    box.text = "ABCDEFGH ABCDEFGH";
    EXPECT_EQ(linesOf(fieldLayout(box, measure)), (std::vector<std::string>{"ABCDEFGH", "ABCDEFGH"}));
}

}  // namespace
}  // namespace lw::face

namespace lw::face {
namespace {

TEST(MeasureMemo, ATextIsMeasuredOnceWhileTheWorkLasts) {
    testing::FixedMeasure frontEnd;
    MeasureMemo memo(frontEnd);
    EXPECT_EQ(memo.advance(kFace, "WAGES"), 500);
    EXPECT_EQ(memo.advance(kFace, "WAGES"), 500);
    EXPECT_EQ(memo.advance(TextFace{"Tahoma", 200, false, false}, "WAGES"), 1000)
        << "another size, measured anew";
    EXPECT_EQ(frontEnd.measured, (std::vector<std::string>{"WAGES", "WAGES"}));
    frontEnd.measured.clear();
    const std::vector<double> places = memo.caretPositions(kFace, "AB C");
    EXPECT_EQ(places, (std::vector<double>{0, 100, 200, 250, 350}));
    EXPECT_EQ(memo.caretPositions(kFace, "AB C"), places);
    const std::size_t measuredOnce = frontEnd.measured.size();
    memo.caretPositions(kFace, "AB C");
    EXPECT_EQ(frontEnd.measured.size(), measuredOnce) << "the places are kept too";
}

}  // namespace
}  // namespace lw::face
