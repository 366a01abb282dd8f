// The list of K-1 codes in the window: a dialog that shows its rows in four columns, where a click on a
// row picks its code; and the pictures of the shipped lists of one box of each K-1 form.
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <fstream>

#include "forms/k1_help.h"
#include "forms/k1_help_form.h"
#include "gui_fixture.h"
#include "ui/clipboard_picture.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"

namespace lw::ui::test {
namespace {

const std::string kDot = "\xB7";

void whenShown(const std::function<void(QDialog&)>& step) {
    QTimer::singleShot(0, [step] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* dialog = qobject_cast<QDialog*>(widget);
            if (dialog && dialog->isVisible()) return step(*dialog);
        }
        ADD_FAILURE() << "no dialog on the screen";
    });
}

class K1ListTest : public GuiTest {
protected:
    void SetUp() override {
        GuiTest::SetUp();
        ASSERT_TRUE(folder_.isValid());
        program_->g.edition.k1HelpInfFile = folder_.filePath(QStringLiteral("K1Help.inf")).toStdString();
        std::ofstream(program_->g.edition.k1HelpInfFile, std::ios::binary)
            << "[K1-1065-Box13]\r\n"
               "A|Cash contributions, 60% limit {Schedule A line 11}|\r\n"
               "H|Investment interest expense {Form 4952 line 1}|\r\n"
               "ZZ|Other deductions {statement}|\tX\r\n";
        auto owned = std::make_unique<Form>("TF_K11065");
        owned->add(ControlKind::TextBox, "Text2", 0).tag = "K1HELP" + kDot + "K1-1065-Box13";
        owned->add(ControlKind::TextBox, "Text3", 0).tag = "MONEY";
        form_ = &desktop().load(std::move(owned));
        kept = keptDesignValues(*form_);
    }
    void callList() {
        Control& code = form_->at("Text2", 0);
        desktop().setFocus(code);
        desktop().dispatch(
            [&] { openK1CodeList(*form_, code, kept, program_->g.edition.k1HelpInfFile, members_); });
    }
    // The middle of a row of the grid, the header being row 0.
    static QPoint rowPoint(const Form& list, int row) {
        const Control& grid = list.at("Grid1");
        const QRect r = controlRect(grid, kScreenScale);
        const int height = rowHeight(grid, kScreenScale);
        return {r.left() + toPixels(300, kScreenScale), r.top() + 1 + row * height + height / 2};
    }

    QTemporaryDir folder_;
    Form* form_ = nullptr;
    K1DesignValues kept;
    K1HelpMembers members_;
};

TEST_F(K1ListTest, TheDialogShowsTheRowsAndAClickPicksACode) {
    QString title;
    QSize size;
    std::vector<std::string> rows;
    whenShown([&](QDialog& dialog) {
        title = dialog.windowTitle();
        size = dialog.size();
        Form* list = desktop().findForm("F6_K1Help");
        ASSERT_NE(list, nullptr);
        rows = list->at("Grid1").items;
        auto* view = dialog.findChild<FormView*>();
        ASSERT_NE(view, nullptr);
        QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, rowPoint(*list, 3));
    });
    callList();
    EXPECT_EQ(title, QStringLiteral("Valid Entries for K1 1065 Box 13"));
    EXPECT_GE(size.width(), (660 + 9500 + 5000 + 600) / 15);
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[2], "H\tInvestment interest expense\tForm 4952 line 1\t");
    EXPECT_EQ(form_->at("Text2", 0).text, "ZZ") << "the third row was clicked";
    EXPECT_EQ(form_->at("Text3", 0).tag, "") << "its O/R mark lifts the money check";
    EXPECT_EQ(desktop().focus(), &form_->at("Text3", 0));
    EXPECT_EQ(desktop().findForm("F6_K1Help"), nullptr);
}

TEST_F(K1ListTest, AClickOnTheHeaderPicksNothingAndCancelLeavesTheField) {
    form_->at("Text2", 0).text = "A";
    whenShown([&](QDialog& dialog) {
        Form* list = desktop().findForm("F6_K1Help");
        ASSERT_NE(list, nullptr);
        auto* view = dialog.findChild<FormView*>();
        ASSERT_NE(view, nullptr);
        QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, rowPoint(*list, 0));
        ASSERT_TRUE(dialog.isVisible()) << "the header row is no code";
        auto* cancel = dialog.findChild<QAbstractButton*>(QStringLiteral("cmdCancel"));
        ASSERT_NE(cancel, nullptr);
        QTest::mouseClick(cancel, Qt::LeftButton);
    });
    callList();
    EXPECT_EQ(form_->at("Text2", 0).text, "A");
    EXPECT_EQ(form_->at("Text3", 0).tag, "MONEY");
    EXPECT_EQ(desktop().focus(), &form_->at("Text2", 0));
}

TEST_F(K1ListTest, EscapeClosesTheListAsCancelDoes) {
    form_->at("Text2", 0).text = "H";
    whenShown([&](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    callList();
    EXPECT_EQ(desktop().findForm("F6_K1Help"), nullptr);
    EXPECT_EQ(form_->at("Text2", 0).text, "H");
    EXPECT_EQ(form_->at("Text3", 0).tag, "MONEY");
    EXPECT_EQ(desktop().focus(), &form_->at("Text2", 0));
    EXPECT_FALSE(members_.listCancelled) << "only the Cancel button sets it";
}

// The shipped lists of one box of each form and the longest list, drawn as the dialog shows them. With
// LW_SCREENSHOT_DIR set the pictures are kept there to be looked at.
TEST_F(K1ListTest, TheShippedListsDrawEveryRowInsideTheDialog) {
    program_->g.edition.k1HelpInfFile = std::string(LW_BIN_DIR) + "/K1Help.inf";
    for (const char* key : {"K1-1041-Box13", "K1-1065-Box15", "K1-1065-Box20", "K1-1120S-Box17"}) {
        members_.listSectionKey = key;
        Form& list =
            desktop().load(std::make_unique<K1HelpForm>(members_, program_->g.edition.k1HelpInfFile), false);
        const QImage picture = renderForm(list);
        const Control& grid = list.at("Grid1");
        EXPECT_GT(grid.items.size(), 8u) << key;
        const int rowsBottom = controlRect(grid, kScreenScale).top() +
                               static_cast<int>(grid.items.size()) * rowHeight(grid, kScreenScale);
        EXPECT_LE(rowsBottom, controlRect(grid, kScreenScale).bottom() + 1) << key << ": rows cut off";
        EXPECT_EQ(picture.size(), formSize(list, kScreenScale));
        const QString folder = qEnvironmentVariable("LW_SCREENSHOT_DIR");
        if (!folder.isEmpty()) picture.save(QDir(folder).filePath(QString::fromLatin1(key) + ".png"));
        desktop().unload(list);
    }
}

}  // namespace
}  // namespace lw::ui::test
