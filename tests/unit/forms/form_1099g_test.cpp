#include "forms/form_1099g.h"

#include <gtest/gtest.h>

#include "model/keys.h"
#include "opened_form.h"

namespace lw {
namespace {

// The 1099-G opened from its menu item, with the operator's typing and moves.
struct Form1099GYearBox : testing::OpenedForm<Form1099G> {
    Form1099GYearBox() : OpenedForm("mnu1099G", "TF_1099G") {}
    Control& yearBox() { return field(5); }
};

TEST_F(Form1099GYearBox, IsBox3WithItsTypeAndLength) {
    EXPECT_EQ(yearBox().tag, "TaxYear1099G");
    EXPECT_EQ(yearBox().maxLength, 4);
    EXPECT_EQ(yearBox().alignment, 2);
    EXPECT_EQ(yearBox().tabIndex, 7);
    EXPECT_EQ(form->caption, "");
}

TEST_F(Form1099GYearBox, TwoDigitsGetTheCentury) {
    typeInto(yearBox(), "24");
    tab();
    EXPECT_EQ(yearBox().text, "2024");
    EXPECT_EQ(focus(), &field(6));
}

TEST_F(Form1099GYearBox, FourDigitsStandAsTyped) {
    typeInto(yearBox(), "2019");
    tab();
    EXPECT_EQ(yearBox().text, "2019");
    EXPECT_EQ(focus(), &field(6));
}

TEST_F(Form1099GYearBox, EmptyPasses) {
    desktop().setFocus(yearBox());
    tab();
    EXPECT_EQ(yearBox().text, "");
    EXPECT_EQ(focus(), &field(6));
}

TEST_F(Form1099GYearBox, ThreeDigitsKeepTheFocus) {
    typeInto(yearBox(), "202");
    tab();
    EXPECT_EQ(yearBox().text, "202");
    EXPECT_EQ(focus(), &yearBox());
    // Back in the box, it has the look of a focused field and its text is selected for retyping.
    EXPECT_EQ(yearBox().backColor, test.program->g.edition.legendColors[9]);
    EXPECT_EQ(yearBox().selStart(), 0);
    EXPECT_EQ(yearBox().selLength(), 3);
}

TEST_F(Form1099GYearBox, OneDigitKeepsTheFocusAlsoWhenLeftBackwardsOrByAClick) {
    typeInto(yearBox(), "7");
    desktop().pressKey(keys::kTab, keys::kShiftMask, keys::kTab);
    EXPECT_EQ(focus(), &yearBox());
    desktop().click(field(12));
    EXPECT_EQ(focus(), &yearBox());
    EXPECT_EQ(yearBox().text, "7");
}

TEST_F(Form1099GYearBox, AYearPutRightLeavesForTheNextField) {
    typeInto(yearBox(), "202");
    tab();
    ASSERT_EQ(focus(), &yearBox());
    // The text came back selected: the operator goes to its end and adds the digit left out.
    desktop().pressKey(keys::kEnd, 0, 0);
    desktop().typeCharacter('3');
    EXPECT_EQ(yearBox().text, "2023");
    tab();
    EXPECT_EQ(focus(), &field(6));
    EXPECT_EQ(yearBox().text, "2023");
}

TEST_F(Form1099GYearBox, LeavingGivesTheRestLook) {
    typeInto(yearBox(), "25");
    desktop().click(field(1));
    EXPECT_EQ(yearBox().text, "2025");
    EXPECT_EQ(yearBox().backColor, kWhite);
    EXPECT_EQ(yearBox().foreColor, kBlack);
    EXPECT_EQ(focus(), &field(1));
}

TEST_F(Form1099GYearBox, OtherFieldsAreNotCompleted) {
    typeInto(field(12), "24");
    tab();
    EXPECT_EQ(field(12).text, "24");
    typeInto(field(13), "NY");
    tab();
    EXPECT_EQ(field(13).text, "NY");
    EXPECT_EQ(focus(), &field(14));
}

}  // namespace
}  // namespace lw
