// The looks each form gives itself in the common set-up: what stands on its screen beyond its paper,
// the fonts of its fields, and where its tax year is shown.
#include <gtest/gtest.h>

#include "config/configure_form.h"
#include "forms/cards_form.h"
#include "forms/check_form.h"
#include "forms/form_rrb1099.h"
#include "forms/k1_form.h"
#include "forms/license_form.h"
#include "forms/tax_form.h"
#include "forms/tpinfo_form.h"
#include "opened_form.h"
#include "shell/form_lifecycle.h"

namespace lw {
namespace {

using FormLooks = testing::FormUnderTest<>;

Form& opened(testing::TestProgram& test, const char* menuItem) {
    test.program->desktop.chooseMenu(menuItem);
    Form* form = test.program->desktop.activeChild();
    if (!form) throw std::runtime_error(std::string("nothing opened from ") + menuItem);
    return *form;
}

TEST_F(FormLooks, TheSheetFillsTheFrameAndShowsItsInstructions) {
    Form& sheet = opened(test, "mnuIDFormsTP");
    ASSERT_NE(dynamic_cast<TaxpayerSheetForm*>(&sheet), nullptr);
    EXPECT_EQ(sheet.height, frameInnerHeight());
    EXPECT_TRUE(sheet.at("lblInstr").visible);
    EXPECT_TRUE(sheet.at("lblPrinter").opaque);
}

TEST_F(FormLooks, TheLicenseShowsThePortraitsToChooseFromAndGrowsToThem) {
    Form& license = opened(test, "mnuIDFormsDL");
    ASSERT_NE(dynamic_cast<LicenseForm*>(&license), nullptr);
    const Control& choices = license.at("Frame1");
    EXPECT_TRUE(choices.visible);
    EXPECT_EQ(license.height, choices.top + choices.height + 200);
    EXPECT_TRUE(license.at("Picture1").visible);
    EXPECT_TRUE(license.at("Picture3").visible);
}

TEST_F(FormLooks, TheConfigurationShowsItsPrinterNoteOnItsOwnColour) {
    auto& configure = dynamic_cast<ConfigureForm&>(opened(test, "mnuControlConfigure"));
    EXPECT_TRUE(configure.lblPrinter.opaque);
}

TEST_F(FormLooks, TheCardsPutTheirLabelsBackOnTheGreyOfThePanel) {
    Form& cards = opened(test, "mnuIDFormsSSITIN");
    ASSERT_NE(dynamic_cast<CardsForm*>(&cards), nullptr);
    Control& label = cards.at("Label1", 0);
    label.backColor = kWhite;
    resetFormLook();
    EXPECT_EQ(label.backColor, kButtonFace);
}

TEST_F(FormLooks, TheCardsWriteNumbersLargerThanNames) {
    Form& cards = opened(test, "mnuIDFormsSSITIN");
    const Control& number = cards.at("Text1", 0);
    const Control& name = cards.at("Text1", 1);
    EXPECT_EQ(number.fontName, "Tahoma");
    EXPECT_DOUBLE_EQ(number.fontSize, 14);
    EXPECT_TRUE(number.fontBold);
    EXPECT_DOUBLE_EQ(name.fontSize, 11);
    EXPECT_TRUE(name.fontBold);
}

TEST_F(FormLooks, TheCardsCentreTheNamesTheirTypeLeavesAlone) {
    Form& cards = opened(test, "mnuIDFormsSSITIN");
    Control& name = cards.at("Text1", 1);
    ASSERT_EQ(name.tag, "TPNAME");
    name.alignment = 0;
    resetFormLook();
    EXPECT_EQ(name.alignment, 2);
    Form& w2 = opened(test, "mnuW2");
    Control& employer = w2.at("Text1", 4);
    employer.alignment = 2;
    resetFormLook();
    EXPECT_EQ(employer.alignment, 0) << w2.at("Text1", 4).tag;
}

TEST_F(FormLooks, TheCheckSetsOnlyThePayeeInTahoma) {
    Form& check = opened(test, "mnuIDFormsCHK");
    ASSERT_NE(dynamic_cast<CheckForm*>(&check), nullptr);
    EXPECT_EQ(check.at("Text1", 0).fontName, "Tahoma");
    EXPECT_DOUBLE_EQ(check.at("Text1", 0).fontSize, 9);
    EXPECT_EQ(check.at("Text1", 1).fontName, "Courier New") << "the routing number keeps its drawn font";
}

TEST_F(FormLooks, AK1WritesSmallAndCentresItsCodes) {
    Form& k1 = opened(test, "mnuK11065");
    ASSERT_NE(dynamic_cast<K1Form*>(&k1), nullptr);
    EXPECT_DOUBLE_EQ(k1.at("Text1", 0).fontSize, 9);
    EXPECT_DOUBLE_EQ(k1.at("Text3", 0).fontSize, 9);
    EXPECT_EQ(k1.at("Text2", 0).alignment, 2);
    EXPECT_EQ(k1.at("Text4", 0).alignment, 2);
}

TEST_F(FormLooks, AnyOtherFormWritesInTahomaTen) {
    Form& w2 = opened(test, "mnuW2");
    EXPECT_EQ(w2.at("Text1", 0).fontName, "Tahoma");
    EXPECT_DOUBLE_EQ(w2.at("Text1", 0).fontSize, 10);
    EXPECT_FALSE(w2.at("Text1", 0).fontBold);
}

TEST_F(FormLooks, TheLongStatementsKeepTheirBorderAsDrawn) {
    for (const char* menuItem : {"mnu1095A", "mnu1095B", "mnu1095C", "mnuSSA1099", "mnuRRB1099"}) {
        SCOPED_TRACE(menuItem);
        const Control& border = opened(test, menuItem).at("myBorder");
        const TaxForm drawn(border.form->name(), test.program->parts);
        const Control& asDrawn = drawn.at("myBorder");
        EXPECT_EQ(border.left, asDrawn.left);
        EXPECT_EQ(border.top, asDrawn.top);
        EXPECT_EQ(border.width, asDrawn.width);
        EXPECT_EQ(border.height, asDrawn.height);
    }
}

TEST_F(FormLooks, TheRailroadStatementsBothShowTheYear) {
    Form& rrb = opened(test, "mnuRRB1099");
    ASSERT_NE(dynamic_cast<FormRrb1099*>(&rrb), nullptr);
    EXPECT_EQ(rrb.at("TaxYear", 3).caption, rrb.at("TaxYear", 1).caption);
    changeTaxYear(rrb);
    EXPECT_EQ(rrb.at("TaxYear", 3).caption, rrb.at("TaxYear", 1).caption);
    EXPECT_EQ(rrb.at("TaxYear", 3).caption.size(), 2u);
}

}  // namespace
}  // namespace lw
