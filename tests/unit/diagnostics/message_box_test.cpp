#include "diagnostics/message_box.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "diagnostics_fixture.h"
#include "model/app_error.h"

namespace lw::test {
namespace {

std::string oneButton(const std::string& message, int number = 800) {
    return MA_MBX("M9_Test:Box", number, message, "OK", false, "", "", "", 1);
}

TEST_F(DiagnosticsTest, FreshBoxHasItsDesignTexts) {
    MessageBoxForm box;
    EXPECT_EQ(box.name(), "F9_MBX");
    EXPECT_EQ(box.lblMessage.caption, "*");
    EXPECT_EQ(box.cmd1.caption, "1");
    EXPECT_EQ(box.cmd2.caption, "2");
    EXPECT_EQ(box.cmd3.caption, "3");
    EXPECT_EQ(box.cmd4.caption, "4");
    EXPECT_NE(box.find("cmdDummy"), nullptr);
    EXPECT_NE(box.find("imgVBInformation"), nullptr);
    EXPECT_FALSE(box.isChild);
    EXPECT_EQ(box.height, MessageBoxForm::kDesignHeight);
}

TEST_F(DiagnosticsTest, LoadNotesTheLabelsDesignHeight) {
    ui.queue([](Form& form) {
        auto& box = dynamic_cast<MessageBoxForm&>(form);
        EXPECT_EQ(box.lblMessageDesignHeight, MessageBoxForm::kLabelDesignHeight);
        box.unload();
    });
    oneButton("Hello");
}

TEST_F(DiagnosticsTest, AnswerIsTheCaptionOfThePressedButton) {
    ui.queueAnswer("Other");
    EXPECT_EQ(
        MA_MBX("Ledgerwick - Testing", 800, "Choose System to Test", "Venturo", false, "Other", "", "", 9),
        "Other");
    EXPECT_EQ(messageBoxState().answer, "Other");
    ui.queueAnswer("Venturo");
    EXPECT_EQ(
        MA_MBX("Ledgerwick - Testing", 800, "Choose System to Test", "Venturo", false, "Other", "", "", 9),
        "Venturo");
}

TEST_F(DiagnosticsTest, BoxLeftWithoutAButtonAnswersNothing) {
    ui.queueAnswer("Yes");
    MA_MBX("M9_Test:Box", 800, "First", "Yes", false, "No", "", "", 1);
    ui.queue([](Form&) {});
    EXPECT_EQ(MA_MBX("M9_Test:Box", 800, "Second", "Yes", false, "No", "", "", 1), "");
    EXPECT_TRUE(prog().desktop.forms().empty());
}

TEST_F(DiagnosticsTest, NumberOtherThan800StandsOnTheFirstLine) {
    oneButton("Duplicate SS/ITIN Number on this screen", 801);
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].record.message, "Message Number: 801\r\nDuplicate SS/ITIN Number on this screen");
    EXPECT_EQ(ui.boxes[0].record.shownText, "Message Number: 801\rDuplicate SS/ITIN Number on this screen");
    EXPECT_EQ(ui.boxes[0].record.number, 801);
}

TEST_F(DiagnosticsTest, Number800AddsNoLine) {
    oneButton("Just this");
    EXPECT_EQ(ui.boxes.at(0).record.message, "Just this");
    EXPECT_EQ(ui.boxes.at(0).record.shownText, "Just this");
}

TEST_F(DiagnosticsTest, TitleIsTheCaption) {
    MA_MBX("F0_MDI:cmdBtn_Click", 801, "x", "OK", false, "", "", "", 1);
    EXPECT_EQ(ui.boxes.at(0).record.title, "F0_MDI:cmdBtn_Click");
}

TEST_F(DiagnosticsTest, UnansweredBoxTakesItsDefaultButton) {
    EXPECT_EQ(MA_MBX("M9_Test:Box", 800, "Save?", "Yes", false, "No", "", "", 2), "No");
}

TEST_F(DiagnosticsTest, InputLineShowsTheAnswerTextAndTheFirstTwoButtonsReadItBack) {
    for (const std::string caption : {"Save", "Rename"}) {
        messageBoxState().answerText = "OLD NAME";
        ui.queue([&](Form& form) {
            auto& box = dynamic_cast<MessageBoxForm&>(form);
            EXPECT_TRUE(box.Text1.visible);
            EXPECT_EQ(box.Text1.text, "OLD NAME");
            box.Text1.text = "NEW NAME";
            ui.press(*box.buttonWithCaption(caption));
        });
        EXPECT_EQ(MA_MBX("M9_Test:Ask", 800, "File name?", "Save", true, "Rename", "Skip", "Cancel", 1),
                  caption);
        EXPECT_EQ(messageBoxState().answerText, "NEW NAME") << caption;
    }
}

TEST_F(DiagnosticsTest, ThirdAndFourthButtonsDoNotReadTheInput) {
    for (const std::string caption : {"Skip", "Cancel"}) {
        messageBoxState().answerText = "OLD NAME";
        ui.queue([&](Form& form) {
            auto& box = dynamic_cast<MessageBoxForm&>(form);
            box.Text1.text = "TYPED";
            ui.press(*box.buttonWithCaption(caption));
        });
        EXPECT_EQ(MA_MBX("M9_Test:Ask", 800, "File name?", "Save", true, "Rename", "Skip", "Cancel", 1),
                  caption);
        EXPECT_EQ(messageBoxState().answerText, "OLD NAME") << caption;
    }
}

TEST_F(DiagnosticsTest, WithoutTheInputFlagTheInputIsHiddenAndNotRead) {
    messageBoxState().answerText = "KEEP";
    ui.queue([&](Form& form) {
        auto& box = dynamic_cast<MessageBoxForm&>(form);
        EXPECT_FALSE(box.Text1.visible);
        box.Text1.text = "TYPED";
        ui.press(box.cmd1);
    });
    oneButton("No input");
    EXPECT_EQ(messageBoxState().answerText, "KEEP");
}

TEST_F(DiagnosticsTest, InputSitsBelowTheGrownLabel) {
    MA_MBX("M9_Test:Ask", 802, "Two\r\nlines", "OK", true, "", "", "", 1);
    const SeenBox& box = ui.boxes.at(0);
    // Three lines with the number line.
    EXPECT_EQ(box.text1Top, 240 + 3 * 255 + 100 + 100);
    EXPECT_TRUE(box.text1Visible);
}

TEST_F(DiagnosticsTest, ActivationLaysTheBoxOutOnce) {
    ui.queue([](Form& form) {
        auto& box = dynamic_cast<MessageBoxForm&>(form);
        const int height = box.height;
        const int top = box.cmd1.top;
        box.onActivate();
        EXPECT_EQ(box.height, height);
        EXPECT_EQ(box.cmd1.top, top);
        box.unload();
    });
    oneButton("Once");
}

TEST_F(DiagnosticsTest, ObserversSeeEachBoxWithItsAnswer) {
    std::vector<MessageBoxRecord> seen;
    const int id = addMessageBoxObserver([&](const MessageBoxRecord& r) { seen.push_back(r); });
    ui.queueAnswer("No");
    MA_MBX("F7_Save:Ask", 804, "Replace?", "Yes", false, "No", "", "", 1);
    removeMessageBoxObserver(id);
    oneButton("Not seen");
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].title, "F7_Save:Ask");
    EXPECT_EQ(seen[0].number, 804);
    EXPECT_EQ(seen[0].message, "Message Number: 804\r\nReplace?");
    EXPECT_EQ(seen[0].answer, "No");
    ASSERT_TRUE(lastMessageBox().has_value());
    EXPECT_EQ(lastMessageBox()->message, "Not seen");
    EXPECT_EQ(seen[0].icon, MessageBoxIcon::Information);
}

TEST_F(DiagnosticsTest, FaultShowingTheBoxGoesToTheTailAndAnswersNothing) {
    ui.failNextShowingOf = "F9_MBX";
    ui.failureText = "view failed";
    EXPECT_EQ(oneButton("x"), "");
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->module, "M2_VenturoCommon:MA_MBX");
    EXPECT_EQ(lastErrorReport()->description, "view failed");
}

TEST_F(DiagnosticsTest, BoxIsNotTheActiveChild) {
    auto child = std::make_unique<Form>("TF_W2");
    Form& w2 = prog().desktop.load(std::move(child));
    ui.queue([&](Form& form) {
        EXPECT_EQ(prog().desktop.topModal(), &form);
        EXPECT_EQ(prog().desktop.activeChild(), &w2);
        form.unload();
    });
    oneButton("Over the form");
    EXPECT_EQ(prog().desktop.activeChild(), &w2);
}

}  // namespace
}  // namespace lw::test
