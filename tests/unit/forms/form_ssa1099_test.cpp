#include "forms/form_ssa1099.h"

#include <gtest/gtest.h>

#include "benefit_form_fixture.h"
#include "diagnostics/message_box.h"
#include "model/keys.h"

namespace lw {
namespace {

const char* const kNetBenefitsMessage =
    "Message Number: 801\r\n"
    "SSA1099 - Error in Social Security Computations\r\n"
    "Box 5. Net Benefits... is LESS THAN ZERO\r\n"
    "Make corrections before continuing.";

// The SSA-1099 opened from its menu item on 10 June 2025, whose Part B premium is 2220.00.
struct SsaForm : testing::BenefitForm<FormSsa1099> {
    SsaForm() : BenefitForm("mnuSSA1099", "TF_SSA1099", 6) {}
};

TEST_F(SsaForm, OpensWithThePremiumOfTheYearAndNothingComputed) {
    EXPECT_EQ(box(6).text, "2220.00") << "box 3 is empty, so the premium stays as the rates file has it";
    EXPECT_EQ(box(4).text, "");
    EXPECT_EQ(box(16).text, "");
    EXPECT_FALSE(form->computationFailed);
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(SsaForm, WorkedExample) {
    typeInto(2, "18000");
    tab();
    typeInto(6, "2,000.00");
    tab();
    EXPECT_EQ(box(2).text, "$18,000.00");
    EXPECT_EQ(box(4).text, "$18,000.00");
    EXPECT_EQ(box(16).text, "$2,000.00");
    EXPECT_EQ(box(5).text, "$16,000.00");
    EXPECT_EQ(box(8).text, "$18,000.00");
    EXPECT_EQ(box(3).text, "");
    EXPECT_EQ(box(7).text, "");
    EXPECT_EQ(focus(), &box(7));
    EXPECT_EQ(form->myIndex, 7);
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(SsaForm, TheMessageIsTheWholeTextWithItsNumberAndOneButton) {
    withoutPremium();
    typeInto(2, "100");
    tab();
    typeInto(3, "250.5");
    tab();
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_EQ(test.ui.boxes[0], kNetBenefitsMessage);
    const auto& shown = lastMessageBox();
    ASSERT_TRUE(shown.has_value());
    EXPECT_EQ(shown->title, "TF_SSA1099:ComputeSSA");
    EXPECT_EQ(shown->number, 801);
    EXPECT_EQ(shown->buttons[0], "OK");
    EXPECT_EQ(shown->buttons[1], "");
    EXPECT_EQ(shown->buttons[2], "");
    EXPECT_EQ(shown->buttons[3], "");
    EXPECT_FALSE(shown->showText);
    EXPECT_EQ(shown->defaultButton, MessageBoxButton::First);
    EXPECT_EQ(box(4).text, "-$150.50");
    EXPECT_EQ(box(4).foreColor, kRed);
    EXPECT_TRUE(form->computationFailed);
    EXPECT_EQ(focus(), &box(6)) << "the focus moves on: the error does not keep it";
}

TEST_F(SsaForm, PaidByCheckBelowNoughtIsMessage802) {
    withoutPremium();
    typeInto(2, "100");
    tab();
    typeInto(7, "5000");
    tab();
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_EQ(test.ui.boxes[0],
              "Message Number: 802\r\nSSA1099 - Error in Social Security Computations\r\n"
              "Paid by Check or Direct Deposit is LESS THAN ZERO\r\nMake corrections before continuing.");
    EXPECT_EQ(box(5).text, "-$4,900.00");
    EXPECT_EQ(box(5).foreColor, kRed);
    EXPECT_EQ(box(4).foreColor, kBlack);
    EXPECT_TRUE(form->computationFailed);
}

TEST_F(SsaForm, BenefitsOfTheYearBelowNoughtIsMessage803NamingBox3) {
    withoutPremium();
    typeInto(2, "100");
    tab();
    typeInto(11, "99999");
    tab();
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_EQ(test.ui.boxes[0],
              "Message Number: 803\r\nSSA1099 - Error in Social Security Computations\r\n"
              " Box 3. Benefits Paid in 2025 is LESS THAN ZERO\r\nMake corrections before continuing.");
    EXPECT_EQ(box(8).text, "-$99,899.00");
    EXPECT_EQ(box(8).foreColor, kRed);
    EXPECT_EQ(box(5).foreColor, kBlack);
}

TEST_F(SsaForm, TheFlagSkipsOnePassAndAComputationThatEndsCleanClearsIt) {
    withoutPremium();
    typeInto(2, "100");
    tab();
    typeInto(3, "200");
    tab();
    ASSERT_TRUE(form->computationFailed);
    // On the way back to box 4 the field left computes nothing, and no second message comes.
    desktop().setFocus(box(3));
    EXPECT_FALSE(form->computationFailed);
    EXPECT_EQ(test.ui.boxes.size(), 1u);
    for (char ch : std::string("50")) desktop().typeCharacter(ch);
    tab();
    EXPECT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_FALSE(form->computationFailed);
    EXPECT_EQ(box(4).text, "$50.00");
    EXPECT_EQ(box(4).foreColor, kBlack);
}

TEST_F(SsaForm, AnErrorLeftStandingIsReportedAgainAfterTheSkippedPass) {
    withoutPremium();
    typeInto(2, "100");
    tab();
    typeInto(3, "200");
    tab();
    desktop().setFocus(box(7));  // the skipped pass
    EXPECT_EQ(test.ui.boxes.size(), 1u);
    desktop().setFocus(box(9));  // computes: box 5 is still below nought
    EXPECT_EQ(test.ui.boxes.size(), 2u);
    EXPECT_TRUE(form->computationFailed);
}

TEST_F(SsaForm, ComputedFieldsPassTheFocusOn) {
    desktop().setFocus(box(4));
    EXPECT_EQ(focus(), &box(6)) << "4 and 5 are both computed";
    desktop().setFocus(box(8));
    EXPECT_EQ(focus(), &box(9));
    desktop().setFocus(box(15));
    EXPECT_EQ(focus(), &box(0)) << "16 has no field after it: the tab order goes on to the first";
    desktop().setFocus(box(16));
    EXPECT_EQ(focus(), &box(0));
}

TEST_F(SsaForm, AFaultInTheComputationIsReportedAndChangesNothing) {
    withoutPremium();
    typeInto(2, "922337203685477");
    tab();
    EXPECT_EQ(box(4).text, "$922,337,203,685,477.00");
    typeInto(13, "922337203685477");
    tab();
    EXPECT_EQ(box(16).text, "$922,337,203,685,477.00");
    EXPECT_EQ(box(5).text, "");
    typeInto(7, "1");
    tab();
    ASSERT_EQ(test.ui.reports.size(), 1u);
    EXPECT_NE(test.ui.reports[0].find("TF_SSA1099:ComputeSSA"), std::string::npos) << test.ui.reports[0];
    EXPECT_NE(test.ui.reports[0].find("Overflow"), std::string::npos) << test.ui.reports[0];
    EXPECT_EQ(box(7).text, "$1.00");
    EXPECT_EQ(box(16).text, "$922,337,203,685,477.00") << "nothing was written";
    EXPECT_TRUE(test.ui.boxes.empty());
    EXPECT_FALSE(form->computationFailed);
    EXPECT_EQ(focus(), &box(9));
}

TEST_F(SsaForm, ClearRefillsThePremium) {
    typeInto(6, "5");
    desktop().chooseMenu("mnuControlClear");
    // The focus then goes to the name, and the field left is rewritten by its edit.
    EXPECT_EQ(box(6).text, "$2,220.00");
    EXPECT_EQ(focus(), &box(0));
}

}  // namespace
}  // namespace lw
