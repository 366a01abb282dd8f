#include "forms/form_1099b.h"

#include <gtest/gtest.h>

#include "model/keys.h"
#include "opened_form.h"

namespace lw {
namespace {

// The 1099-B opened from its menu item: its contract boxes are outside the training.
struct Form1099BTest : testing::OpenedForm<Form1099B> {
    Form1099BTest() : OpenedForm("mnu1099B", "TF_1099B") {}
};

TEST_F(Form1099BTest, TheContractBoxesSayTheyAreOutOfScope) {
    for (int i = 21; i <= 24; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(field(i).tag, "OUT OF SCOPE");
        EXPECT_EQ(field(i).text, "OUT OF SCOPE");
        EXPECT_EQ(field(i).alignment, 2);
        EXPECT_EQ(field(i).backColor, 0x00DCDCDCu);
        EXPECT_FALSE(field(i).tabStop);
    }
    // The fields around them are as drawn.
    EXPECT_EQ(field(20).text, "");
    EXPECT_EQ(field(25).text, "");
    EXPECT_EQ(field(25).backColor, kWhite);
}

TEST_F(Form1099BTest, TabPassesOverThem) {
    desktop().setFocus(field(20));
    ASSERT_EQ(focus(), &field(20));
    tab();
    EXPECT_EQ(focus(), &field(25));
    tab(true);
    EXPECT_EQ(focus(), &field(20));
}

TEST_F(Form1099BTest, AClickOrACallNeverGivesThemTheFocus) {
    desktop().setFocus(field(19));
    for (int i = 21; i <= 24; ++i) {
        SCOPED_TRACE(i);
        desktop().click(field(i));
        EXPECT_EQ(focus(), &field(19));
        form->setFocus(field(i));
        EXPECT_EQ(focus(), &field(19));
        EXPECT_EQ(field(i).backColor, 0x00DCDCDCu);
    }
    EXPECT_TRUE(test.ui.reports.empty());
}

TEST_F(Form1099BTest, TheTermMarksExcludeEachOther) {
    Control& shortTerm = form->at("Check", 2);
    Control& longTerm = form->at("Check", 3);
    desktop().click(shortTerm);
    EXPECT_EQ(shortTerm.caption, "X");
    desktop().click(longTerm);
    EXPECT_EQ(longTerm.caption, "X");
    EXPECT_EQ(shortTerm.caption, "");
    desktop().click(form->at("Check", 12));
    desktop().click(form->at("Check", 11));
    EXPECT_EQ(form->at("Check", 11).caption, "X");
    EXPECT_EQ(form->at("Check", 12).caption, "");
}

}  // namespace
}  // namespace lw
