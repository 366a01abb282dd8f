// The form view sends the operator's keys and clicks to the model and shows what the model decided.
#include "ui/form_view.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include "gui_fixture.h"
#include "ui/form_painter.h"
#include "ui/qt_text.h"

namespace lw::ui::test {
namespace {

using FormViewTest = TwoFieldsViewTest;

TEST_F(FormViewTest, EditorsAreNamedAfterTheirControls) {
    ASSERT_NE(editor("Text1_0"), nullptr);
    ASSERT_NE(editor("Text1_1"), nullptr);
    EXPECT_EQ(editor("Text1_1")->geometry(), QRect(20, 60, 160, 20));
    EXPECT_EQ(view_->size(), QSize(300, 200));
}

TEST_F(FormViewTest, TabMovesTheModelsFocusAndQtFollows) {
    ASSERT_EQ(view_->focusWidget(), editor("Text1_0"));
    press(view_.get(), Qt::Key_Tab);
    EXPECT_EQ(desktop().focus(), second_);
    EXPECT_EQ(view_->focusWidget(), editor("Text1_1"));
    press(view_.get(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(desktop().focus(), first_);
    EXPECT_EQ(view_->focusWidget(), editor("Text1_0"));
}

TEST_F(FormViewTest, ValidationThatCancelsKeepsTheFocus) {
    form_->keepFirst = true;
    press(view_.get(), Qt::Key_Tab);
    EXPECT_EQ(desktop().focus(), first_);
    EXPECT_EQ(view_->focusWidget(), editor("Text1_0"));
    // A click into the other field runs the same validation and is refused the same way.
    QTest::mouseClick(editor("Text1_1"), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(desktop().focus(), first_);
    EXPECT_EQ(view_->focusWidget(), editor("Text1_0"));
    form_->keepFirst = false;
    QTest::mouseClick(editor("Text1_1"), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(desktop().focus(), second_);
    EXPECT_EQ(view_->focusWidget(), editor("Text1_1"));
}

TEST_F(FormViewTest, TypedTextReachesTheModelWhichDecidesWhatShows) {
    type(view_.get(), QStringLiteral("abc"));
    EXPECT_EQ(first_->text, "abc");
    EXPECT_EQ(editor("Text1_0")->text(), QStringLiteral("abc"));
    press(view_.get(), Qt::Key_Backspace);
    EXPECT_EQ(first_->text, "ab");
    EXPECT_EQ(editor("Text1_0")->text(), QStringLiteral("ab"));

    form_->upperCase = true;
    press(view_.get(), Qt::Key_Tab);
    type(view_.get(), QStringLiteral("wage"));
    EXPECT_EQ(second_->text, "WAGE");
    EXPECT_EQ(editor("Text1_1")->text(), QStringLiteral("WAGE"));
    EXPECT_EQ(editor("Text1_1")->cursorPosition(), 4);
}

TEST_F(FormViewTest, LettersOfTheCodePageArriveAsItsBytes) {
    type(view_.get(), QStringLiteral("\u00e9\u20ac"));
    EXPECT_EQ(first_->text, "\xE9\x80");
    EXPECT_EQ(editor("Text1_0")->text(), QStringLiteral("\u00e9\u20ac"));
}

TEST_F(FormViewTest, ACharacterOutsideTheCodePageIsRefused) {
    type(view_.get(), QStringLiteral("a"));
    press(view_.get(), 0x03A9, Qt::NoModifier, QStringLiteral("\u03a9"));
    EXPECT_EQ(first_->text, "a");
    EXPECT_EQ(editor("Text1_0")->text(), QStringLiteral("a"));
    EXPECT_NE(ui_.lastRefusal().find("Windows-1252"), std::string::npos);
}

TEST_F(FormViewTest, PasteTakesTheClipboardThroughTheModel) {
    QApplication::clipboard()->setText(QStringLiteral("12\u00b734"));
    press(view_.get(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(first_->text,
              "12\xB7"
              "34");
    EXPECT_EQ(editor("Text1_0")->text(), QStringLiteral("12\u00b734"));

    QApplication::clipboard()->setText(QStringLiteral("\u4e2d"));
    press(view_.get(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(first_->text,
              "12\xB7"
              "34");
    EXPECT_NE(ui_.lastRefusal().find("clipboard"), std::string::npos);
}

TEST_F(FormViewTest, CopyPutsTheModelsSelectionOnTheClipboard) {
    first_->text = "123-45-6789";
    first_->select(4, 2);
    refreshAll();
    EXPECT_EQ(editor("Text1_0")->selectedText(), QStringLiteral("45"));
    press(view_.get(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("45"));
}

TEST_F(FormViewTest, TheFieldsColoursAreTheModels) {
    const QColor focus = toQColor(kFocusColor);
    EXPECT_EQ(editor("Text1_0")->palette().color(QPalette::Base), focus);
    EXPECT_EQ(editor("Text1_1")->palette().color(QPalette::Base), QColor(Qt::white));
    press(view_.get(), Qt::Key_Tab);
    EXPECT_EQ(editor("Text1_0")->palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(editor("Text1_1")->palette().color(QPalette::Base), focus);
    second_->foreColor = kRed;
    refreshAll();
    EXPECT_EQ(editor("Text1_1")->palette().color(QPalette::Text), QColor(Qt::red));
}

TEST_F(FormViewTest, PropertiesOfTheModelReachTheEditor) {
    second_->locked = true;
    second_->alignment = 1;
    second_->toolTipText = "Dollar Amount";
    second_->visible = false;
    refreshAll();
    QLineEdit* box = editor("Text1_1");
    EXPECT_TRUE(box->isReadOnly());
    EXPECT_EQ(box->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    EXPECT_EQ(box->toolTip(), QStringLiteral("Dollar Amount"));
    EXPECT_TRUE(box->isHidden());
    // A hidden field is out of the tab order.
    press(view_.get(), Qt::Key_Tab);
    EXPECT_EQ(desktop().focus(), first_);
}

TEST_F(FormViewTest, AClickOnACheckLabelGoesToTheModel) {
    Control& check = form_->at("Check", 0);
    const QPoint inside = controlRect(check, kScreenScale).center();
    QTest::mouseClick(view_.get(), Qt::LeftButton, {}, inside);
    EXPECT_EQ(form_->lastClicked, "Check(0)");
    EXPECT_EQ(check.caption, "X");
    QTest::mouseClick(view_.get(), Qt::LeftButton, {}, inside + QPoint(0, 100));
    EXPECT_EQ(form_->clicks, 1);
}

TEST_F(FormViewTest, AClickIntoTheFocusedFieldPlacesTheModelsCaret) {
    first_->text = "abcdef";
    refreshAll();
    QTest::mouseClick(editor("Text1_0"), Qt::LeftButton, {}, QPoint(2, 10));
    EXPECT_EQ(first_->selStart(), 0);
    press(view_.get(), Qt::Key_End);
    EXPECT_EQ(first_->selStart(), 6);
    EXPECT_EQ(editor("Text1_0")->cursorPosition(), 6);
}

}  // namespace
}  // namespace lw::ui::test
