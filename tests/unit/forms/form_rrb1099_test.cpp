#include "forms/form_rrb1099.h"

#include <gtest/gtest.h>

#include "benefit_form_fixture.h"
#include "diagnostics/message_box.h"
#include "model/keys.h"

namespace lw {
namespace {

const std::string kMessageHead = "Message Number: 801\r\nSSA1099 - Error in Social Security Computations\r\n";
const std::string kMessageTail = "\r\nMake corrections before continuing.";

// The RRB-1099 opened from its menu item on 10 June 2025, whose Part B premium is 2220.00.
struct RrbForm : testing::BenefitForm<FormRrb1099> {
    RrbForm() : BenefitForm("mnuRRB1099", "TF_RRB1099", 12) {}
};

TEST_F(RrbForm, LoadsWithThePremiumAndComputesNothing) {
    EXPECT_EQ(box(12).text, "2220.00");
    EXPECT_EQ(box(6).text, "");
    EXPECT_EQ(form->at("Label6").caption.substr(0, 46), "As you move through the fields on the RRB-1099");
    desktop().chooseMenu("mnuControlClear");
    EXPECT_EQ(box(12).text, "") << "Clear does not refill this form";
}

TEST_F(RrbForm, WorkedExampleThenTheSecondMessage) {
    typeInto(4, "5000");
    tab();
    typeInto(5, "1000");
    tab();
    EXPECT_EQ(focus(), &box(7));
    typeInto(11, "300");
    tab();
    typeInto(12, "170");
    tab();
    EXPECT_EQ(box(6).text, "$4,000.00");
    EXPECT_EQ(box(12).text, "$170.00");
    EXPECT_TRUE(test.ui.boxes.empty());
    EXPECT_FALSE(form->computationFailed);
    EXPECT_EQ(focus(), &box(17));

    typeInto(11, "5000");
    tab();
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_EQ(test.ui.boxes[0], kMessageHead +
                                    "Box 5. Net Benefits MINUS total of\r\n--Boxes (7, 8, 9, 10 and 11)\r\n"
                                    "ARE LESS THAN ZERO" +
                                    kMessageTail);
    const auto& shown = lastMessageBox();
    ASSERT_TRUE(shown.has_value());
    EXPECT_EQ(shown->title, "TF_RRB1099:ComputeRRB");
    EXPECT_EQ(shown->buttons[0], "OK");
    EXPECT_EQ(shown->buttons[1], "");
    EXPECT_EQ(box(6).foreColor, kRed);
    EXPECT_TRUE(form->computationFailed);
    EXPECT_EQ(focus(), &box(12)) << "the operator's move is kept";
}

TEST_F(RrbForm, NetBelowNoughtIsTheFirstMessage) {
    withoutPremium();
    typeInto(4, "100");
    tab();
    typeInto(5, "250");
    tab();
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_EQ(test.ui.boxes[0], kMessageHead + "Box 5. Net Benefits... is LESS THAN ZERO" + kMessageTail);
    EXPECT_EQ(box(6).text, "-$150.00");
    EXPECT_EQ(box(6).foreColor, kRed);
    // The next field of 4 to 12 left clears the flag and computes nothing; the one after computes.
    desktop().setFocus(box(8));
    EXPECT_FALSE(form->computationFailed);
    EXPECT_EQ(test.ui.boxes.size(), 1u);
    desktop().setFocus(box(9));
    EXPECT_EQ(test.ui.boxes.size(), 2u);
    EXPECT_TRUE(form->computationFailed);
}

TEST_F(RrbForm, ANetFallingToNoughtKeepsItsLastFigure) {
    withoutPremium();
    typeInto(4, "500");
    tab();
    EXPECT_EQ(box(6).text, "$500.00");
    typeInto(5, "500");
    tab();
    EXPECT_EQ(box(6).text, "$500.00") << "a nought leaves the field's text as it was";
    EXPECT_TRUE(test.ui.boxes.empty()) << "a net of nought with boxes 7 to 11 empty is no error";
}

TEST_F(RrbForm, TotalGrossPaid) {
    desktop().setFocus(box(18));
    tab();
    EXPECT_EQ(box(21).text, "$.00") << "shown even when boxes 4 to 6 are empty";
    typeInto(18, "1000.10");
    tab();
    typeInto(20, "2,000.05");
    tab();
    EXPECT_EQ(box(21).text, "$3,000.15");
    EXPECT_EQ(focus(), &box(22)) << "21 is computed: the focus passes on";
}

TEST_F(RrbForm, IdentityIsCopiedOnLeavingAFieldOutsideTheAmounts) {
    typeInto(1, "A123456789");
    tab();
    EXPECT_EQ(box(14).text, "A123456789");
    typeInto(2, "123456789");
    tab();
    EXPECT_EQ(box(15).text, "123-45-6789");
    typeInto(0, "363314601");
    tab();
    EXPECT_EQ(box(13).text, "36-3314601");

    // Leaving an amount copies nothing; the next field outside them does.
    desktop().setFocus(box(4));
    box(2).text = "999-99-9999";
    tab();
    EXPECT_EQ(box(15).text, "123-45-6789");
    desktop().setFocus(box(17));
    tab();
    EXPECT_EQ(box(15).text, "999-99-9999");
}

TEST_F(RrbForm, TheCopiesOfTheLowerStatementNeverKeepTheFocus) {
    for (int i : {13, 14, 15, 16}) {
        desktop().setFocus(box(3));
        desktop().setFocus(box(i));
        EXPECT_EQ(focus(), &box(17)) << "Text1(" << i << ")";
    }
    desktop().setFocus(box(26));
    tab();
    EXPECT_EQ(focus(), &box(17)) << "Text1(13) is the tab stop after box 12, and passes the focus on";
}

TEST_F(RrbForm, TheOperatorsMoveOutOfAnAmountIsKept) {
    withoutPremium();
    typeInto(4, "100");
    desktop().setFocus(box(10));
    EXPECT_EQ(focus(), &box(10));
    EXPECT_EQ(box(6).text, "$100.00");
    typeInto(12, "5");
    desktop().pressKey(keys::kTab, keys::kShiftMask, keys::kTab);
    EXPECT_EQ(focus(), &box(11));
}

}  // namespace
}  // namespace lw
