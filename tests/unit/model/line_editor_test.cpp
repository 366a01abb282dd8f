#include "model/line_editor.h"

#include <gtest/gtest.h>

#include "model/control.h"
#include "model/keys.h"
#include "recording_form.h"

namespace lw {
namespace {

// The edits of one text box, with no form or desktop around it.
struct LineEditorTest : ::testing::Test {
    testing::NullUi clipboard;
    Control box;
    LineEditor editor{box, clipboard};

    void SetUp() override { box.kind = ControlKind::TextBox; }
    void holding(const std::string& text, int start, int length = 0) {
        box.text = text;
        box.select(start, length);
    }
};

TEST_F(LineEditorTest, ACharacterTakesThePlaceOfTheSelection) {
    holding("12345", 1, 3);
    EXPECT_TRUE(editor.typeCharacter('x'));
    EXPECT_EQ(box.text, "1x5");
    EXPECT_EQ(box.selStart(), 2);
    EXPECT_EQ(box.selLength(), 0);
}

TEST_F(LineEditorTest, MaxLengthCutsWhatIsPutInAndAFullBoxRefusesIt) {
    box.maxLength = 5;
    holding("1234", 4);
    EXPECT_TRUE(editor.replaceSelection("abc"));
    EXPECT_EQ(box.text, "1234a");
    EXPECT_FALSE(editor.typeCharacter('z')) << "a full box takes nothing, and raises no Change";
    EXPECT_EQ(box.text, "1234a");
    box.select(0, 2);
    EXPECT_TRUE(editor.replaceSelection("wxyz"));
    EXPECT_EQ(box.text, "wx34a") << "the selection's room and no more";
}

TEST_F(LineEditorTest, ALockedBoxTakesNoEditButItsCaretStillMoves) {
    box.locked = true;
    holding("abc", 1, 1);
    EXPECT_FALSE(editor.typeCharacter('x'));
    EXPECT_FALSE(editor.pressKey(keys::kDelete, 0));
    EXPECT_FALSE(editor.typeCharacter(keys::kBackspace));
    EXPECT_FALSE(editor.replaceSelection("zz"));
    EXPECT_FALSE(editor.typeCharacter(keys::kCtrlX));
    EXPECT_EQ(box.text, "abc");
    EXPECT_EQ(clipboard.clipboard, "b") << "a locked box still copies";
    editor.pressKey(keys::kEnd, 0);
    EXPECT_EQ(box.selStart(), 3);
}

TEST_F(LineEditorTest, EnterBreaksTheLineOnlyInAMultiLineBox) {
    holding("ab", 1);
    EXPECT_FALSE(editor.typeCharacter(keys::kEnter));
    EXPECT_EQ(box.text, "ab");
    box.multiLine = true;
    EXPECT_TRUE(editor.typeCharacter(keys::kEnter));
    EXPECT_EQ(box.text, "a\r\nb");
    EXPECT_EQ(box.selStart(), 3);
}

TEST_F(LineEditorTest, ASingleLineBoxTakesThePastedTextUpToItsFirstLineEnd) {
    holding("", 0);
    EXPECT_TRUE(editor.replaceSelection("one\ntwo"));
    EXPECT_EQ(box.text, "one");
    box.multiLine = true;
    EXPECT_TRUE(editor.replaceSelection("\r\ntwo"));
    EXPECT_EQ(box.text, "one\r\ntwo");
}

TEST_F(LineEditorTest, BackspaceAndDeleteTakeOneCharacterOrTheSelection) {
    holding("abcd", 2);
    EXPECT_TRUE(editor.typeCharacter(keys::kBackspace));
    EXPECT_EQ(box.text, "acd");
    EXPECT_EQ(box.selStart(), 1);
    EXPECT_TRUE(editor.pressKey(keys::kDelete, 0));
    EXPECT_EQ(box.text, "ad");
    box.select(0, 2);
    EXPECT_TRUE(editor.pressKey(keys::kBackspace, 0));
    EXPECT_EQ(box.text, "");
    EXPECT_FALSE(editor.pressKey(keys::kBackspace, 0)) << "nothing before the caret";
    EXPECT_FALSE(editor.pressKey(keys::kDelete, 0)) << "nothing after the caret";
}

TEST_F(LineEditorTest, HomeEndAndTheArrowsMoveTheCaretWithoutAnEdit) {
    holding("abcdef", 2, 2);
    EXPECT_FALSE(editor.pressKey(keys::kLeft, 0));
    EXPECT_EQ(box.selStart(), 2) << "Left drops the selection at its start";
    EXPECT_EQ(box.selLength(), 0);
    box.select(2, 2);
    editor.pressKey(keys::kRight, 0);
    EXPECT_EQ(box.selStart(), 4) << "Right drops it at its end";
    editor.pressKey(keys::kRight, 0);
    EXPECT_EQ(box.selStart(), 5);
    editor.pressKey(keys::kEnd, keys::kShiftMask);
    EXPECT_EQ(box.selStart(), 5);
    EXPECT_EQ(box.selLength(), 1);
    editor.pressKey(keys::kHome, keys::kShiftMask);
    EXPECT_EQ(box.selStart(), 0);
    EXPECT_EQ(box.selLength(), 6);
    editor.pressKey(keys::kHome, 0);
    editor.pressKey(keys::kLeft, 0);
    EXPECT_EQ(box.selStart(), 0);
    EXPECT_EQ(box.text, "abcdef");
}

TEST_F(LineEditorTest, TheClipboardKeysCopyCutAndPaste) {
    holding("hello world", 0, 5);
    EXPECT_FALSE(editor.typeCharacter(keys::kCtrlC));
    EXPECT_EQ(clipboard.clipboard, "hello");
    EXPECT_TRUE(editor.typeCharacter(keys::kCtrlX));
    EXPECT_EQ(box.text, " world");
    box.setSelStart(6);
    EXPECT_TRUE(editor.typeCharacter(keys::kCtrlV));
    EXPECT_EQ(box.text, " worldhello");
    clipboard.clipboard.clear();
    box.select(0, 1);
    EXPECT_FALSE(editor.typeCharacter(keys::kCtrlV)) << "an empty clipboard pastes nothing";
    EXPECT_EQ(box.text, " worldhello");
    EXPECT_EQ(box.selLength(), 1) << "and leaves the selection standing";
}

TEST_F(LineEditorTest, ControlCharactersWithoutAnEditOfTheirOwnAreDropped) {
    holding("ab", 1);
    EXPECT_FALSE(editor.typeCharacter(keys::kEscape));
    EXPECT_FALSE(editor.typeCharacter(1));
    EXPECT_EQ(box.text, "ab");
    EXPECT_TRUE(editor.typeCharacter(static_cast<char>(0xB7)))
        << "a character of the upper half of the code page";
    EXPECT_EQ(box.text,
              "a\xB7"
              "b");
}

}  // namespace
}  // namespace lw
