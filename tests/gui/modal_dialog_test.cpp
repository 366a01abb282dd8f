// A modal box runs as a dialog until the model unloads its form; the end of the program leaves it too.
#include "ui/modal_dialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "gui_fixture.h"
#include "model/app_error.h"
#include "ui/form_view.h"
#include "ui/input_bridge.h"

namespace lw::ui::test {
namespace {

class Box : public Form {
public:
    Box() : Form("F9_MBX") {
        isChild = false;
        caption = "Question";
        width = 3000;
        height = 1500;
        Control& answer = add(ControlKind::TextBox, "Text1");
        answer.left = 150;
        answer.top = 150;
        answer.width = 2000;
        answer.height = 300;
        Control& ok = add(ControlKind::CommandButton, "cmdOK");
        ok.caption = "OK";
        ok.left = 150;
        ok.top = 750;
        ok.width = 1200;
        ok.height = 375;
    }
    bool quitOnOk = false;
    bool refuseClose = false;
    void onLoad() override { setFocus(at("Text1")); }
    void onQueryUnload(bool& cancel) override { cancel = refuseClose; }
    void onClick(Control& control, MouseButton) override {
        if (control.name != "cmdOK") return;
        if (quitOnOk) program().ui.quit();
        unload();
    }
};

// Runs `step` once the box's dialog is on the screen.
void whenShown(const std::function<void(QDialog&)>& step) {
    QTimer::singleShot(0, [step] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* dialog = qobject_cast<QDialog*>(widget);
            if (dialog && dialog->isVisible()) {
                step(*dialog);
                return;
            }
        }
        ADD_FAILURE() << "no dialog on the screen";
    });
}

using ModalDialogTest = GuiTest;

TEST_F(ModalDialogTest, TheBoxRunsUntilItsFormIsUnloaded) {
    Box& box = load<Box>();
    std::string typed;
    QString title;
    QSize size;
    whenShown([&](QDialog& dialog) {
        title = dialog.windowTitle();
        size = dialog.size();
        auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("Text1"));
        ASSERT_NE(field, nullptr);
        QTest::keyClicks(field, QStringLiteral("yes"));
        typed = box.at("Text1").text;
        QTest::mouseClick(dialog.findChild<QAbstractButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    });
    desktop().showModal(box);
    EXPECT_EQ(title, QStringLiteral("Question"));
    EXPECT_EQ(size, QSize(200, 100));
    EXPECT_EQ(typed, "yes");
    EXPECT_EQ(desktop().findForm("F9_MBX"), nullptr);
}

TEST_F(ModalDialogTest, TheCloseBoxAsksTheForm) {
    Box& box = load<Box>();
    box.refuseClose = true;
    bool stillOpen = false;
    whenShown([&](QDialog& dialog) {
        dialog.close();
        stillOpen = dialog.isVisible();
        box.refuseClose = false;
        dialog.close();
    });
    desktop().showModal(box);
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ(desktop().findForm("F9_MBX"), nullptr);
}

TEST_F(ModalDialogTest, TheEndOfTheProgramLeavesTheBoxAndReachesTheDriver) {
    Box& box = load<Box>();
    box.quitOnOk = true;
    whenShown([&](QDialog& dialog) {
        QTest::mouseClick(dialog.findChild<QAbstractButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    });
    EXPECT_THROW(desktop().showModal(box), ProgramEnded);
    EXPECT_TRUE(programEnded());
}

}  // namespace
}  // namespace lw::ui::test
