#include "diagnostics/message_box.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "diagnostics_fixture.h"
#include "model/app_error.h"

namespace lw::test {
namespace {

MessageBoxButton oneButton(Desktop& desktop, const std::string& message, int number = kNoMessageNumber) {
    return showMessageBox(desktop, {"M9_Test:Box", message, number}).button;
}

const MessageBoxRequest kChooseSystem{"Ledgerwick - Testing",
                                      "Choose System to Test",
                                      kNoMessageNumber,
                                      {"Venturo", "Other"},
                                      MessageBoxButton::None};

// A box with an input line and four buttons.
MessageBoxRequest askName(const std::string& text) {
    MessageBoxRequest ask{
        "M9_Test:Ask", "File name?", kNoMessageNumber, {"Save", "Rename", "Skip", "Cancel"}};
    ask.showText = true;
    ask.text = text;
    return ask;
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
    oneButton(prog().desktop, "Hello");
}

TEST_F(DiagnosticsTest, AnswerIsThePlaceOfThePressedButton) {
    ui.queueAnswer("Other");
    EXPECT_EQ(showMessageBox(prog().desktop, kChooseSystem).button, MessageBoxButton::Second);
    ASSERT_TRUE(lastMessageBox().has_value());
    EXPECT_EQ(lastMessageBox()->answer, MessageBoxButton::Second);
    EXPECT_EQ(lastMessageBox()->answerCaption(), "Other");
    ui.queueAnswer("Venturo");
    EXPECT_EQ(showMessageBox(prog().desktop, kChooseSystem).button, MessageBoxButton::First);
    EXPECT_EQ(lastMessageBox()->answerCaption(), "Venturo");
}

TEST_F(DiagnosticsTest, EachOfFourButtonsAnswersWithItsPlace) {
    const MessageBoxButton places[] = {MessageBoxButton::First, MessageBoxButton::Second,
                                       MessageBoxButton::Third, MessageBoxButton::Fourth};
    const MessageBoxRequest pick{"M9_Test:Box", "Pick", kNoMessageNumber, {"A", "B", "C", "D"}};
    for (int i = 0; i < 4; ++i) {
        ui.queueAnswer(pick.buttons[static_cast<std::size_t>(i)]);
        EXPECT_EQ(showMessageBox(prog().desktop, pick).button, places[i])
            << pick.buttons[static_cast<std::size_t>(i)];
    }
}

TEST_F(DiagnosticsTest, BoxLeftWithoutAButtonAnswersNothing) {
    const MessageBoxRequest ask{"M9_Test:Box", "First", kNoMessageNumber, {"Yes", "No"}};
    ui.queueAnswer("Yes");
    EXPECT_EQ(showMessageBox(prog().desktop, ask).button, MessageBoxButton::First);
    ui.queue([](Form&) {});
    EXPECT_EQ(showMessageBox(prog().desktop, ask).button, MessageBoxButton::None);
    EXPECT_EQ(lastMessageBox()->answerCaption(), "");
    EXPECT_TRUE(prog().desktop.forms().empty());
}

TEST_F(DiagnosticsTest, NumberOtherThan800StandsOnTheFirstLine) {
    oneButton(prog().desktop, "Duplicate SS/ITIN Number on this screen", 801);
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].record.message, "Message Number: 801\r\nDuplicate SS/ITIN Number on this screen");
    EXPECT_EQ(ui.boxes[0].record.shownText, "Message Number: 801\rDuplicate SS/ITIN Number on this screen");
    EXPECT_EQ(ui.boxes[0].record.number, 801);
}

TEST_F(DiagnosticsTest, Number800AddsNoLine) {
    oneButton(prog().desktop, "Just this");
    EXPECT_EQ(ui.boxes.at(0).record.message, "Just this");
    EXPECT_EQ(ui.boxes.at(0).record.shownText, "Just this");
}

TEST_F(DiagnosticsTest, TitleIsTheCaption) {
    showMessageBox(prog().desktop, {"F0_MDI:cmdBtn_Click", "x", 801});
    EXPECT_EQ(ui.boxes.at(0).record.title, "F0_MDI:cmdBtn_Click");
}

TEST_F(DiagnosticsTest, UnansweredBoxTakesItsDefaultButton) {
    MessageBoxRequest ask{"M9_Test:Box", "Save?", kNoMessageNumber, {"Yes", "No"}};
    ask.defaultButton = MessageBoxButton::Second;
    EXPECT_EQ(showMessageBox(prog().desktop, ask).button, MessageBoxButton::Second);
    EXPECT_EQ(lastMessageBox()->answerCaption(), "No");
}

TEST_F(DiagnosticsTest, InputLineShowsTheAnswerTextAndTheFirstTwoButtonsReadItBack) {
    const std::pair<std::string, MessageBoxButton> presses[] = {{"Save", MessageBoxButton::First},
                                                                {"Rename", MessageBoxButton::Second}};
    for (const auto& [caption, place] : presses) {
        ui.queue([&](Form& form) {
            auto& box = dynamic_cast<MessageBoxForm&>(form);
            EXPECT_TRUE(box.Text1.visible);
            EXPECT_EQ(box.Text1.text, "OLD NAME");
            box.Text1.text = "NEW NAME";
            ui.press(*box.buttonWithCaption(caption));
        });
        const MessageBoxAnswer answer = showMessageBox(prog().desktop, askName("OLD NAME"));
        EXPECT_EQ(answer.button, place) << caption;
        EXPECT_EQ(answer.text, "NEW NAME") << caption;
        EXPECT_EQ(lastMessageBox()->answerText, "NEW NAME") << caption;
    }
}

TEST_F(DiagnosticsTest, ThirdAndFourthButtonsDoNotReadTheInput) {
    const std::pair<std::string, MessageBoxButton> presses[] = {{"Skip", MessageBoxButton::Third},
                                                                {"Cancel", MessageBoxButton::Fourth}};
    for (const auto& [caption, place] : presses) {
        ui.queue([&](Form& form) {
            auto& box = dynamic_cast<MessageBoxForm&>(form);
            box.Text1.text = "TYPED";
            ui.press(*box.buttonWithCaption(caption));
        });
        const MessageBoxAnswer answer = showMessageBox(prog().desktop, askName("OLD NAME"));
        EXPECT_EQ(answer.button, place) << caption;
        EXPECT_EQ(answer.text, "OLD NAME") << caption;
    }
}

TEST_F(DiagnosticsTest, WithoutTheInputFlagTheInputIsHiddenAndNotRead) {
    MessageBoxRequest ask{"M9_Test:Box", "No input"};
    ask.text = "KEEP";
    ui.queue([&](Form& form) {
        auto& box = dynamic_cast<MessageBoxForm&>(form);
        EXPECT_FALSE(box.Text1.visible);
        box.Text1.text = "TYPED";
        ui.press(box.cmd1);
    });
    const MessageBoxAnswer answer = showMessageBox(prog().desktop, ask);
    EXPECT_EQ(answer.button, MessageBoxButton::First);
    EXPECT_EQ(answer.text, "KEEP");
}

TEST_F(DiagnosticsTest, InputSitsBelowTheGrownLabel) {
    MessageBoxRequest ask{"M9_Test:Ask", "Two\r\nlines", 802};
    ask.showText = true;
    showMessageBox(prog().desktop, ask);
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
    oneButton(prog().desktop, "Once");
}

TEST_F(DiagnosticsTest, ObserversSeeEachBoxWithItsAnswer) {
    std::vector<MessageBoxRecord> seen;
    const int id = addMessageBoxObserver([&](const MessageBoxRecord& r) { seen.push_back(r); });
    ui.queueAnswer("No");
    showMessageBox(prog().desktop, {"F7_Save:Ask", "Replace?", 804, {"Yes", "No"}});
    removeMessageBoxObserver(id);
    oneButton(prog().desktop, "Not seen");
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].title, "F7_Save:Ask");
    EXPECT_EQ(seen[0].number, 804);
    EXPECT_EQ(seen[0].message, "Message Number: 804\r\nReplace?");
    EXPECT_EQ(seen[0].answer, MessageBoxButton::Second);
    EXPECT_EQ(seen[0].answerCaption(), "No");
    ASSERT_TRUE(lastMessageBox().has_value());
    EXPECT_EQ(lastMessageBox()->message, "Not seen");
    EXPECT_EQ(seen[0].icon, MessageBoxIcon::Information);
}

TEST_F(DiagnosticsTest, FaultShowingTheBoxGoesToTheTailAndAnswersNothing) {
    ui.failNextShowingOf = "F9_MBX";
    ui.failureText = "view failed";
    EXPECT_EQ(oneButton(prog().desktop, "x"), MessageBoxButton::None);
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
    oneButton(prog().desktop, "Over the form");
    EXPECT_EQ(prog().desktop.activeChild(), &w2);
}

}  // namespace
}  // namespace lw::test
