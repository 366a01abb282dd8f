#include "model/containers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

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

TEST_F(Pages, OnItsPageAControlShowsAsItWouldOnceThePageIsTurnedTo) {
    EXPECT_TRUE(isShownOnItsPage(upper));
    EXPECT_TRUE(isShownOnItsPage(lower)) << "its page is turned away, nothing else hides it";
    bottom.visible = false;
    EXPECT_FALSE(isShownOnItsPage(lower)) << "a hidden panel on the page still hides it";
    bottom.visible = true;
    tabs.visible = false;
    EXPECT_FALSE(isShownOnItsPage(upper)) << "a hidden tab control hides every page";
}

TEST_F(Pages, OnlyTheInnermostTabControlsPageCountsAsOnShow) {
    Control& outer = form.add(ControlKind::TabControl, "SSTab2");
    outer.items = {"One", "Two"};
    placeInside(tabs, outer, 1);
    EXPECT_FALSE(isShownOnItsPage(upper)) << "the outer tab control shows its first page";
    ASSERT_TRUE(setTab(outer, 1));
    EXPECT_TRUE(isShownOnItsPage(lower));
    EXPECT_FALSE(isShown(lower));
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

// The order a designer's TabIndex makes: the others in their order, the control put in at its place.
void reorderAsDesigned(Form& form, Control& control, int tabIndex) {
    std::vector<Control*> order;
    for (const auto& c : form.controls())
        if (c.get() != &control) order.push_back(c.get());
    std::stable_sort(order.begin(), order.end(),
                     [](const Control* a, const Control* b) { return a->tabIndex < b->tabIndex; });
    const auto at = static_cast<std::size_t>(std::clamp(tabIndex, 0, static_cast<int>(order.size())));
    order.insert(order.begin() + static_cast<std::ptrdiff_t>(at), &control);
    for (std::size_t i = 0; i < order.size(); ++i) order[i]->tabIndex = static_cast<int>(i);
}

TEST(TabIndex, ManyMovesLeaveTheOrderADesignerWouldMake) {
    std::mt19937 random(20251125);
    for (int round = 0; round < 40; ++round) {
        Form form("F"), designed("F");
        const int count = 3 + round % 17;
        for (int i = 0; i < count; ++i) {
            // Some forms start with gaps and doubles in their indexes, others in order.
            const int start = round % 2 ? static_cast<int>(random() % 7) : count - 1 - i;
            form.add(ControlKind::TextBox, "Text1", i).tabIndex = start;
            designed.add(ControlKind::TextBox, "Text1", i).tabIndex = start;
        }
        for (int move = 0; move < 30; ++move) {
            const int which = static_cast<int>(random() % count);
            const int place = static_cast<int>(random() % (count + 3)) - 1;
            form.setTabIndex(*form.controls()[which], place);
            reorderAsDesigned(designed, *designed.controls()[which], place);
            for (int i = 0; i < count; ++i)
                ASSERT_EQ(form.controls()[i]->tabIndex, designed.controls()[i]->tabIndex)
                    << "round " << round << ", move " << move << ", control " << i;
        }
    }
}

}  // namespace
}  // namespace lw
