#include "text/cp1252.h"

#include <gtest/gtest.h>

#include <string>

namespace lw::text {
namespace {

TEST(Cp1252, EveryByteSurvivesTheRoundTrip) {
    for (int b = 0; b < 256; ++b) {
        const std::string one(1, static_cast<char>(b));
        const auto back = utf8ToCp1252(cp1252ToUtf8(one));
        ASSERT_TRUE(back.has_value()) << "byte " << b;
        EXPECT_EQ(*back, one) << "byte " << b;
    }
}

TEST(Cp1252, AllBytesTogetherSurviveTheRoundTrip) {
    std::string all;
    for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
    EXPECT_EQ(utf8ToCp1252(cp1252ToUtf8(all)), all);
}

struct Pair {
    const char* cp1252;
    const char* utf8;
};

class Cp1252Pairs : public ::testing::TestWithParam<Pair> {};

TEST_P(Cp1252Pairs, ConvertBothWays) {
    EXPECT_EQ(cp1252ToUtf8(GetParam().cp1252), GetParam().utf8);
    EXPECT_EQ(utf8ToCp1252(GetParam().utf8), std::string(GetParam().cp1252));
}

INSTANTIATE_TEST_SUITE_P(Table, Cp1252Pairs,
                         ::testing::Values(Pair{"", ""}, Pair{"W2", "W2"}, Pair{"\x80", "\u20AC"},
                                           Pair{"\xB7", "\u00B7"}, Pair{"\xBB", "\u00BB"},
                                           Pair{"\x8A\x9A", "\u0160\u0161"}, Pair{"\x9F\xFF", "\u0178\u00FF"},
                                           Pair{"\x99", "\u2122"}, Pair{"\x96\x97", "\u2013\u2014"},
                                           Pair{"\x81\x8D\x8F\x90\x9D", "\u0081\u008D\u008F\u0090\u009D"},
                                           Pair{"Jos\xE9 \xB7 M\xFCller", "Jos\u00E9 \u00B7 M\u00FCller"}));

TEST(Cp1252, SeparatorsAreTheirSingleBytes) {
    EXPECT_EQ(cp1252ToUtf8(std::string(1, kFieldSeparator)), "\u00B7");
    EXPECT_EQ(cp1252ToUtf8(std::string(1, kLineSeparator)), "\u00BB");
}

class Cp1252Refused : public ::testing::TestWithParam<const char*> {};

TEST_P(Cp1252Refused, GivesNothing) { EXPECT_FALSE(utf8ToCp1252(GetParam()).has_value()); }

INSTANTIATE_TEST_SUITE_P(CharactersOutsideThePage, Cp1252Refused,
                         ::testing::Values("\u0100", "A\u0100B", "\U0001F600", "\u4E2D", "\u0080", "\u0082",
                                           "\u009F", "\u2212"));

INSTANTIATE_TEST_SUITE_P(MalformedUtf8, Cp1252Refused,
                         ::testing::Values("\xE9",              // a lone Latin-1 byte
                                           "\xC3",              // cut short
                                           "\xE2\x82",          // cut short
                                           "\x80",              // a continuation with no lead
                                           "\xC0\xAF",          // overlong "/"
                                           "\xC1\xBF",          // overlong
                                           "\xE0\x80\xAF",      // overlong "/"
                                           "\xED\xA0\x80",      // a surrogate
                                           "\xF4\x90\x80\x80",  // past U+10FFFF
                                           "\xF5\x80\x80\x80",  // no such lead
                                           "\xC3\x28",          // a lead followed by ASCII
                                           "\xFF"));

}  // namespace
}  // namespace lw::text
