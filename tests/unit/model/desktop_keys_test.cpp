#include <gtest/gtest.h>

#include "model/desktop.h"
#include "model/keys.h"
#include "recording_form.h"

namespace lw {
namespace {

using testing::NullUi;
using testing::RecordingForm;

struct KeyTest : ::testing::Test {
    NullUi ui;
    Desktop desktop{ui};
    RecordingForm* form = nullptr;
    Control* field = nullptr;

    void SetUp() override {
        auto owned = std::make_unique<RecordingForm>();
        form = owned.get();
        field = &form->add(ControlKind::TextBox, "Text1", 0);
        form->add(ControlKind::TextBox, "Text1", 1);
        desktop.load(std::move(owned));
        desktop.setFocus(*field);
        form->events.clear();
    }
    void type(const std::string& text) {
        for (char c : text) desktop.typeCharacter(c);
    }
};

TEST_F(KeyTest, ACharacterRunsKeyDownKeyPressThenTheEditThenChange) {
    type("a");
    EXPECT_EQ(form->events,
              (std::vector<std::string>{"KeyDown Text1(0) 65", "KeyPress Text1(0) 97", "Change Text1(0) a"}));
}

TEST_F(KeyTest, AKeyPressSetToZeroChangesNothing) {
    form->swallowKeyPressIn = "Text1(0)";
    type("x");
    EXPECT_EQ(field->text, "");
    EXPECT_EQ(form->events.size(), 2u);
}

TEST_F(KeyTest, FunctionKeysStopAtKeyDown) {
    desktop.pressKey(keys::kF1 + 11, 0, 0);
    EXPECT_EQ(form->events, (std::vector<std::string>{"KeyDown Text1(0) 123"}));
}

TEST_F(KeyTest, TypingReplacesTheSelection) {
    field->text = "12345";
    field->select(1, 3);
    type("x");
    EXPECT_EQ(field->text, "1x5");
    EXPECT_EQ(field->selStart(), 2);
}

TEST_F(KeyTest, TheSelectionNeverReachesPastTheText) {
    field->text = "ABCD";
    field->select(0, 99);
    EXPECT_EQ(field->selStart(), 0);
    EXPECT_EQ(field->selLength(), 4);
    field->setSelStart(10);
    EXPECT_EQ(field->selStart(), 4);
    EXPECT_EQ(field->selLength(), 0);
    field->select(1, 2);
    field->text = "AB";
    EXPECT_EQ(field->selStart(), 1) << "a shorter text pulls the selection back with it";
    EXPECT_EQ(field->selLength(), 1);
    field->text.clear();
    EXPECT_EQ(field->selStart(), 0);
    EXPECT_EQ(field->selLength(), 0);
}

TEST_F(KeyTest, TypingOverASelectionAtMaxLengthReplacesIt) {
    field->maxLength = 4;
    type("1234");
    field->select(1, 2);
    type("x");
    EXPECT_EQ(field->text, "1x4");
    field->select(0, 3);
    type("abcdef");
    EXPECT_EQ(field->text, "abcd") << "the typed text fills the room the selection leaves, no more";
}

TEST_F(KeyTest, MaxLengthAndLockedAreHonoured) {
    field->maxLength = 3;
    type("12345");
    EXPECT_EQ(field->text, "123");
    field->locked = true;
    desktop.pressKey(keys::kBackspace, 0, keys::kBackspace);
    EXPECT_EQ(field->text, "123");
}

TEST_F(KeyTest, EnterBreaksTheLineOnlyInAMultiLineBox) {
    type("a\rb");
    EXPECT_EQ(field->text, "ab");
    field->multiLine = true;
    field->text.clear();
    field->setSelStart(0);
    type("a\rb");
    EXPECT_EQ(field->text, "a\r\nb");
}

TEST_F(KeyTest, BackspaceDeleteHomeAndEndEditAsATextBoxDoes) {
    type("abcd");
    desktop.pressKey(keys::kBackspace, 0, keys::kBackspace);
    EXPECT_EQ(field->text, "abc");
    desktop.pressKey(keys::kHome, 0, 0);
    desktop.pressKey(keys::kDelete, 0, 0);
    EXPECT_EQ(field->text, "bc");
    desktop.pressKey(keys::kEnd, keys::kShiftMask, 0);
    EXPECT_EQ(field->selLength(), 2);
    type("z");
    EXPECT_EQ(field->text, "z");
}

TEST_F(KeyTest, PasteReplacesTheSelectionWithNoKeyFilterAndStopsAtALineEnd) {
    form->swallowKeyPressIn = "Text1(0)";
    desktop.paste("12\r\n34");
    EXPECT_EQ(field->text, "12");
    field->maxLength = 5;
    desktop.paste(std::string(10000, '9'));
    EXPECT_EQ(field->text, "12999");
}

TEST_F(KeyTest, CtrlCopiesAndPastesThroughTheClipboard) {
    type("hello");
    field->select(0, 5);
    desktop.pressKey('C', keys::kCtrlMask, keys::kCtrlC);
    EXPECT_EQ(ui.clipboard, "hello");
    desktop.pressKey('X', keys::kCtrlMask, keys::kCtrlX);
    EXPECT_EQ(field->text, "");
    desktop.pressKey('V', keys::kCtrlMask, keys::kCtrlV);
    desktop.pressKey('V', keys::kCtrlMask, keys::kCtrlV);
    EXPECT_EQ(field->text, "hellohello");
}

TEST_F(KeyTest, TabMovesTheFocusWithoutKeyEvents) {
    desktop.pressKey(keys::kTab, 0, 0);
    EXPECT_EQ(desktop.focus(), form->find("Text1", 1));
    EXPECT_EQ(form->events[0], "Validate Text1(0)");
}

TEST_F(KeyTest, AKeySentByTheProgramFollowsTheRunningHandler) {
    struct SendingForm : RecordingForm {
        void onKeyPress(Control& c, int& ascii) override {
            RecordingForm::onKeyPress(c, ascii);
            if (ascii == keys::kEnter) {
                ascii = 0;
                c.form->desktop()->sendKey(keys::kTab, 0, 0);
            }
        }
    };
    auto owned = std::make_unique<SendingForm>();
    SendingForm* sending = owned.get();
    Control& a = sending->add(ControlKind::TextBox, "Text1", 0);
    Control& b = sending->add(ControlKind::TextBox, "Text1", 1);
    desktop.load(std::move(owned));
    desktop.setFocus(a);
    desktop.pressKey(keys::kEnter, 0, keys::kEnter);
    EXPECT_EQ(desktop.focus(), &b);
}

}  // namespace
}  // namespace lw

namespace lw {
namespace {

TEST_F(KeyTest, PunctuationWhoseCodeWouldBeAFunctionKeyIsStillTyped) {
    type("{|}~");
    EXPECT_EQ(field->text, "{|}~");
}

}  // namespace
}  // namespace lw
