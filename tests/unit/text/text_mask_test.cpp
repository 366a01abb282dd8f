#include <gtest/gtest.h>

#include <string>

#include "text/masks.h"

namespace lw::text {
namespace {

struct TextMaskRow {
    const char* text;
    const char* mask;
    const char* expected;
};

class FormatText : public ::testing::TestWithParam<TextMaskRow> {};

TEST_P(FormatText, FillsPlaceholdersFromTheRight) {
    EXPECT_EQ(formatText(GetParam().text, GetParam().mask), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, FormatText,
    ::testing::Values(TextMaskRow{"123456789", "@@@-@@-@@@@", "123-45-6789"},
                      TextMaskRow{"123XXXXXX", "@@@-@@-@@@@", "123-XX-XXXX"},
                      TextMaskRow{"5551234567", "(@@@) @@@-@@@@", "(555) 123-4567"},
                      TextMaskRow{"5551212", "@@@-@@@@", "555-1212"},
                      TextMaskRow{"a1B2c3D4e5F60789", "@@@@-@@@@-@@@@-@@@@", "a1B2-c3D4-e5F6-0789"},
                      // Too few characters: blanks on the left placeholders.
                      TextMaskRow{"6789", "@@@-@@-@@@@", "   -  -6789"}, TextMaskRow{"", "@@@", "   "},
                      // Too many: the surplus comes first.
                      TextMaskRow{"1234567890", "@@@-@@-@@@@", "1234-56-7890"},
                      TextMaskRow{"ABCDE", "(@@)", "ABC(DE)"}, TextMaskRow{"abc", "", "abc"},
                      TextMaskRow{"\xB7\xE9", "@-@", "\xB7-\xE9"}));

}  // namespace
}  // namespace lw::text
