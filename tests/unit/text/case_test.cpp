#include "text/case.h"

#include <gtest/gtest.h>

#include <string>

namespace lw::text {
namespace {

struct CasePair {
    const char* lower;
    const char* upper;
};

class CaseLetters : public ::testing::TestWithParam<CasePair> {};

TEST_P(CaseLetters, MapBothWays) {
    EXPECT_EQ(toUpper(GetParam().lower), GetParam().upper);
    EXPECT_EQ(toLower(GetParam().upper), GetParam().lower);
}

INSTANTIATE_TEST_SUITE_P(Table, CaseLetters,
                         ::testing::Values(CasePair{"", ""}, CasePair{"w2 form 1099-r", "W2 FORM 1099-R"},
                                           CasePair{"\xE0\xE9\xF1\xFE", "\xC0\xC9\xD1\xDE"},  // àéñþ
                                           CasePair{"\xFF", "\x9F"},                          // ÿ Ÿ
                                           CasePair{"\x9A\x9C\x9E", "\x8A\x8C\x8E"},          // šœž
                                           CasePair{"jos\xE9 m\xFCller", "JOS\xC9 M\xDCLLER"}));

TEST(Case, UpperAndLowerAreInversesOnEveryLetterOfThePage) {
    int letters = 0;
    for (int b = 0; b < 256; ++b) {
        const char c = static_cast<char>(b);
        const char upper = toUpper(c);
        if (upper != c) {
            ++letters;
            EXPECT_EQ(toLower(upper), c) << "byte " << b;
        }
    }
    EXPECT_EQ(letters, 26 + 30 + 4);  // ASCII, à..þ less ÷, and š œ ž ÿ
}

class CaseUnchanged : public ::testing::TestWithParam<char> {};

TEST_P(CaseUnchanged, HasNoOtherCase) {
    EXPECT_EQ(toUpper(GetParam()), GetParam());
    EXPECT_EQ(toLower(GetParam()), GetParam());
}

// ß, µ, ª, º, ×, ÷, digits and marks.
INSTANTIATE_TEST_SUITE_P(Table, CaseUnchanged,
                         ::testing::Values('\xDF', '\xB5', '\xAA', '\xBA', '\xD7', '\xF7', '5', '-', '\xB7',
                                           '\x80'));

TEST(Case, EqualsNoCase) {
    EXPECT_TRUE(equalsNoCase("cmdBtn", "CMDBTN"));
    EXPECT_TRUE(equalsNoCase("\xE9t\xE9", "\xC9T\xC9"));
    EXPECT_TRUE(equalsNoCase("", ""));
    EXPECT_FALSE(equalsNoCase("cmdBtn", "cmdBtn1"));
    EXPECT_FALSE(equalsNoCase("ss", "\xDF"));
}

TEST(Case, StartsAndEndsWithNoCase) {
    EXPECT_TRUE(startsWithNoCase("Ledgerwick_Venturo", "LEDGERWICK"));
    EXPECT_FALSE(startsWithNoCase("Led", "LEDGERWICK"));
    EXPECT_TRUE(endsWithNoCase("C:/x/UserVenturo.INF", "userventuro.inf"));
    EXPECT_FALSE(endsWithNoCase("inf", "user.inf"));
    EXPECT_TRUE(startsWithNoCase("abc", ""));
    EXPECT_TRUE(endsWithNoCase("abc", ""));
}

struct FindRow {
    const char* text;
    const char* word;
    std::size_t from;
    std::size_t found;
};

class FindNoCase : public ::testing::TestWithParam<FindRow> {};

TEST_P(FindNoCase, FindsTheFirstMatch) {
    const FindRow& row = GetParam();
    EXPECT_EQ(findNoCase(row.text, row.word, row.from), row.found);
    EXPECT_EQ(containsNoCase(std::string(row.text).substr(row.from), row.word),
              row.found != std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Table, FindNoCase,
                         ::testing::Values(FindRow{"debug taskbar", "TASKBAR", 0, 6},
                                           FindRow{"Error ERROR", "error", 1, 6},
                                           FindRow{"abc", "abcd", 0, std::string::npos},
                                           FindRow{"abc", "", 1, 1}, FindRow{"abc", "", 3, 3},
                                           FindRow{"abc", "c", 3, std::string::npos},
                                           FindRow{"", "a", 0, std::string::npos}));

TEST(Case, FindBeyondTheEndIsNotFound) { EXPECT_EQ(findNoCase("abc", "", 4), std::string::npos); }

}  // namespace
}  // namespace lw::text
