// The frame window: its menus mirror the frame form's, its panel forwards presses, its child area
// shows the active child form.
#include "ui/frame_window.h"

#include <QAbstractButton>
#include <QAction>
#include <QLineEdit>
#include <QMenuBar>
#include <QApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include "gui_fixture.h"
#include "ui/form_view.h"
#include "ui/qt_text.h"

namespace lw::ui::test {
namespace {

class TestFrame : public Form {
public:
    TestFrame() : Form("F0_MDI") {
        isChild = false;
        caption = "Ledgerwick - Test";
        width = 12000;
        height = 9000;
        Control& panel = add(ControlKind::Picture, "picLegends");
        panel.width = 1680;
        panel.height = 9000;
        panel.backColor = kButtonFace;
        panel.tabStop = false;
        const char* captions[] = {"Open", "Save"};
        const char* icons[] = {"open", "save"};
        for (int i = 0; i < 2; ++i) {
            Control& button = add(ControlKind::CommandButton, "cmdBtn", i);
            button.caption = captions[i];
            button.picture = icons[i];
            button.left = 120;
            button.top = 120 + i * 720;
            button.width = 1440;
            button.height = 660;
            button.tabStop = false;
        }
        Control& legend = add(ControlKind::TextBox, "txtLegend", 0);
        legend.text = "Money";
        legend.toolTipText = "Dollar Amount";
        legend.backColor = 0x0000FF00;
        legend.locked = true;
        legend.tabStop = false;
        legend.left = 120;
        legend.top = 1800;
        legend.width = 1440;
        legend.height = 300;
        menus.push_back(MenuItem{"mnuControl", "Control", true, true, {}});
        menus.back().items = {MenuItem{"mnuControlOpen", "Open File", true, true, {}},
                              MenuItem{"mnuSep1", "-", true, true, {}},
                              MenuItem{"mnuControlConfigure", "Rates && Printer", true, true, {}},
                              MenuItem{"mnuControlQuit", "Quit", true, true, {}}};
    }
    std::vector<std::string> chosen;
    std::vector<std::string> clicked;
    void onMenu(const std::string& item) override { chosen.push_back(item); }
    void onClick(Control& control, MouseButton) override { clicked.push_back(control.key()); }
};

class FrameWindowTest : public GuiTest {
protected:
    void SetUp() override {
        GuiTest::SetUp();
        auto owned = std::make_unique<TestFrame>();
        frame_ = owned.get();
        desktop().setFrame(*frame_);
        desktop().load(std::move(owned));
        window_ = std::make_unique<FrameWindow>(*frame_);
        ui_.setFrameWindow(window_.get());
        show(*window_);
    }
    void TearDown() override {
        window_.reset();
        GuiTest::TearDown();
    }
    TestFrame* frame_ = nullptr;
    std::unique_ptr<FrameWindow> window_;
};

TEST_F(FrameWindowTest, TheMenuBarMirrorsTheFrameFormsMenus) {
    QAction* open = window_->menuAction(QStringLiteral("mnuControlOpen"));
    ASSERT_NE(open, nullptr);
    EXPECT_TRUE(open->isEnabled());
    EXPECT_TRUE(window_->menuAction(QStringLiteral("mnuSep1"))->isSeparator());
    EXPECT_EQ(window_->menuAction(QStringLiteral("mnuControlConfigure"))->iconText(),
              QStringLiteral("Rates & Printer"));

    frame_->findMenu("mnuControlOpen")->enabled = false;
    frame_->findMenu("mnuControlQuit")->visible = false;
    refreshAll();
    EXPECT_FALSE(open->isEnabled());
    EXPECT_FALSE(window_->menuAction(QStringLiteral("mnuControlQuit"))->isVisible());

    window_->menuAction(QStringLiteral("mnuControlConfigure"))->trigger();
    ASSERT_EQ(frame_->chosen.size(), 1u);
    EXPECT_EQ(frame_->chosen[0], "mnuControlConfigure");
}

TEST_F(FrameWindowTest, TheTitleIsTheFrameFormsCaption) {
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("Ledgerwick - Test"));
    frame_->caption = "Ledgerwick - Test - Venturo";
    refreshAll();
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("Ledgerwick - Test - Venturo"));
}

TEST_F(FrameWindowTest, APanelButtonIsPressedInTheModel) {
    auto* save = window_->findChild<QAbstractButton*>(QStringLiteral("cmdBtn_1"));
    ASSERT_NE(save, nullptr);
    EXPECT_EQ(save->text(), QStringLiteral("Save"));
    EXPECT_FALSE(save->icon().isNull());
    QTest::mouseClick(save, Qt::LeftButton);
    ASSERT_EQ(frame_->clicked.size(), 1u);
    EXPECT_EQ(frame_->clicked[0], "cmdBtn(1)");
    // A disabled command cannot be pressed.
    frame_->at("cmdBtn", 0).enabled = false;
    refreshAll();
    QTest::mouseClick(window_->findChild<QAbstractButton*>(QStringLiteral("cmdBtn_0")), Qt::LeftButton);
    EXPECT_EQ(frame_->clicked.size(), 1u);
}

TEST_F(FrameWindowTest, TheLegendShowsItsColourTextAndTip) {
    auto* money = window_->findChild<QLineEdit*>(QStringLiteral("txtLegend_0"));
    ASSERT_NE(money, nullptr);
    EXPECT_EQ(money->text(), QStringLiteral("Money"));
    EXPECT_EQ(money->toolTip(), QStringLiteral("Dollar Amount"));
    EXPECT_EQ(money->palette().color(QPalette::Base), QColor(0, 255, 0));
    EXPECT_TRUE(money->isReadOnly());
}

TEST_F(FrameWindowTest, AClickOnThePanelBackgroundGoesToPicLegends) {
    QTest::mouseClick(window_->panelView(), Qt::LeftButton, {}, QPoint(5, 500));
    ASSERT_FALSE(frame_->clicked.empty());
    EXPECT_EQ(frame_->clicked.back(), "picLegends");
}

TEST_F(FrameWindowTest, TheActiveChildIsShownInTheChildArea) {
    EXPECT_EQ(window_->childView(), nullptr);
    TwoFields& child = load<TwoFields>();
    ASSERT_NE(window_->childView(), nullptr);
    EXPECT_EQ(window_->childView()->form(), &child);
    EXPECT_EQ(window_->findChild<QScrollArea*>(QStringLiteral("childArea"))->widget(), window_->childView());
    child.unload();
    EXPECT_EQ(window_->childView(), nullptr);
}

TEST_F(FrameWindowTest, AChildStandsAtTheTopOfTheChildAreaCentredAcrossIt) {
    window_->resize(1400, 800);
    TwoFields& child = load<TwoFields>();
    QApplication::processEvents();
    auto* area = window_->findChild<QScrollArea*>(QStringLiteral("childArea"));
    const QWidget* view = window_->childView();
    ASSERT_LT(view->width(), area->viewport()->width());
    EXPECT_EQ(view->y(), 0);
    const int left = view->x();
    const int right = area->viewport()->width() - view->x() - view->width();
    EXPECT_LE(std::abs(left - right), 1) << "left " << left << ", right " << right;
    child.unload();
}

// A form wider and taller than any screen of the tests.
class WideFields : public TwoFields {
public:
    WideFields() {
        width = 30000;  // 2000 pixels
        height = 15000;
    }
};

TEST_F(FrameWindowTest, TheWindowGrowsForAWideFormUpToTheScreenAndThenScrolls) {
    window_->resize(300, 200);
    WideFields& child = load<WideFields>();
    QApplication::processEvents();
    const QRect room = window_->screen()->availableGeometry();
    EXPECT_GT(window_->width(), 300);
    EXPECT_LE(window_->frameGeometry().width(), room.width());
    EXPECT_LE(window_->frameGeometry().height(), room.height());
    EXPECT_TRUE(room.contains(window_->frameGeometry().topLeft()));
    auto* area = window_->findChild<QScrollArea*>(QStringLiteral("childArea"));
    EXPECT_GT(area->horizontalScrollBar()->maximum(), 0) << "the rest of the form is reached by scrolling";
    child.unload();
}

}  // namespace
}  // namespace lw::ui::test
