#include <gtest/gtest.h>

#include "fields/control_setup.h"
#include "fields/edit_ctl.h"
#include "fields/key_press.h"
#include "forms/form_1095bc.h"
#include "model/keys.h"
#include "opened_form.h"

namespace lw {
namespace {

// The field kinds of the 1095-C as the form gives them: the code rows of lines 14 and 16, the amounts of
// line 15 without a dollar sign, and the ZIP codes of line 17.
struct Form1095CKinds : testing::OpenedForm<EnterMovesOnForm> {
    Form1095CKinds() : OpenedForm("mnu1095C", "TF_1095C") {}
    int filtered(int i, int key) {
        filterFieldKey(field(i), key);
        return key;
    }
    Color legend(int i) { return test.program->g.edition.legendColors.at(static_cast<std::size_t>(i)); }
};

TEST_F(Form1095CKinds, CodeRowsAreCentredInNarrowType) {
    for (int i = 10; i <= 22; ++i) {
        EXPECT_EQ(field(i).tag, "1095C-14");
        EXPECT_EQ(field(i).alignment, 2) << i;
        EXPECT_EQ(field(i).fontName, "ArialNarrow") << i;
        EXPECT_EQ(field(i).fontSize, 9) << i;
    }
    for (int i = 36; i <= 48; ++i) {
        EXPECT_EQ(field(i).tag, "1095C-16");
        EXPECT_EQ(field(i).alignment, 2) << i;
    }
    // The gaps of the narrow type: the last amount and the last code of line 16 stay in Tahoma.
    EXPECT_EQ(field(35).fontName, "Tahoma");
    EXPECT_EQ(field(48).fontName, "Tahoma");
    EXPECT_EQ(field(48).fontSize, 11);
}

TEST_F(Form1095CKinds, ZipCodesStandLeftWithNoTip) {
    for (int i = 79; i <= 91; ++i) {
        EXPECT_EQ(field(i).tag, "1095C-17");
        EXPECT_EQ(field(i).alignment, 0) << i;
        EXPECT_EQ(field(i).toolTipText, "") << i;
        EXPECT_EQ(field(i).fontName, "ArialNarrow") << i;
    }
}

TEST_F(Form1095CKinds, CodesTakeEveryPrintableKeyInUpperCase) {
    for (int i : {10, 36, 79}) {
        EXPECT_EQ(filtered(i, 'a'), 'A') << i;
        EXPECT_EQ(filtered(i, '1'), '1') << i;
        EXPECT_EQ(filtered(i, '*'), '*') << i;
        EXPECT_EQ(filtered(i, 7), 0) << i;
    }
}

TEST_F(Form1095CKinds, CodesAreOnlyUpperCasedOnLeaving) {
    field(10).text = "1e";
    EXPECT_TRUE(editField(field(10), editContextOf(form->parts())));
    EXPECT_EQ(field(10).text, "1E");
    field(40).text = "2c ";
    EXPECT_TRUE(editField(field(40), editContextOf(form->parts())));
    EXPECT_EQ(field(40).text, "2C ");
    field(85).text = "abc";
    EXPECT_TRUE(editField(field(85), editContextOf(form->parts())));
    EXPECT_EQ(field(85).text, "ABC");
}

TEST_F(Form1095CKinds, ContributionsAreAmountsWithoutADollarSign) {
    for (int i = 23; i <= 35; ++i) {
        EXPECT_EQ(field(i).tag, "SMONEY");
        EXPECT_EQ(field(i).alignment, 1) << i;
        EXPECT_EQ(field(i).toolTipText, "Money: Dollar sign/commas optional") << i;
    }
    EXPECT_EQ(filtered(23, 'a'), 0);
    EXPECT_EQ(filtered(23, '$'), '$');
    field(24).text = "$1,234.5";
    EXPECT_TRUE(editField(field(24), editContextOf(form->parts())));
    EXPECT_EQ(field(24).text, "1,234.50");
}

TEST_F(Form1095CKinds, EveryKindTakesTheColourOfItsTypeOnFocus) {
    desktop().setFocus(field(11));
    EXPECT_EQ(field(11).backColor, legend(9));
    desktop().setFocus(field(25));
    EXPECT_EQ(field(25).backColor, legend(3));
    desktop().setFocus(field(80));
    EXPECT_EQ(field(80).backColor, legend(9));
}

}  // namespace
}  // namespace lw
