#include <string>

#include "fields_fixture.h"

namespace lw::test {
namespace {

struct IdRow {
    const char* tag;
    std::string typed;
    std::string shown;    // the field's text after leaving
    std::string message;  // empty when the value stands
};

std::ostream& operator<<(std::ostream& os, const IdRow& r) {
    return os << r.tag << " \"" << r.typed << "\" -> \"" << r.shown << "\" " << r.message;
}

class IdentifierEdit : public FieldsTest, public ::testing::WithParamInterface<IdRow> {};

TEST_P(IdentifierEdit, FillsTheNumberOrShowsWhyNot) {
    const IdRow& row = GetParam();
    Control& c = field(row.tag, row.typed);
    EXPECT_EQ(editFocused(c), row.message.empty());
    EXPECT_EQ(c.text, row.shown);
    if (row.message.empty()) {
        EXPECT_EQ(c.backColor, kWhite);
        EXPECT_EQ(status().caption, "");
    } else {
        // Both identifier edits fail in the colour of EIN and show their own text.
        EXPECT_EQ(c.backColor, kLegend[2]);
        EXPECT_EQ(c.foreColor, kRed);
        EXPECT_EQ(status().caption, row.message);
        EXPECT_EQ(status().foreColor, kRed);
    }
}

const char* const kFirstThree = "First 3 Charaters MUST BE Numeric";

INSTANTIATE_TEST_SUITE_P(
    Ein, IdentifierEdit,
    ::testing::Values(IdRow{"EIN", "914", "91-4XXXXXX", ""}, IdRow{"EIN", "91-55", "91-55XXXXX", ""},
                      IdRow{"EIN", "914234567", "91-4234567", ""},
                      IdRow{"EIN", "91-4XXXXXX", "91-4XXXXXX", ""}, IdRow{"EIN", "123X", "12-3XXXXXX", ""},
                      IdRow{"EIN", "123x", "12-3XXXXXX", ""}, IdRow{"EIN", "-9-1-4-", "91-4XXXXXX", ""},
                      IdRow{"EIN", "00-1234567", "00-1234567", "EIN can't start with 00"},
                      IdRow{"EIN", "12", "12", kFirstThree}, IdRow{"EIN", "12X", "12X", kFirstThree},
                      IdRow{"EIN", "1-2", "1-2", kFirstThree}, IdRow{"EIN", "ABC123", "ABC123", kFirstThree},
                      // A longer number keeps its prefix and its last seven characters.
                      IdRow{"EIN", "1234567890", "12-4567890", ""},
                      IdRow{"EIN", "91-12345678901", "91-5678901", ""}));

INSTANTIATE_TEST_SUITE_P(
    SsnAndItin, IdentifierEdit,
    ::testing::Values(
        IdRow{"TIN", "123", "123-XX-XXXX", ""}, IdRow{"TIN", "12345", "123-45-XXXX", ""},
        IdRow{"TIN", "123456789", "123-45-6789", ""}, IdRow{"TIN", "123-XX-XXXX", "123-XX-XXXX", ""},
        IdRow{"TIN", "123-xx-xxxx", "123-XX-XXXX", ""}, IdRow{"TIN", "900-70-1234", "900-70-1234", ""},
        IdRow{"TIN", "1X2X3", "123-XX-XXXX", ""},
        IdRow{"TIN", "666-12-3456", "666-12-3456", "SSN/ITIN can't begin with '666'"},
        IdRow{"TIN", "000", "000", "SSN/ITIN can't begin with '000'"}, IdRow{"TIN", "12", "12", kFirstThree},
        IdRow{"TIN", "12X", "12X", kFirstThree}, IdRow{"TIN", "XXX", "XXX", kFirstThree},
        // A number longer than nine cannot be filled: the run-time fault's description shows.
        IdRow{"TIN", "1234567890", "1234567890", "Invalid procedure call or argument"},
        IdRow{"TIN", "123-45-67890", "123-45-67890", "Invalid procedure call or argument"}));

TEST_F(FieldsTest, AnSsnIsTheSameWhenTheFieldIsLeftASecondTime) {
    Control& tin = field("TIN");
    type(tin, "123");
    EXPECT_TRUE(leave(tin));
    EXPECT_EQ(tin.text, "123-XX-XXXX");
    EXPECT_TRUE(leave(tin));
    EXPECT_EQ(tin.text, "123-XX-XXXX");
}

TEST_F(FieldsTest, AFailedIdentifierKeepsTheFocus) {
    Control& tin = field("TIN", "666");
    EXPECT_FALSE(leave(tin));
    EXPECT_EQ(prog().desktop.focus(), &tin);
    EXPECT_EQ(tin.backColor, kLegend[2]);
}

TEST_F(FieldsTest, ADataErrorDoesNotStopForTheProgrammerInDebugMode) {
    g().process.debug = true;
    Control& tin = field("TIN", "666");
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(editField(tin, editContext()));
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST_F(FieldsTest, ARunTimeFaultStopsForTheProgrammerInDebugModeAndStillFails) {
    g().process.debug = true;
    Control& tin = field("TIN", "1234567890");
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(editFocused(tin));
    const std::string written = ::testing::internal::GetCapturedStderr();
    EXPECT_NE(written.find("M7_Edits:EditCtl_SS_ITIN: error 5"), std::string::npos) << written;
    EXPECT_EQ(status().caption, "Invalid procedure call or argument");
}

TEST_F(FieldsTest, OutsideDebugModeARunTimeFaultOfAnEditWritesNothing) {
    Control& amount = field("MONEY", "1.-5");
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(editField(amount, editContext()));
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    EXPECT_TRUE(ui.modalForms.empty());
}

class DuplicateTins : public FieldsTest {
protected:
    void SetUp() override {
        FieldsTest::SetUp();
        for (int i = 0; i < 17; ++i) field("TIN");
    }
    Control& text1(int i) { return form->at("Text1", i); }
    static constexpr const char* kCardList = "0,2,4,6,8,10,12,14,16";
};

TEST_F(DuplicateTins, TheFirstNineFieldsAreComparedWhateverTheListHolds) {
    text1(10).text = "123-45-6789";
    text1(12).text = "123-45-6789";
    EXPECT_EQ(checkDuplicateNumbers(kCardList, 10, g().document, prog().desktop), 99);
    EXPECT_TRUE(ui.boxes.empty());

    text1(5).text = "123-45-6789";
    EXPECT_EQ(checkDuplicateNumbers(kCardList, 10, g().document, prog().desktop), 5);
    EXPECT_EQ(text1(10).selStart(), 0);
    EXPECT_EQ(text1(10).selLength(), 11) << "the whole number: a selection never reaches past the text";
    EXPECT_EQ(text1(10).text, "123-45-6789");
    EXPECT_EQ(status().caption, "Duplicate SSN/ITIN number");
    EXPECT_EQ(status().foreColor, kRed);
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].title, "DuplicateTinCheck");
    EXPECT_EQ(ui.boxes[0].number, 800);
    EXPECT_EQ(ui.boxes[0].message, "Duplicate SS/ITIN Number on this screen");
    EXPECT_EQ(ui.boxes[0].buttons[0], "OK");
    EXPECT_EQ(ui.boxes[0].answer, MessageBoxButton::First);
    EXPECT_EQ(ui.boxes[0].answerCaption(), "OK");
}

TEST_F(DuplicateTins, TheFirstDuplicateIsTheOneReported) {
    text1(1).text = "900-70-1234";
    text1(3).text = "900-70-1234";
    text1(7).text = "900-70-1234";
    EXPECT_EQ(checkDuplicateNumbers("1,4,7,11,15,19,23,27,31", 7, g().document, prog().desktop), 1);
    EXPECT_EQ(ui.boxes.size(), 1u);
}

TEST_F(DuplicateTins, AnEmptyFieldAndExactTextAreTheRules) {
    // Text1(2) is empty, like the others.
    EXPECT_EQ(checkDuplicateNumbers(kCardList, 2, g().document, prog().desktop), 99);
    text1(2).text = "123-XX-XXXX";
    text1(3).text = "123-xx-xxxx";
    EXPECT_EQ(checkDuplicateNumbers(kCardList, 2, g().document, prog().desktop), 99);
    EXPECT_EQ(checkDuplicateNumbers("", 2, g().document, prog().desktop), 99);
    EXPECT_EQ(checkDuplicateNumbers("0,1", 2, g().document, prog().desktop), 99);
    EXPECT_EQ(checkDuplicateNumbers("0,1,2,3", 2, g().document, prog().desktop), 99);
    text1(3).text = "123-XX-XXXX";
    EXPECT_EQ(checkDuplicateNumbers("0,1,2,3", 2, g().document, prog().desktop), 3);
    EXPECT_EQ(checkDuplicateNumbers("a,b,c,d", 2, g().document, prog().desktop), 3);
    EXPECT_EQ(ui.modalForms.size(), 2u);
}

TEST_F(DuplicateTins, AListLongerThanTheFormIsAProgramErrorThatReturns99) {
    text1(0).text = "123-45-6789";
    EXPECT_EQ(checkDuplicateNumbers(std::string(40, ','), 0, g().document, prog().desktop), 99);
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->module, "M7_Edits:DuplicateTinCheck");
    EXPECT_EQ(lastErrorReport()->number, "340");
}

}  // namespace
}  // namespace lw::test
