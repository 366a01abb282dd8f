#include <string>

#include "fields_fixture.h"
#include "model/app_error.h"

namespace lw::test {
namespace {

struct TextRow {
    const char* tag;
    std::string typed;
    std::string shown;
    bool stands;
};

std::ostream& operator<<(std::ostream& os, const TextRow& r) {
    return os << r.tag << " \"" << r.typed << "\" -> \"" << r.shown << "\" "
              << (r.stands ? "stands" : "fails");
}

class TextFieldEdit : public FieldsTest, public ::testing::WithParamInterface<TextRow> {};

TEST_P(TextFieldEdit, NormalizesTheText) {
    Control& c = field(GetParam().tag, GetParam().typed);
    EXPECT_EQ(editFocused(c), GetParam().stands);
    EXPECT_EQ(c.text, GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Phone, TextFieldEdit,
                         ::testing::Values(TextRow{"PHONE", "5551212", "(999) 555-1212", true},
                                           TextRow{"PHONE", "555-1212", "(999) 555-1212", true},
                                           TextRow{"PHONE", "(212) 555-1212", "(212) 555-1212", true},
                                           TextRow{"PHONE", "2125551212", "(212) 555-1212", true},
                                           TextRow{"PHONE", "555-12", "55512", true},
                                           TextRow{"PHONE", "( ) - ", "", true},
                                           TextRow{"PHONE", "1 (800) 555-1212", "18005551212", true},
                                           TextRow{"PHONE", "CALL-NOW", "(999) CAL-LNOW", true}));

INSTANTIATE_TEST_SUITE_P(
    VerificationCode, TextFieldEdit,
    ::testing::Values(TextRow{"VERIFICATION", "0123456789abcdef", "0123-4567-89ab-cdef", true},
                      TextRow{"VERIFICATION", "ABCD-EF01-2345-6789", "ABCD-EF01-2345-6789", true},
                      // Hyphens in the wrong places are accepted and moved to theirs.
                      TextRow{"VERIFICATION", "-ABCDEF0-12345-6789", "ABCD-EF01-2345-6789", true},
                      TextRow{"VERIFICATION", "ABCDEF0123456789---", "ABCD-EF01-2345-6789", true},
                      TextRow{"VERIFICATION", "0123456789abcdef0", "0123456789abcdef0", false},
                      TextRow{"VERIFICATION", "0123456789abcde", "0123456789abcde", false},
                      TextRow{"VERIFICATION", "0123-4567-89ab-cde", "0123-4567-89ab-cde", false},
                      TextRow{"VERIFICATION", "0123-4567-89ab-cd-e", "0123-4567-89ab-cd-e", false},
                      TextRow{"VERIFICATION", "012345678-9abcdef", "012345678-9abcdef", false}));

INSTANTIATE_TEST_SUITE_P(
    NameBlock, TextFieldEdit,
    ::testing::Values(TextRow{"TPNAME", "\r\n\r\nJOHN Q DOE JR.\r\n12 MAIN ST\r\nTOWN, ST 12345",
                              "JOHN Q DOE JR\r\n12 MAIN ST\r\nTOWN, ST 12345", true},
                      TextRow{"TPNAME", "ann  lee\r\n1 elm st", "ANN LEE\r\n1 ELM ST", true},
                      TextRow{"TPNAME", "MARY DOE-SMITH III", "MARY DOE-SMITH III", true},
                      TextRow{"TPNAME", "JOHN DOE \r\nX", "JOHNDOE \r\nX", true},
                      TextRow{"TPNAME", "DOE\r\n\r\nCITY", "DOE\r\n\r\nCITY", true},
                      TextRow{"TPNAME", "\r\n\r\n", "\r\n\r\n", false},
                      TextRow{"TPNAME", "\r\n", "\r\n", false},
                      // The ISSUER block is only upper-cased, line breaks and all.
                      TextRow{"ISSUER", "\r\nacme inc.\r\n", "\r\nACME INC.\r\n", true}));

TEST_F(FieldsTest, TheNineteenCharacterCodeWithThreeHyphensAnywherePasses) {
    // Three hyphens and nineteen characters are all the edit asks; the grouping follows.
    Control& code = field("VERIFICATION", "0123-4567-89abcdef-");
    EXPECT_TRUE(editField(code, editContext()));
    EXPECT_EQ(code.text, "0123-4567-89ab-cdef");
}

TEST_F(FieldsTest, AFailedVerificationCodeShowsTheOtherFieldColour) {
    Control& code = field("VERIFICATION", "abc");
    EXPECT_FALSE(leave(code));
    EXPECT_EQ(code.backColor, kLegend[9]);
    EXPECT_EQ(code.foreColor, kRed);
    EXPECT_EQ(status().caption, invalid("abc"));
}

TEST_F(FieldsTest, ANameBlockOfBlankLinesOnlyFailsWithNoMessage) {
    Control& name = field("TPNAME", "\r\n\r\n");
    name.multiLine = true;
    prog().desktop.setFocus(name);
    status().caption = "a tip";
    const Color focusColour = name.backColor;
    EXPECT_FALSE(leave(name));
    EXPECT_EQ(prog().desktop.focus(), &name);
    EXPECT_EQ(status().caption, "");
    EXPECT_EQ(name.foreColor, kRed);
    EXPECT_EQ(name.backColor, focusColour);
    EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(FieldsTest, TheFileNameTemplateDoesNotChangeTheNameLine) {
    g().choices.fileNameFormat = "<FIRST>_<LAST>_<FORM>_<OTHER>_<SEQ>";
    Control& name = field("TPNAME", "JOHN Q DOE JR.\r\nSTREET");
    EXPECT_TRUE(editField(name, editContext()));
    EXPECT_EQ(name.text, "JOHN Q DOE JR\r\nSTREET");
}

TEST(countCharacters, CountsOverlappingPlaces) {
    EXPECT_EQ(countCharacters("a-b-c", "-", false), 2);
    EXPECT_EQ(countCharacters("aaaa", "aa", true), 3);
    EXPECT_EQ(countCharacters("AbAB", "ab", false), 2);
    EXPECT_EQ(countCharacters("AbAB", "ab", true), 0);
    EXPECT_EQ(countCharacters("AbAB", "Ab", true), 1);
    EXPECT_EQ(countCharacters("", "-", false), 0);
    EXPECT_EQ(countCharacters("ab", "abc", false), 0);
    EXPECT_EQ(countCharacters("\xE0\xC0", "\xC0", false), 2);  // à and À are one letter blind to case
    EXPECT_EQ(countCharacters(std::string(32767, '-'), "-", false), 32767);
}

TEST(countCharacters, AFindOfNothingIsFoundAtEveryPlace) { EXPECT_EQ(countCharacters("abc", "", true), 3); }

TEST(countCharacters, ACountBeyondSixteenBitsOverflows) {
    EXPECT_THROW(countCharacters(std::string(32768, '-'), "-", false), AppError);
}

}  // namespace
}  // namespace lw::test
