#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "opened_form.h"

namespace lw {
namespace {

// The 1099-Q and 1099-SA have one group of boxes of which at most one is marked.
struct ExclusiveChecks : ::testing::TestWithParam<std::pair<const char*, std::vector<int>>> {
    testing::TestProgram test;
    Form* form = nullptr;

    void SetUp() override {
        form = testing::openFromMenu(test, GetParam().first);
        ASSERT_NE(form, nullptr);
    }
    const std::vector<int>& group() const { return GetParam().second; }
    Control& check(int i) { return form->at("Check", i); }
    void click(int i) { test.program->desktop.click(check(i)); }
    std::string marks() {
        std::string shown;
        for (int i : group()) shown += check(i).caption.empty() ? "." : "X";
        return shown;
    }
};

TEST_P(ExclusiveChecks, MarkingOneClearsTheOthers) {
    click(group()[0]);
    EXPECT_EQ(marks(), "X..");
    click(group()[1]);
    EXPECT_EQ(marks(), ".X.");
    click(group()[2]);
    EXPECT_EQ(marks(), "..X");
}

TEST_P(ExclusiveChecks, ASecondClickOnTheMarkedBoxLeavesNoneMarked) {
    click(group()[1]);
    click(group()[1]);
    EXPECT_EQ(marks(), "...");
}

TEST_P(ExclusiveChecks, AGroupWithSeveralMarksFromAFileKeepsOnlyTheClickedOne) {
    for (int i : group()) check(i).caption = "X";
    click(group()[2]);
    EXPECT_EQ(marks(), "...") << "the clicked box was marked, so the click unmarks it with the rest";
    for (int i : group()) check(i).caption = "X";
    check(group()[0]).caption.clear();
    click(group()[0]);
    EXPECT_EQ(marks(), "X..");
}

TEST_P(ExclusiveChecks, BoxesOutsideTheGroupToggleOnTheirOwn) {
    click(group()[0]);
    int outside = -1;
    for (const Control* c : form->arrayOf("Check"))
        if (std::find(group().begin(), group().end(), c->index) == group().end()) outside = c->index;
    ASSERT_GE(outside, 0);
    click(outside);
    EXPECT_EQ(check(outside).caption, "X");
    EXPECT_EQ(marks(), "X..");
    click(outside);
    EXPECT_EQ(check(outside).caption, "");
}

INSTANTIATE_TEST_SUITE_P(Forms, ExclusiveChecks,
                         ::testing::Values(std::make_pair("mnu1099Q", std::vector<int>{1, 2, 3}),
                                           std::make_pair("mnu1099SA", std::vector<int>{2, 3, 4})));

}  // namespace
}  // namespace lw
