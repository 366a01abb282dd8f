// A form on a two-page tab control: only the page on show has its fields on the screen, a click on a
// tab turns the page, and a field's place counts the panels it stands in.
#include <QAccessible>
#include <QLineEdit>
#include <QTest>

#include "gui_fixture.h"
#include "model/containers.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"
#include "ui/input_bridge.h"

namespace lw::ui::test {
namespace {

class TwoPages : public Form {
public:
    TwoPages() : Form("TF_PAGES") {
        width = 6000;
        height = 4500;
        Control& tabs = add(ControlKind::TabControl, "SSTab1");
        tabs.items = {"Top", "Bottom"};
        tabs.listIndex = 0;
        tabs.place(0, 0, 6000, 4200);
        for (int page = 0; page < 2; ++page) {
            Control& panel = add(ControlKind::Picture, page == 0 ? "Pic1L" : "Pic2L");
            panel.place(0, 360, 6000, 3800);
            placeInside(panel, tabs, page);
            Control& field = add(ControlKind::TextBox, "Text1", page);
            field.place(300, 600 + page * 600, 2400, 285);
            placeInside(field, panel);
        }
    }
};

class TabPagesTest : public FormViewTest<TwoPages> {
protected:
    QLineEdit* editor(int index) const {
        return view_->findChild<QLineEdit*>(QStringLiteral("Text1_%1").arg(index));
    }
};

TEST_F(TabPagesTest, OnlyTheFieldsOfThePageOnShowAreOnTheScreen) {
    ASSERT_NE(editor(0), nullptr);
    ASSERT_NE(editor(1), nullptr);
    EXPECT_TRUE(editor(0)->isVisible());
    EXPECT_FALSE(editor(1)->isVisible());
    // The field stands inside its panel, which stands below the tab strip.
    EXPECT_EQ(editor(0)->geometry().topLeft(),
              QPoint(toPixels(300, kScreenScale), toPixels(960, kScreenScale)));
}

TEST_F(TabPagesTest, AScreenReaderFindsTheTabsAndPressingOneTurnsThePage) {
    QAccessibleInterface* view = QAccessible::queryAccessibleInterface(view_.get());
    QAccessibleInterface* tabs = nullptr;
    for (int i = 0; i < view->childCount() && !tabs; ++i)
        if (view->child(i)->role() == QAccessible::PageTabList) tabs = view->child(i);
    ASSERT_NE(tabs, nullptr);
    ASSERT_EQ(tabs->childCount(), 2);
    QAccessibleInterface* bottom = tabs->child(1);
    EXPECT_EQ(bottom->role(), QAccessible::PageTab);
    EXPECT_EQ(bottom->text(QAccessible::Name), QStringLiteral("Bottom"));
    EXPECT_TRUE(tabs->child(0)->state().selected);
    EXPECT_FALSE(bottom->state().selected);
    ASSERT_NE(bottom->actionInterface(), nullptr);
    bottom->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(tabOf(form_->at("SSTab1")), 1);
    EXPECT_TRUE(bottom->state().selected);
    EXPECT_TRUE(editor(1)->isVisible());
}

TEST_F(TabPagesTest, AClickOnTheSecondTabTurnsThePage) {
    Control& tabs = form_->at("SSTab1");
    const QRect strip = controlRect(tabs, kScreenScale);
    QTest::mouseClick(view_.get(), Qt::LeftButton, {}, QPoint(strip.right() - 5, strip.top() + 5));
    EXPECT_EQ(tabOf(tabs), 1);
    EXPECT_FALSE(editor(0)->isVisible());
    EXPECT_TRUE(editor(1)->isVisible());
    QTest::mouseClick(view_.get(), Qt::LeftButton, {}, QPoint(strip.left() + 5, strip.top() + 5));
    EXPECT_EQ(tabOf(tabs), 0);
    EXPECT_TRUE(editor(0)->isVisible());
}

// Showing a widget under the mouse costs a round trip to the window system: a turn shows the page as one.
TEST_F(TabPagesTest, APageTurnShowsOnePageLayerAndLeavesItsFieldsAlone) {
    QWidget* top = editor(0)->parentWidget();
    QWidget* bottom = editor(1)->parentWidget();
    ASSERT_NE(top, view_.get());
    ASSERT_NE(bottom, top);
    EXPECT_EQ(bottom->parentWidget(), view_.get());
    EXPECT_FALSE(editor(1)->isHidden()) << "the field itself waits, shown, on its page's hidden layer";
    forwardInput([&] { setTab(form_->at("SSTab1"), 1); });
    EXPECT_TRUE(bottom->isVisible());
    EXPECT_FALSE(top->isVisible());
    EXPECT_FALSE(editor(0)->isHidden());
    EXPECT_EQ(bottom->geometry(), view_->rect()) << "the layer lies over the whole form";
    EXPECT_EQ(bottom->accessibleName(), QStringLiteral("Bottom")) << "a screen reader names the page";
}

TEST_F(TabPagesTest, AClickOnTheFaceThroughAPageLayerStillReachesTheForm) {
    Control& tabs = form_->at("SSTab1");
    const QRect strip = controlRect(tabs, kScreenScale);
    const QPoint onBottomTab(strip.right() - 5, strip.top() + 5);
    // Where the window system would deliver it: the deepest widget at the point.
    QWidget* under = view_->childAt(onBottomTab);
    ASSERT_NE(under, nullptr) << "the page layer covers the tab strip";
    QTest::mouseClick(under, Qt::LeftButton, {}, under->mapFrom(view_.get(), onBottomTab));
    EXPECT_EQ(tabOf(tabs), 1);
    EXPECT_TRUE(editor(1)->isVisible());
}

TEST_F(TabPagesTest, TheFocusMovedByTheLogicToTheOtherPageShowsItWhenThePageTurns) {
    forwardInput([&] {
        setTab(form_->at("SSTab1"), 1);
        desktop().setFocus(form_->at("Text1", 1));
    });
    EXPECT_TRUE(editor(1)->isVisible());
    EXPECT_FALSE(editor(0)->isVisible());
    EXPECT_EQ(desktop().focus(), &form_->at("Text1", 1));
}

}  // namespace
}  // namespace lw::ui::test
