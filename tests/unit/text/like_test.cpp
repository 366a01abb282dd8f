#include "text/like.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace lw::text {
namespace {

struct LikeRow {
    const char* text;
    const char* pattern;
    bool matches;
};

void PrintTo(const LikeRow& row, std::ostream* os) {
    *os << '"' << row.text << "\" Like \"" << row.pattern << '"';
}

class LikeMatch : public ::testing::TestWithParam<LikeRow> {};

TEST_P(LikeMatch, DecidesAsTheClassicOperator) {
    EXPECT_EQ(likeMatch(GetParam().text, GetParam().pattern), GetParam().matches);
}

INSTANTIATE_TEST_SUITE_P(
    Wildcards, LikeMatch,
    ::testing::Values(LikeRow{"", "", true}, LikeRow{"a", "", false}, LikeRow{"", "*", true},
                      LikeRow{"abc", "*", true}, LikeRow{"abc", "a*", true}, LikeRow{"abc", "*c", true},
                      LikeRow{"abc", "*b*", true}, LikeRow{"abc", "*d*", false}, LikeRow{"abc", "a**c", true},
                      LikeRow{"ac", "a*c", true}, LikeRow{"abcbc", "a*bc", true},
                      LikeRow{"abcbd", "a*bc", false}, LikeRow{"abc", "???", true},
                      LikeRow{"ab", "???", false}, LikeRow{"abcd", "???", false}, LikeRow{"", "?", false},
                      LikeRow{"a7", "?#", true}, LikeRow{"7", "#", true}, LikeRow{"x", "#", false},
                      LikeRow{"12", "#", false}, LikeRow{"", "#", false}, LikeRow{"1.5", "#.#", true},
                      LikeRow{"1x5", "#.#", false}, LikeRow{"ABC", "abc", false}, LikeRow{"abc", "abc", true},
                      LikeRow{"a]", "a]", true}, LikeRow{"!", "!", true}, LikeRow{"a-b", "a-b", true}));

INSTANTIATE_TEST_SUITE_P(
    CharacterLists, LikeMatch,
    ::testing::Values(LikeRow{"b", "[abc]", true}, LikeRow{"d", "[abc]", false}, LikeRow{"m", "[a-z]", true},
                      LikeRow{"M", "[a-z]", false}, LikeRow{"a", "[a-z]", true}, LikeRow{"z", "[a-z]", true},
                      LikeRow{"5", "[0-9]", true}, LikeRow{"-", "[0-9]", false},
                      LikeRow{"Q", "[a-zA-Z]", true}, LikeRow{"d", "[!abc]", true},
                      LikeRow{"a", "[!abc]", false}, LikeRow{"5", "[!a-z]", true},
                      LikeRow{"k", "[!a-z]", false}, LikeRow{"", "[abc]", false},
                      LikeRow{"ab", "[abc]", false},
                      // A "-" first or last in a list is itself, not a range.
                      LikeRow{"-", "[-9]", true}, LikeRow{"9", "[-9]", true}, LikeRow{"5", "[-9]", false},
                      LikeRow{"0", "[-9]", false}, LikeRow{"-", "[a-]", true}, LikeRow{"a", "[a-]", true},
                      LikeRow{"b", "[a-]", false}, LikeRow{"-", "[!-9]", false}, LikeRow{"5", "[!-9]", true},
                      // The wildcard characters stand for themselves inside a list.
                      LikeRow{"*", "[*]", true}, LikeRow{"x", "[*]", false}, LikeRow{"?", "[?]", true},
                      LikeRow{"#", "[#]", true}, LikeRow{"[", "[[]", true}, LikeRow{"a*", "a[*]", true},
                      // An empty list consumes nothing; a negated empty list takes any one character.
                      LikeRow{"ab", "a[]b", true}, LikeRow{"a", "[!]", true}, LikeRow{"", "[!]", false},
                      // Bytes above 127 compare by their value.
                      LikeRow{"\xB7", "?", true}, LikeRow{"\xB7", "[\xA0-\xBF]", true},
                      LikeRow{"\xC0", "[\xA0-\xBF]", false}));

// The rate patterns of the configuration form, the fifth kept with its last list of "-" and "9".
INSTANTIATE_TEST_SUITE_P(
    RatePatterns, LikeMatch,
    ::testing::Values(
        LikeRow{"7", "[0-9]", true}, LikeRow{"12", "[0-9]", false}, LikeRow{"12", "[0-9][0-9]", true},
        LikeRow{"100", "[0-9][0-9]", false}, LikeRow{"6.2", "[0-9].[0-9]", true},
        LikeRow{"6.25", "[0-9].[0-9]", false}, LikeRow{"7.25", "[0-9].[0-9][0-9]", true},
        LikeRow{"7.2", "[0-9].[0-9][0-9]", false}, LikeRow{"12.5", "[0-9][0-9].[0-9][-9]", false},
        LikeRow{"12.59", "[0-9][0-9].[0-9][-9]", true}, LikeRow{"12.5-", "[0-9][0-9].[0-9][-9]", true},
        LikeRow{"12.55", "[0-9][0-9].[0-9][-9]", false}, LikeRow{"12.65", "[0-9][0-9].[0-9][0-9]", true},
        LikeRow{"12.6", "[0-9][0-9].[0-9][0-9]", false}, LikeRow{"6x2", "[0-9].[0-9]", false}));

TEST(LikeMatchErrors, AnUnclosedListIsAnInvalidPattern) {
    EXPECT_THROW(likeMatch("a", "[abc"), std::invalid_argument);
    EXPECT_THROW(likeMatch("a", "a["), std::invalid_argument);
}

TEST(LikeMatchErrors, ARangeBackwardsIsAnInvalidPattern) {
    EXPECT_THROW(likeMatch("m", "[z-a]"), std::invalid_argument);
}

TEST(LikeMatchLongText, ManyStarsStayQuick) {
    const std::string text(2000, 'a');
    EXPECT_FALSE(likeMatch(text, "*a*a*a*a*a*a*a*a*b"));
    EXPECT_TRUE(likeMatch(text + "b", "*a*a*a*a*a*a*a*a*b"));
}

}  // namespace
}  // namespace lw::text
