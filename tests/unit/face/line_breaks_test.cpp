// Where a line may break inside a run of characters with no blank: the engine's reading of the line
// breaking rules for the code page's characters.
#include "face/line_breaks.h"

#include <gtest/gtest.h>

#include <string>

namespace lw::face {
namespace {

// The text with a "|" at every place a line may break inside a word.
std::string marked(const std::string& text) {
    const std::vector<bool> breaks = breaksInsideWords(text);
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (breaks[i]) shown += '|';
        shown += text[i];
    }
    return shown;
}

TEST(LineBreaks, AWordBreaksAfterItsHyphenAndNowhereElse) {
    EXPECT_EQ(marked("SELF-EMPLOYED"), "SELF-|EMPLOYED");
    EXPECT_EQ(marked("WAGES"), "WAGES");
    EXPECT_EQ(marked("A B"), "A B") << "blanks are breaks of their own, not marked here";
}

TEST(LineBreaks, NoBreakComesBeforeClosingMarksOrAfterOpeningOnes) {
    EXPECT_EQ(marked("(EIN)"), "(EIN)");
    EXPECT_EQ(marked("AND/OR"), "AND/|OR");
    EXPECT_EQ(marked("YES!NO"), "YES!|NO");
}

TEST(LineBreaks, ANumberStaysWholeWithItsSignsAndSeparators) {
    EXPECT_EQ(marked("$12,366.85"), "$12,366.85");
    EXPECT_EQ(marked("A,1,2"), "A,|1,2") << "the comma before the number is no part of it";
    EXPECT_EQ(marked("1/2/3X"), "1/|2/3X") << "the number after a line's first character";
}

TEST(LineBreaks, TheNoBreakSpaceBindsTheWordsBesideIt) {
    EXPECT_EQ(marked("BOX\xA0"
                     "12"),
              "BOX\xA0"
              "12");
    EXPECT_EQ(marked("A-\xA0"
                     "B"),
              "A-|\xA0"
              "B");
}

}  // namespace
}  // namespace lw::face
