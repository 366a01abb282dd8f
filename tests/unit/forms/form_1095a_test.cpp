#include "forms/form_1095a.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "fields/control_setup.h"
#include "model/app_error.h"
#include "model/keys.h"
#include "opened_form.h"

namespace lw {
namespace {

// The 1095-A opened from its menu item; the operator types into the monthly amounts of Part III.
struct Form1095ATotals : testing::OpenedForm<Form1095A> {
    Form1095ATotals() : OpenedForm("mnu1095A", "TF_1095A") {}
};

TEST_F(Form1095ATotals, TheMonthlyAmountsAloneNameTheF12Copy) {
    const std::string hint =
        "Money: Dollar sign/commas optional, Press F12 to copy this amount to fields below this one";
    for (int index : {36, 37, 38, 50, 76}) {
        Control& money = field(index);
        money.tag = "MONEY";
        money.toolTipText = "as designed";
        setUpControl(money, true, form->parts().document, form->parts().edition.legendColors);
        EXPECT_EQ(money.toolTipText, index >= 38 ? hint : "as designed") << index;
    }
}

TEST_F(Form1095ATotals, TheColumnsAreTheMonthsOfPartThree) {
    EXPECT_EQ(monthColumnOf(38).total, 50);
    EXPECT_EQ(monthColumnOf(49).total, 50);
    EXPECT_EQ(monthColumnOf(51).first, 51);
    EXPECT_EQ(monthColumnOf(62).total, 63);
    EXPECT_EQ(monthColumnOf(64).last, 75);
    EXPECT_EQ(monthColumnOf(75).total, 76);
    for (int outside : {0, 37, 50, 63, 76, 77}) {
        const MonthColumn column = monthColumnOf(outside);
        EXPECT_EQ(column.first + column.last + column.total, 0) << outside;
    }
}

TEST_F(Form1095ATotals, AddsTheFilledMonthsExactly) {
    field(38).text = "$1,234.50";
    field(40).text = "$.01";
    field(49).text = "$0.10";
    form->addUpColumn(38, 49, 50);
    EXPECT_EQ(field(50).text, "$1,234.61");
}

TEST_F(Form1095ATotals, AllMonthsEmptyGiveNought) {
    form->addUpColumn(64, 75, 76);
    EXPECT_EQ(field(76).text, "$.00");
}

TEST_F(Form1095ATotals, MoreThanTwoDecimalsAreSummedBeforeTheTotalIsRounded) {
    // As an opened file may hold them: each month keeps its ten-thousandths until the total is shown.
    for (int i = 51; i <= 53; ++i) field(i).text = "0.0035";
    form->addUpColumn(51, 62, 63);
    EXPECT_EQ(field(63).text, "$.01");
    field(51).text = "1.00005";  // 1.0000 to the ten-thousandth, ties to even
    field(52).text = "";
    field(53).text = "";
    form->addUpColumn(51, 62, 63);
    EXPECT_EQ(field(63).text, "$1.00");
}

TEST_F(Form1095ATotals, ATypedAmountWithMoreDecimalsIsRoundedByItsEdit) {
    typeInto(38, "1.999");
    tab();
    EXPECT_EQ(field(38).text, "$2.00");
    EXPECT_EQ(field(50).text, "$2.00");
}

TEST_F(Form1095ATotals, TwelveMonthsNearTheLimitAddUpToTheLastCent) {
    for (int i = 38; i <= 49; ++i) field(i).text = "$76,861,433,640,456.46";
    form->addUpColumn(38, 49, 50);
    EXPECT_EQ(field(50).text, "$922,337,203,685,477.52");
}

TEST_F(Form1095ATotals, ASumBeyondTheLimitThrowsAndLeavesTheTotal) {
    for (int i = 38; i <= 49; ++i) field(i).text = "$76,861,433,640,456.47";
    field(50).text = "$1.00";
    EXPECT_THROW(form->addUpColumn(38, 49, 50), std::overflow_error);
    EXPECT_EQ(field(50).text, "$1.00");
}

TEST_F(Form1095ATotals, AMonthBeyondTheLimitKeepsTheFocusWithItsOwnMessage) {
    typeInto(38, "99999999999999999");
    tab();
    EXPECT_EQ(focus(), &field(38));
    EXPECT_EQ(field(38).foreColor, kRed);
    EXPECT_EQ(form->at("labelMisc").caption, "Value Entered: [" + field(38).text + "] is INVALID");
    EXPECT_EQ(field(50).text, "");
    EXPECT_TRUE(test.ui.reports.empty());
}

TEST_F(Form1095ATotals, ATextThatIsNoAmountIsAFault) {
    field(64).text = "ABC";
    EXPECT_THROW(form->addUpColumn(64, 75, 76), AppError);
}

TEST_F(Form1095ATotals, F12FiftyTimesKeepsTheSameTotal) {
    typeInto(38, "9999999999999");
    for (int i = 0; i < 50; ++i) f12();
    for (int i = 38; i <= 49; ++i) EXPECT_EQ(field(i).text, "$9,999,999,999,999.00") << i;
    EXPECT_EQ(field(50).text, "$119,999,999,999,988.00");
    EXPECT_EQ(focus(), &field(38));
    EXPECT_TRUE(test.ui.reports.empty());
}

TEST_F(Form1095ATotals, F12CopiesDownWithCents) {
    typeInto(64, "9999999999999.99");
    f12();
    EXPECT_EQ(field(75).text, "$9,999,999,999,999.99");
    EXPECT_EQ(field(76).text, "$119,999,999,999,999.88");
}

TEST_F(Form1095ATotals, F12BeyondTheLimitShowsTheFieldsMessageAndNoTotal) {
    typeInto(51, "900000000000000");
    f12();
    EXPECT_EQ(field(62).text, "$900,000,000,000,000.00");
    EXPECT_EQ(field(63).text, "");
    EXPECT_EQ(field(51).foreColor, kRed);
    EXPECT_TRUE(test.ui.reports.empty());
}

TEST_F(Form1095ATotals, CopyAndPasteKeysPassByTheFilterOfAMoneyField) {
    desktop().setFocus(field(38));
    for (int key : {keys::kCtrlC, keys::kCtrlV}) {
        int keyAscii = key;
        form->onText1KeyPress(38, keyAscii);
        EXPECT_EQ(keyAscii, key);
    }
    int letter = 'A';
    form->onText1KeyPress(38, letter);
    EXPECT_EQ(letter, 0);
}

TEST_F(Form1095ATotals, EnterIsSwallowedAndMovesOn) {
    desktop().setFocus(field(51));
    desktop().pressKey(keys::kEnter, 0, keys::kEnter);
    EXPECT_EQ(focus(), &field(64));
    EXPECT_EQ(field(51).text, "");
}

TEST_F(Form1095ATotals, F12OutsideTheMonthsDoesNothing) {
    field(0).text = "";
    for (int i : {0, 3, 37, 50, 63, 76}) {
        desktop().setFocus(field(i));
        f12();
        EXPECT_EQ(field(0).text, "") << i;
    }
    EXPECT_EQ(field(50).text, "");
    EXPECT_TRUE(test.ui.reports.empty());
}

TEST_F(Form1095ATotals, TheRememberedFieldIsTheLastToTakeTheFocus) {
    desktop().setFocus(field(12));
    EXPECT_EQ(form->lastIndex, 12);
    desktop().setFocus(field(70));
    EXPECT_EQ(form->lastIndex, 70);
}

}  // namespace
}  // namespace lw
