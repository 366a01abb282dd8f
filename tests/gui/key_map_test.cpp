// Qt's keys as the model's key codes, shift states and characters.
#include "ui/key_map.h"

#include <QKeyEvent>

#include "gui_fixture.h"
#include "model/keys.h"

namespace lw::ui::test {
namespace {

ModelKey keyOf(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = QString()) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    std::optional<ModelKey> model = modelKey(event);
    EXPECT_TRUE(model.has_value());
    return model.value_or(ModelKey{});
}

TEST(KeyMap, FunctionAndEditingKeysKeepTheirClassicCodes) {
    EXPECT_EQ(keyOf(Qt::Key_F1).keyCode, keys::kF1);
    EXPECT_EQ(keyOf(Qt::Key_F12).keyCode, keys::kF12);
    EXPECT_EQ(keyOf(Qt::Key_Delete, Qt::NoModifier, QStringLiteral("\x7f")).keyCode, keys::kDelete);
    EXPECT_EQ(keyOf(Qt::Key_Delete, Qt::NoModifier, QStringLiteral("\x7f")).keyAscii, 0);
    EXPECT_EQ(keyOf(Qt::Key_Home).keyCode, keys::kHome);
    EXPECT_EQ(keyOf(Qt::Key_Backspace).keyAscii, keys::kBackspace);
    EXPECT_EQ(keyOf(Qt::Key_Return).keyAscii, keys::kEnter);
}

TEST(KeyMap, LettersCarryTheirCharacterAndShiftState) {
    ModelKey a = keyOf(Qt::Key_A, Qt::ShiftModifier, QStringLiteral("A"));
    EXPECT_EQ(a.keyCode, 'A');
    EXPECT_EQ(a.keyAscii, 'A');
    EXPECT_EQ(a.shift, keys::kShiftMask);
    EXPECT_EQ(keyOf(Qt::Key_Exclam, Qt::ShiftModifier, QStringLiteral("!")).keyCode, '1');
    EXPECT_EQ(keyOf(Qt::Key_5, Qt::KeypadModifier, QStringLiteral("5")).keyCode, 101);
}

TEST(KeyMap, AnOpeningBraceTypesTheCodeOfF12ButIsNoF12) {
    ModelKey brace = keyOf(Qt::Key_BraceLeft, Qt::ShiftModifier, QStringLiteral("{"));
    EXPECT_EQ(brace.keyAscii, keys::kF12);
    EXPECT_NE(brace.keyCode, keys::kF12);
    EXPECT_EQ(keyOf(Qt::Key_F12).keyAscii, 0);
}

TEST(KeyMap, ControlLettersTypeTheirControlCharacters) {
    EXPECT_EQ(keyOf(Qt::Key_C, Qt::ControlModifier).keyAscii, keys::kCtrlC);
    EXPECT_EQ(keyOf(Qt::Key_V, Qt::ControlModifier, QStringLiteral("\x16")).keyAscii, keys::kCtrlV);
    EXPECT_EQ(keyOf(Qt::Key_X, Qt::ControlModifier).keyAscii, keys::kCtrlX);
    EXPECT_EQ(keyOf(Qt::Key_X, Qt::ControlModifier).shift, keys::kCtrlMask);
}

TEST(KeyMap, TabMovesTheFocus) {
    EXPECT_TRUE(keyOf(Qt::Key_Tab).tab);
    EXPECT_FALSE(keyOf(Qt::Key_Tab).backwards);
    EXPECT_TRUE(keyOf(Qt::Key_Backtab, Qt::ShiftModifier).backwards);
    EXPECT_FALSE(keyOf(Qt::Key_Tab, Qt::ControlModifier).tab);
}

TEST(KeyMap, CharactersOutsideTheCodePageAreRefused) {
    QKeyEvent omega(QEvent::KeyPress, 0x03A9, Qt::NoModifier, QStringLiteral("\u03a9"));
    EXPECT_FALSE(modelKey(omega).has_value());
    ModelKey dot = keyOf(Qt::Key_periodcentered, Qt::NoModifier, QStringLiteral("\u00b7"));
    EXPECT_EQ(dot.keyAscii, 0xB7);
    // A key with no classic code of its own gives its character to KeyPress alone.
    EXPECT_EQ(dot.keyCode, 0);
}

}  // namespace
}  // namespace lw::ui::test
