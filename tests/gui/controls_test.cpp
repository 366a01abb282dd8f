// The other editors of a form view: multi-line boxes, lists, option buttons, tabs; and the end of the
// program from an operator's press.
#include <QComboBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>

#include "gui_fixture.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"
#include "ui/input_bridge.h"

namespace lw::ui::test {
namespace {

class Controls : public Form {
public:
    Controls() : Form("F1_Configure") {
        width = 6000;
        height = 4500;
        Control& notes = add(ControlKind::TextBox, "txtNotes");
        notes.multiLine = true;
        notes.left = 150;
        notes.top = 150;
        notes.width = 3000;
        notes.height = 900;
        Control& printers = add(ControlKind::ComboBox, "cbxPrinters");
        printers.items = {"Office", "Home"};
        printers.left = 150;
        printers.top = 1200;
        printers.width = 3000;
        printers.height = 315;
        for (int i = 0; i < 2; ++i) {
            Control& year = add(ControlKind::OptionButton, "TaxYear", i);
            year.caption = i == 0 ? "Last Year" : "This Year";
            year.left = 150;
            year.top = 1800 + i * 360;
            year.width = 1800;
            year.height = 300;
        }
        Control& tabs = add(ControlKind::TabControl, "SSTab1");
        tabs.items = {"Top", "Bottom"};
        tabs.listIndex = 0;
        tabs.left = 3300;
        tabs.top = 150;
        tabs.width = 2400;
        tabs.height = 1500;
        Control& quit = add(ControlKind::CommandButton, "cmdQuit");
        quit.caption = "Quit";
        quit.left = 150;
        quit.top = 3000;
        quit.width = 1200;
        quit.height = 375;
    }
    std::vector<std::string> clicked;
    void onClick(Control& control, MouseButton) override {
        clicked.push_back(control.key() + "=" + control.text);
        if (control.name == "cmdQuit") program().ui.quit();
    }
};

class ControlsTest : public FormViewTest<Controls> {};

TEST_F(ControlsTest, AMultiLineBoxBreaksAtCarriageReturnLineFeed) {
    Control& notes = form_->at("txtNotes");
    auto* box = view_->findChild<QPlainTextEdit*>(QStringLiteral("txtNotes"));
    ASSERT_NE(box, nullptr);
    QTest::mouseClick(box->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    ASSERT_EQ(desktop().focus(), &notes);
    QTest::keyClicks(box, QStringLiteral("ab"));
    QTest::keyClick(box, Qt::Key_Return);
    QTest::keyClicks(box, QStringLiteral("cd"));
    EXPECT_EQ(notes.text, "ab\r\ncd");
    EXPECT_EQ(box->toPlainText(), QStringLiteral("ab\ncd"));
    // The caret stands after "cd": six characters in the model, five in the editor.
    EXPECT_EQ(notes.selStart(), 6);
    EXPECT_EQ(box->textCursor().position(), 5);
}

TEST_F(ControlsTest, AnEntryChosenFromTheListGoesToTheModel) {
    auto* combo = view_->findChild<QComboBox*>(QStringLiteral("cbxPrinters"));
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(combo->count(), 2);
    emit combo->activated(1);
    Control& printers = form_->at("cbxPrinters");
    EXPECT_EQ(printers.listIndex, 1);
    EXPECT_EQ(printers.text, "Home");
    EXPECT_EQ(desktop().focus(), &printers);
    EXPECT_EQ(combo->currentText(), QStringLiteral("Home"));
    QTest::keyClick(combo, Qt::Key_Up);
    EXPECT_EQ(printers.text, "Office");
    EXPECT_EQ(combo->currentIndex(), 0);
}

TEST_F(ControlsTest, OptionButtonsShowTheModelsValue) {
    auto* thisYear = view_->findChild<QRadioButton*>(QStringLiteral("TaxYear_1"));
    ASSERT_NE(thisYear, nullptr);
    QTest::mouseClick(thisYear, Qt::LeftButton);
    EXPECT_TRUE(form_->at("TaxYear", 1).value);
    EXPECT_TRUE(thisYear->isChecked());
    QTest::mouseClick(view_->findChild<QRadioButton*>(QStringLiteral("TaxYear_0")), Qt::LeftButton);
    EXPECT_FALSE(form_->at("TaxYear", 1).value);
    EXPECT_FALSE(thisYear->isChecked());
}

TEST_F(ControlsTest, AClickOnATabChoosesIt) {
    Control& tabs = form_->at("SSTab1");
    const QRect strip = controlRect(tabs, kScreenScale);
    QTest::mouseClick(view_.get(), Qt::LeftButton, {}, QPoint(strip.right() - 5, strip.top() + 5));
    EXPECT_EQ(tabs.listIndex, 1);
    ASSERT_FALSE(form_->clicked.empty());
    EXPECT_EQ(form_->clicked.back(), "SSTab1=Bottom");
}

TEST_F(ControlsTest, QuitFromAButtonEndsTheProgramAndLaterInputIsDropped) {
    QTest::mouseClick(view_->findChild<QWidget*>(QStringLiteral("cmdQuit")), Qt::LeftButton);
    EXPECT_TRUE(programEnded());
    const size_t before = form_->clicked.size();
    forwardInput([&] { desktop().click(form_->at("TaxYear", 0)); });
    EXPECT_EQ(form_->clicked.size(), before);
}

}  // namespace
}  // namespace lw::ui::test
