#include "model/containers.h"

#include <gtest/gtest.h>

#include "model/form.h"

namespace lw {
namespace {

struct Pages : ::testing::Test {
    Form form{"TF_PAGES"};
    Control& tabs = form.add(ControlKind::TabControl, "SSTab1");
    Control& top = form.add(ControlKind::Picture, "Pic1L");
    Control& bottom = form.add(ControlKind::Picture, "Pic2L");
    Control& upper = form.add(ControlKind::TextBox, "Text1", 0);
    Control& lower = form.add(ControlKind::TextBox, "Text1", 1);
    void SetUp() override {
        tabs.items = {"Top", "Bottom"};
        tabs.place(100, 50, 5000, 4000);
        top.place(0, 360, 2000, 3000);
        bottom.place(0, 360, 2000, 3000);
        placeInside(top, tabs, 0);
        placeInside(bottom, tabs, 1);
        upper.place(120, 200, 900, 255);
        lower.place(120, 200, 900, 255);
        placeInside(upper, top);
        placeInside(lower, bottom);
    }
};

TEST_F(Pages, OnlyThePageOnShowIsShownAndItsControlsStayVisibleToTheLogic) {
    EXPECT_EQ(tabOf(tabs), 0);
    EXPECT_TRUE(isShown(upper));
    EXPECT_FALSE(isShown(lower));
    EXPECT_TRUE(lower.visible);
    EXPECT_TRUE(lower.canTakeFocus()) << "a field on a hidden page still takes the focus";
    ASSERT_TRUE(setTab(tabs, 1));
    EXPECT_EQ(tabs.text, "Bottom");
    EXPECT_FALSE(isShown(upper));
    EXPECT_TRUE(isShown(lower));
    EXPECT_FALSE(setTab(tabs, 2));
    EXPECT_EQ(tabOf(tabs), 1);
    bottom.visible = false;
    EXPECT_FALSE(isShown(lower)) << "a hidden container hides what it holds";
}

TEST_F(Pages, APlaceIsRelativeToEveryContainerAbove) {
    EXPECT_EQ(formLeft(upper), 220);
    EXPECT_EQ(formTop(upper), 610);
    top.top = 0;
    EXPECT_EQ(formTop(upper), 250) << "moving a panel moves what it holds";
    EXPECT_EQ(originLeft(upper), 100);
    EXPECT_EQ(formLeft(tabs), 100);
}

TEST(TabIndex, ASetIndexPushesTheOthersBackWithoutAGap) {
    Form form("F");
    Control& a = form.add(ControlKind::TextBox, "A");
    Control& b = form.add(ControlKind::TextBox, "B");
    Control& c = form.add(ControlKind::TextBox, "C");
    form.setTabIndex(c, 0);
    EXPECT_EQ(c.tabIndex, 0);
    EXPECT_EQ(a.tabIndex, 1);
    EXPECT_EQ(b.tabIndex, 2);
    form.setTabIndex(a, 99);
    EXPECT_EQ(c.tabIndex, 0);
    EXPECT_EQ(b.tabIndex, 1);
    EXPECT_EQ(a.tabIndex, 2);
}

}  // namespace
}  // namespace lw
