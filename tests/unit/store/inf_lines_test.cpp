#include "store/inf_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lw::store {
namespace {

std::vector<InfLine> linesOf(std::string_view text) {
    std::vector<InfLine> lines;
    InfLineReader reader(text);
    InfLine line;
    while (reader.next(line)) lines.push_back(line);
    return lines;
}

TEST(InfLines, EveryKindOfLineEndEndsALine) {
    std::string text = "a=1\r\nb=2\nc=3\rd=4";
    auto lines = linesOf(text);
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0].name, "a");
    EXPECT_EQ(lines[0].end, 5u);
    EXPECT_EQ(lines[1].name, "b");
    EXPECT_EQ(lines[2].name, "c");
    EXPECT_EQ(lines[3].name, "d");
    EXPECT_EQ(lines[3].value, "4");
    EXPECT_EQ(lines[3].textEnd, text.size());
    EXPECT_EQ(lines[3].end, text.size());
}

TEST(InfLines, LineFeedThenCarriageReturnIsTwoLineEnds) {
    auto lines = linesOf("a=1\n\rb=2");
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[1].kind, InfLineKind::Blank);
    EXPECT_EQ(lines[2].name, "b");
}

TEST(InfLines, KindsOfLines) {
    auto lines = linesOf("  [ Sec One ]  \n ; note=1\n\t \nkey = value \nbare words\n[open\n=v\n");
    ASSERT_EQ(lines.size(), 7u);
    EXPECT_EQ(lines[0].kind, InfLineKind::sectionName);
    EXPECT_EQ(lines[0].name, "Sec One");
    EXPECT_EQ(lines[1].kind, InfLineKind::Comment);
    EXPECT_EQ(lines[2].kind, InfLineKind::Blank);
    EXPECT_EQ(lines[3].kind, InfLineKind::Entry);
    EXPECT_TRUE(lines[3].hasEquals);
    EXPECT_EQ(lines[3].name, "key");
    EXPECT_EQ(lines[3].value, "value");
    EXPECT_EQ(lines[4].kind, InfLineKind::Entry);
    EXPECT_FALSE(lines[4].hasEquals);
    EXPECT_EQ(lines[4].name, "bare words");
    EXPECT_EQ(lines[5].kind, InfLineKind::Entry);  // no ']': not a section
    EXPECT_EQ(lines[5].name, "[open");
    EXPECT_TRUE(lines[6].hasEquals);
    EXPECT_EQ(lines[6].name, "");
    EXPECT_EQ(lines[6].value, "v");
}

TEST(InfLines, SectionNameRunsToTheLastBracket) {
    auto lines = linesOf("[a]b]");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].name, "a]b");
}

TEST(InfLines, EqualsSignPositionIsAnOffsetInTheWholeText) {
    std::string text = "x\nkey=v";
    auto lines = linesOf(text);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(text[lines[1].equalsAt], '=');
    EXPECT_EQ(lines[1].equalsAt, 5u);
}

TEST(InfLines, ContentStopsAtANulByte) {
    std::string text("key=ab\0cd\nnext=1", 16);
    auto lines = linesOf(text);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].value, "ab");
    EXPECT_EQ(lines[0].textEnd, 9u);
    EXPECT_EQ(lines[1].name, "next");
}

TEST(InfLines, EmptyTextHasNoLines) { EXPECT_TRUE(linesOf("").empty()); }

TEST(InfLines, TrimTakesBlanksTabsAndFeedsOnly) {
    EXPECT_EQ(trimInfBlanks(" \t\v\fa b\t "), "a b");
    EXPECT_EQ(trimInfBlanks("\xA0x"), "\xA0x");
    EXPECT_EQ(trimInfBlanks("   "), "");
}

TEST(InfLines, NamesMatchIgnoringCaseOfTheCodePage) {
    EXPECT_TRUE(sameInfName("TP1NameAddr", "tp1nameaddr"));
    EXPECT_TRUE(sameInfName("J\xC9R\xD4ME", "j\xE9r\xF4me"));  // accented capitals and small letters
    EXPECT_TRUE(sameInfName("\x8A\x8C\x8E\x9F", "\x9A\x9C\x9E\xFF"));
    EXPECT_FALSE(sameInfName("\xD7", "\xF7"));  // multiplication and division signs are not letters
    EXPECT_FALSE(sameInfName("abc", "abd"));
    EXPECT_FALSE(sameInfName("abc", "abcd"));
    EXPECT_FALSE(sameInfName("[", "{"));
}

TEST(InfLines, LineEndOfTheTextIsItsFirstOne) {
    EXPECT_EQ(infLineEndOf(""), "\r\n");
    EXPECT_EQ(infLineEndOf("no end"), "\r\n");
    EXPECT_EQ(infLineEndOf("a\nb\r\n"), "\n");
    EXPECT_EQ(infLineEndOf("a\r\nb\n"), "\r\n");
    EXPECT_EQ(infLineEndOf("a\rb"), "\r");
}

}  // namespace
}  // namespace lw::store
