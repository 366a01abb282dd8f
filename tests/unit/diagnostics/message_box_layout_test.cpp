#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "diagnostics/message_box.h"
#include "diagnostics_fixture.h"
#include "model/app_error.h"

namespace lw::test {
namespace {

constexpr Color kGreen = 0x0000C000;
constexpr Color kPaleGreen = 0x00C0FFC0;

MessageBoxButton oneButton(Desktop& desktop, const std::string& message, int number = kNoMessageNumber) {
    return showMessageBox(desktop, {"M9_Test:Box", message, number}).button;
}

// Words of nine letters and a blank: blanks stand at positions 10, 20, 30 ...
std::string wordsLine(int words) {
    std::string line;
    for (int i = 0; i < words; ++i) {
        if (i > 0) line += ' ';
        line += std::string(9, static_cast<char>('a' + i % 26));
    }
    return line;
}

TEST_F(DiagnosticsTest, OneShortLineLeavesTheFormAtDesignHeightPlus100) {
    oneButton(prog().desktop, "Saved.");
    const SeenBox& box = ui.boxes.at(0);
    EXPECT_EQ(box.height, 2300);
    EXPECT_EQ(box.labelHeight, 355);
    EXPECT_EQ(box.text1Top, 695);
    EXPECT_EQ(box.buttonTops, (std::array<int, 4>{1420, 1420, 1420, 1420}));
}

TEST_F(DiagnosticsTest, EveryLineGrowsTheFormByTheLabelsHeight) {
    oneButton(prog().desktop,
              "The Ledgerwick is already running.\r\nIf the Ledgerwick is minimized, Click the\r\n"
              "Ledgerwick ICON on the Taskbar to restore.");
    const SeenBox& box = ui.boxes.at(0);
    EXPECT_EQ(box.labelHeight, 3 * 255 + 100);
    EXPECT_EQ(box.height, 2200 + 3 * 255 + 100 - 255);
    EXPECT_EQ(box.text1Top, 240 + 3 * 255 + 100 + 100);
    EXPECT_EQ(box.buttonTops[0], 1320 + 3 * 255 + 100 - 255);
}

TEST_F(DiagnosticsTest, LinesAreTrimmed) {
    oneButton(prog().desktop, "   first   \r\n  second\rthird  ");
    EXPECT_EQ(ui.boxes.at(0).record.shownText, "first\rsecond\rthird");
}

// As the classic Split, an empty text has no line at all: the label keeps only its 100 twips.
TEST_F(DiagnosticsTest, EmptyMessageCountsNoLine) {
    oneButton(prog().desktop, "   ");
    EXPECT_EQ(ui.boxes.at(0).record.shownText, "");
    EXPECT_EQ(ui.boxes.at(0).labelHeight, 100);
    EXPECT_EQ(ui.boxes.at(0).height, 2200 + 100 - 255);
}

TEST(BreakLongMessageLine, LineOf50IsKept) {
    const std::string line(50, 'x');
    EXPECT_EQ(breakLongMessageLine(line), line);
}

TEST(BreakLongMessageLine, BlankAtPosition50IsTheLastOneAllowed) {
    const std::string line = std::string(49, 'a') + " " + std::string(20, 'b');
    EXPECT_EQ(breakLongMessageLine(line), std::string(49, 'a') + "\r" + std::string(20, 'b'));
}

TEST(BreakLongMessageLine, BlankAtPosition51IsNotWithinTheFirst50) {
    const std::string line = std::string(20, 'a') + " " + std::string(29, 'a') + " " + std::string(10, 'c');
    // Blanks at 21 and 51: the break falls at 21.
    EXPECT_EQ(breakLongMessageLine(line),
              std::string(20, 'a') + "\r" + std::string(29, 'a') + " " + std::string(10, 'c'));
}

TEST(BreakLongMessageLine, NoBlankInTheFirst50IsError5) {
    const std::string line = std::string(50, 'a') + " " + std::string(10, 'b');
    try {
        breakLongMessageLine(line);
        FAIL() << "no fault";
    } catch (const AppError& error) {
        EXPECT_EQ(error.number(), 5);
        EXPECT_EQ(error.description(), "Invalid procedure call or argument");
    }
}

TEST_F(DiagnosticsTest, LineOver100CharactersIsBrokenOnceOnly) {
    const std::string line = wordsLine(12);  // 119 characters
    ASSERT_EQ(line.size(), 119u);
    oneButton(prog().desktop, line);
    const std::string shown = ui.boxes.at(0).record.shownText;
    const std::string first = line.substr(0, 49);
    const std::string second = line.substr(50);
    EXPECT_EQ(shown, first + "\r" + second);
    EXPECT_GT(second.size(), 50u);
    EXPECT_EQ(ui.boxes.at(0).labelHeight, 2 * 255 + 100);
    EXPECT_TRUE(ui.modalForms == std::vector<std::string>{"F9_MBX"});
}

TEST_F(DiagnosticsTest, LongLineWithoutBlankDoesNotEndTheProgram) {
    const std::string line(60, 'X');
    ui.queueReport("", "exit");
    ui.queueAnswer("OK");
    EXPECT_EQ(oneButton(prog().desktop, "Short line\r\n" + line), MessageBoxButton::First);
    // The fault is reported through the tail, then the box shows the line as it is.
    EXPECT_EQ(ui.modalForms, (std::vector<std::string>{"F8_ErrLog", "F9_MBX"}));
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->module, "F9_MBX:Form_Activate");
    EXPECT_EQ(lastErrorReport()->number, "5");
    EXPECT_EQ(lastErrorReport()->description, "Invalid procedure call or argument");
    const SeenBox& box = ui.boxes.at(0);
    EXPECT_EQ(box.record.shownText, "Short line\r" + line);
    EXPECT_EQ(box.labelHeight, 2 * 255 + 100);
    EXPECT_EQ(box.buttonVisible[0], true);
    EXPECT_EQ(box.buttonColors[0], kGreen);
}

TEST_F(DiagnosticsTest, EachUnbreakableLineIsReported) {
    oneButton(prog().desktop, std::string(55, 'A') + "\r" + std::string(70, 'B'));
    EXPECT_EQ(ui.modalForms, (std::vector<std::string>{"F8_ErrLog", "F8_ErrLog", "F9_MBX"}));
}

TEST_F(DiagnosticsTest, SingleButtonShowsAloneInTheDefaultColour) {
    oneButton(prog().desktop, "One");
    const SeenBox& box = ui.boxes.at(0);
    EXPECT_EQ(box.buttonVisible, (std::array<bool, 4>{true, false, false, false}));
    EXPECT_EQ(box.buttonColors[0], kGreen);
    EXPECT_TRUE(box.buttonIsDefault[0]);
    // cmdDummy's name ends in no digit: it keeps its colour.
    EXPECT_EQ(box.dummyColor, kButtonFace);
}

TEST_F(DiagnosticsTest, DefaultButtonNumberNoButtonBearsColoursNoneGreen) {
    ui.queueAnswer("Venturo");
    showMessageBox(prog().desktop, {"Ledgerwick - Testing",
                                    "Choose System to Test",
                                    kNoMessageNumber,
                                    {"Venturo", "Other"},
                                    MessageBoxButton::None});
    const SeenBox& box = ui.boxes.at(0);
    EXPECT_EQ(box.buttonVisible, (std::array<bool, 4>{true, true, false, false}));
    EXPECT_EQ(box.buttonColors[0], kPaleGreen);
    EXPECT_EQ(box.buttonColors[1], kPaleGreen);
    EXPECT_FALSE(box.buttonIsDefault[0]);
    EXPECT_FALSE(box.buttonIsDefault[1]);
}

TEST_F(DiagnosticsTest, DefaultFallsOnItsNumberAmongFour) {
    ui.queueAnswer("C");
    showMessageBox(prog().desktop,
                   {"M9_Test:Box", "Pick", kNoMessageNumber, {"A", "B", "C", "D"}, MessageBoxButton::Third});
    const SeenBox& box = ui.boxes.at(0);
    EXPECT_EQ(box.buttonColors, (std::array<Color, 4>{kPaleGreen, kPaleGreen, kGreen, kPaleGreen}));
    EXPECT_EQ(box.record.buttons, (std::array<std::string, 4>{"A", "B", "C", "D"}));
}

TEST_F(DiagnosticsTest, HiddenMiddleButtonKeepsTheOthersNumbers) {
    ui.queueAnswer("D");
    EXPECT_EQ(showMessageBox(
                  prog().desktop,
                  {"M9_Test:Box", "Pick", kNoMessageNumber, {"A", "", "", "D"}, MessageBoxButton::Fourth})
                  .button,
              MessageBoxButton::Fourth);
    const SeenBox& box = ui.boxes.at(0);
    EXPECT_EQ(box.buttonVisible, (std::array<bool, 4>{true, false, false, true}));
    EXPECT_EQ(box.buttonColors[3], kGreen);
    EXPECT_EQ(box.buttonColors[0], kPaleGreen);
}

}  // namespace
}  // namespace lw::test
