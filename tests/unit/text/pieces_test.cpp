#include "text/pieces.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lw::text {
namespace {

struct TrimRow {
    const char* text;
    const char* both;
    const char* left;
    const char* right;
};

class Trim : public ::testing::TestWithParam<TrimRow> {};

TEST_P(Trim, RemovesBlanksOnly) {
    EXPECT_EQ(trim(GetParam().text), GetParam().both);
    EXPECT_EQ(trimLeft(GetParam().text), GetParam().left);
    EXPECT_EQ(trimRight(GetParam().text), GetParam().right);
}

INSTANTIATE_TEST_SUITE_P(Table, Trim,
                         ::testing::Values(TrimRow{"", "", "", ""}, TrimRow{"   ", "", "", ""},
                                           TrimRow{"  a b  ", "a b", "a b  ", "  a b"},
                                           TrimRow{"\ta\t", "\ta\t", "\ta\t", "\ta\t"},
                                           TrimRow{" x\r\n", "x\r\n", "x\r\n", " x\r\n"}));

struct ReplaceRow {
    const char* text;
    const char* from;
    const char* to;
    const char* result;
};

class ReplaceAll : public ::testing::TestWithParam<ReplaceRow> {};

TEST_P(ReplaceAll, ReplacesEveryOccurrence) {
    EXPECT_EQ(replaceAll(GetParam().text, GetParam().from, GetParam().to), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Table, ReplaceAll,
                         ::testing::Values(ReplaceRow{"$1,2,3", ",", "", "$123"},
                                           ReplaceRow{"123-45-6789", "-", "", "123456789"},
                                           ReplaceRow{"aaa", "aa", "b", "ba"},
                                           ReplaceRow{"abc", "", "x", "abc"},
                                           ReplaceRow{"a.b", ".", "..", "a..b"}, ReplaceRow{"", "a", "b", ""},
                                           ReplaceRow{"AbA", "a", "x", "AbA"}));

struct SplitRow {
    const char* text;
    const char* separator;
    std::vector<std::string> pieces;
};

class Split : public ::testing::TestWithParam<SplitRow> {};

TEST_P(Split, KeepsEmptyPieces) {
    EXPECT_EQ(split(GetParam().text, GetParam().separator), GetParam().pieces);
}

INSTANTIATE_TEST_SUITE_P(Table, Split,
                         ::testing::Values(SplitRow{"W2\xB7"
                                                    "a\xB7\xB7"
                                                    "b",
                                                    "\xB7",
                                                    {"W2", "a", "", "b"}},
                                           SplitRow{"1234.500", ".", {"1234", "500"}},
                                           SplitRow{"1.2.3", ".", {"1", "2", "3"}},
                                           SplitRow{".", ".", {"", ""}}, SplitRow{"abc", ".", {"abc"}},
                                           SplitRow{"a\r\nb\r\n", "\r\n", {"a", "b", ""}},
                                           SplitRow{"", ".", {}}, SplitRow{"abc", "", {"abc"}}));

}  // namespace
}  // namespace lw::text
