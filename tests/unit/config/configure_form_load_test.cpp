#include <gtest/gtest.h>

#include <memory>

#include "config/configure_form.h"
#include "configure_form_fixture.h"

namespace lw::test {
namespace {

TEST_F(ConfigureFormTest, JanuaryAndFebruaryStillBelongToTheYearBefore) {
    platform.clock = DateTime{2026, 2, 28, 9, 0, 0};
    open();
    EXPECT_EQ(g().taxYear.textOf(TaxYearChoice::Slot::ThisYear), "2025");
    EXPECT_EQ(g().taxYear.slot(), TaxYearChoice::Slot::ThisYear);
    EXPECT_EQ(form->TaxYear0.caption, "20");
    EXPECT_EQ(form->TaxYear1.caption, "25");
    EXPECT_EQ(userInf("LastTaxYear"), "2025");
    EXPECT_EQ(form->txtSSMax.text, "176,100.00");
}

TEST_F(ConfigureFormTest, TheYearReadsAsOneNumber) {
    open();
    EXPECT_EQ(form->TaxYear0.left + form->TaxYear0.width, form->TaxYear1.left);
    EXPECT_EQ(form->TaxYear0.alignment, 1) << "the century is aligned to the right";
    EXPECT_EQ(form->TaxYear1.alignment, 0);
}

TEST_F(ConfigureFormTest, MarchStartsTheNewTaxYear) {
    platform.clock = DateTime{2026, 3, 1, 9, 0, 0};
    open();
    EXPECT_EQ(g().taxYear.textOf(TaxYearChoice::Slot::ThisYear), "2026");
    EXPECT_EQ(form->TaxYear1.caption, "26");
    EXPECT_EQ(form->txtSSMax.text, "184,500.00");
    EXPECT_EQ(form->txtMCPartBPremiums.text, "2434.80");
}

TEST_F(ConfigureFormTest, ARemembered20XXSelectsIndex3) {
    setUserInf("LastTaxYear", "20XX");
    open();
    EXPECT_EQ(g().taxYear.slot(), TaxYearChoice::Slot::Placeholder);
    EXPECT_EQ(form->TaxYear1.caption, "XX");
    EXPECT_EQ(form->txtSSRate.text, "7.65");
    EXPECT_EQ(form->Frame3.caption, "Social Security Withholding 20XX");
    EXPECT_EQ(userInf("LastTaxYear"), "20XX");
}

TEST_F(ConfigureFormTest, ARememberedYearOutOfTheWindowShowsItsDigitsAndIsOverwritten) {
    setUserInf("LastTaxYear", "2015");
    open();
    EXPECT_EQ(g().taxYear.slot(), TaxYearChoice::Slot::ThisYear);
    EXPECT_EQ(form->TaxYear1.caption, "15");
    EXPECT_EQ(form->txtSSRate.text, "");
    EXPECT_EQ(userInf("LastTaxYear"), "2025");
}

TEST_F(ConfigureFormTest, LoadStartsFromSingleAndWritesTheChangePointIntoTheCaptions) {
    open();
    EXPECT_EQ(g().rates.filingStatus, FilingStatus::Single);
    EXPECT_STREQ(filingStatusWord(g().rates.filingStatus), "Single");
    EXPECT_EQ(g().document.currentForm, form);
    EXPECT_EQ(g().document.formKey, "CONFIGURE");
    EXPECT_EQ(form->txtMCChgRateAfter.text, "200,000.00");
    EXPECT_EQ(form->lblMC[0]->caption, "Withholding Rate on Wages up to 200,000.00");
    EXPECT_EQ(form->lblMC[1]->caption, "Wages at Which Medicare Withholding Rate Changes:");
    EXPECT_EQ(form->lblMC[2]->caption, "Withholding Rate on Wages over 200,000.00:");
    EXPECT_EQ(form->Frame4.caption, "Medicare Withholding 2025 --- Martial Status is Single");
    EXPECT_EQ(form->labelVersion.caption, "Ledgerwick - Version 25.1.5");
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(reports.empty());
}

TEST_F(ConfigureFormTest, TheMarkersAreReplacedInAnyCase) {
    auto owned = std::make_unique<ConfigureForm>(program().parts);
    owned->lblMC[0]->caption = "up to <<InitRate>> and <<initrate>>";
    owned->lblMC[2]->caption = "over <<wage>>:";
    owned->TaxYear1.caption = "25";
    g().document.currentForm = owned.get();
    g().rates.filingStatus = FilingStatus::MarriedSeparately;
    configureFormCommonInit(*owned, g().edition.ssmcInfFile, g().rates);
    EXPECT_EQ(owned->lblMC[0]->caption, "up to 125,000.00 and 125,000.00");
    EXPECT_EQ(owned->lblMC[2]->caption, "over 125,000.00:");
}

TEST_F(ConfigureFormTest, LoadWritesTheFixedTexts) {
    open();
    EXPECT_EQ(form->caption, "Configure Social Security/Medicare Withholding Rates, Printer");
    EXPECT_EQ(form->lblPrinter.caption,
              "When this form loads, it displays the last printer you chose or the\r\n"
              "default printer. If you want to change the printer, choose a printer\r\n"
              "from the drop down list. The printer you choose will be saved.");
    EXPECT_EQ(
        form->lblNote.caption,
        "If you make changes to the Social Security or Medicare Information below, the changes WILL NOT "
        "BE SAVED unless you press the Save Button (Upper Left on this Screen).\r\n"
        "This information used to determine Social Security and Medicare Withholding when a W2 is created");
    EXPECT_EQ(
        form->lblTaxYearInfo.caption,
        "Press [Change Tax Yr] button to cycle between This Year, Next Year, Last Year and 20XX.\r\n"
        "All forms created will be for the year shown here. NOTE: If [Change Tax Yr] button is\r\n"
        "pressed on a different form, (e.g. the W2), change will apply to ALL forms, including this form.");
    EXPECT_EQ(form->Label3.caption, "Choose Filing Status to set withholding rates >");
    EXPECT_EQ(form->Frame5.caption, "Choose the FILE NAME format to use");
    EXPECT_EQ(form->lblSS[0]->caption, "Social Security Withholding Rate:");
    EXPECT_EQ(form->lblSS[1]->caption, "Maximum Wages Subject to Social Security Witholding");
    EXPECT_EQ(form->optStatus[0]->caption, "Single");
    EXPECT_EQ(form->optStatus[1]->caption, "Married Filing Single");
    EXPECT_EQ(form->optStatus[2]->caption, "Married Filing Joint");
    EXPECT_EQ(
        form->optFileName[0]->caption,
        "LastName_FirstName_FormName_OtherInfo_SEQ.venturo (e.g. DOE_JOHN_W2_ABC PLUMBING_000.venturo)");
    EXPECT_EQ(
        form->optFileName[1]->caption,
        "FirstName_LastName_FormName_OtherInfo_SEQ.venturo (e.g. JOHN_DOE_W2_ABC PLUMBING_000.venturo)");
    EXPECT_EQ(
        form->optFileName[2]->caption,
        "FormName_LastName_FirstName_OtherInfo_SEQ.venturo (e.g. W2_DOE_JOHN_ABC PLUMBING_000.venturo)");
    EXPECT_EQ(
        form->optFileName[3]->caption,
        "FormName_FirstName_LastName_OtherInfo_SEQ.venturo (e.g. W2_JOHN_DOE_ABC PLUMBING_000.venturo)");
    EXPECT_EQ(form->Frame1.height, form->lblNote.height);
}

TEST_F(ConfigureFormTest, TheSixFiguresCarryTheirTagAndTips) {
    open();
    for (Control* rate : {&form->txtSSRate, &form->txtMCInitRate, &form->txtMCRateAfter}) {
        EXPECT_EQ(rate->tag, "SSMC");
        EXPECT_EQ(rate->toolTipText, "Entry Formats Allowed: 6.2%, 10.3%, 7.25%. 12.65%");
    }
    for (Control* amount : {&form->txtSSMax, &form->txtMCChgRateAfter, &form->txtMCPartBPremiums}) {
        EXPECT_EQ(amount->tag, "SSMC");
        EXPECT_EQ(amount->toolTipText, "Maximun allowed is 999,999");
    }
}

TEST_F(ConfigureFormTest, TheControlsLieInsideTheForm) {
    open();
    for (const auto& control : form->controls()) {
        EXPECT_GE(control->left, 0) << control->key();
        EXPECT_GE(control->top, 0) << control->key();
        EXPECT_GT(control->width, 0) << control->key();
        EXPECT_GT(control->height, 0) << control->key();
        EXPECT_LE(control->left + control->width, form->width) << control->key();
        EXPECT_LE(control->top + control->height, form->height) << control->key();
    }
}

TEST_F(ConfigureFormTest, TheFileNameTemplatesEndInTheExtension) {
    open();
    EXPECT_EQ(form->fileNameFormats[0], "<LAST>_<FIRST>_<FORM>_<OTHER>_<SEQ>.venturo");
    EXPECT_EQ(form->fileNameFormats[1], "<FIRST>_<LAST>_<FORM>_<OTHER>_<SEQ>.venturo");
    EXPECT_EQ(form->fileNameFormats[2], "<FORM>_<LAST>_<FIRST>_<OTHER>_<SEQ>.venturo");
    EXPECT_EQ(form->fileNameFormats[3], "<FORM>_<FIRST>_<LAST>_<OTHER>_<SEQ>.venturo");
}

TEST_F(ConfigureFormTest, NoRememberedTemplateTakesTheFirst) {
    open();
    EXPECT_TRUE(form->optFileName[0]->value);
    EXPECT_EQ(userInf("FileNameFmt"), "0");
    EXPECT_EQ(g().choices.fileNameFormat, "<LAST>_<FIRST>_<FORM>_<OTHER>_<SEQ>.venturo");
}

TEST_F(ConfigureFormTest, TheRememberedTemplateIsChosenAgain) {
    setUserInf("FileNameFmt", "2");
    open();
    EXPECT_FALSE(form->optFileName[0]->value);
    EXPECT_TRUE(form->optFileName[2]->value);
    EXPECT_EQ(g().choices.fileNameFormat, "<FORM>_<LAST>_<FIRST>_<OTHER>_<SEQ>.venturo");
}

TEST_F(ConfigureFormTest, ATemplateNumberWithNoOptionIsReportedByLoad) {
    setUserInf("FileNameFmt", "7");
    open();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].module, "F1_Configure:Form_Load");
    EXPECT_EQ(reports[0].number, "340");
    EXPECT_TRUE(form->isLoaded());
}

TEST_F(ConfigureFormTest, ClickingATemplateRemembersIt) {
    open();
    desktop().click(*form->optFileName[3]);
    EXPECT_TRUE(form->optFileName[3]->value);
    EXPECT_FALSE(form->optFileName[0]->value);
    EXPECT_EQ(userInf("FileNameFmt"), "3");
    EXPECT_EQ(g().choices.fileNameFormat, "<FORM>_<FIRST>_<LAST>_<OTHER>_<SEQ>.venturo");
}

TEST_F(ConfigureFormTest, ThePrintersComeDefaultFirstAndEachOnce) {
    platform.machinePrinters = {"Office", "Lab", "Office", "Front", "Lab"};
    open();
    EXPECT_EQ(form->cbxPrinters.items, (std::vector<std::string>{"Office", "Lab", "Front"}));
    // None remembered: the first is taken, remembered and shown whole.
    EXPECT_EQ(form->cbxPrinters.listIndex, 0);
    EXPECT_EQ(form->cbxPrinters.text, "Office");
    EXPECT_EQ(form->cbxPrinters.selStart(), 0);
    EXPECT_EQ(form->cbxPrinters.selLength(), 6);
    EXPECT_EQ(userInf("Printer"), "Office");
    EXPECT_EQ(g().choices.printerName, "Office");
}

TEST_F(ConfigureFormTest, TheRememberedPrinterIsSelected) {
    platform.machinePrinters = {"Office", "Lab", "Front"};
    setUserInf("Printer", "Front");
    open();
    EXPECT_EQ(form->cbxPrinters.listIndex, 2);
    EXPECT_EQ(g().choices.printerName, "Front");
    EXPECT_EQ(userInf("Printer"), "Front");
}

TEST_F(ConfigureFormTest, ARememberedPrinterThatIsGoneSelectsNothing) {
    platform.machinePrinters = {"Office", "Lab"};
    setUserInf("Printer", "front");
    open();
    EXPECT_EQ(form->cbxPrinters.listIndex, -1);
    EXPECT_EQ(g().choices.printerName, "");
    EXPECT_EQ(userInf("Printer"), "front");
}

TEST_F(ConfigureFormTest, WithNoPrintersTheListIsEmptyAndPrinterStaysEmpty) {
    open();
    EXPECT_TRUE(form->cbxPrinters.items.empty());
    EXPECT_EQ(form->cbxPrinters.listIndex, -1);
    EXPECT_EQ(userInf("Printer"), "");
    EXPECT_EQ(g().choices.printerName, "");
    EXPECT_TRUE(reports.empty());
}

TEST_F(ConfigureFormTest, ChoosingAPrinterRemembersIt) {
    platform.machinePrinters = {"Office", "Lab"};
    open();
    desktop().choose(form->cbxPrinters, "Lab");
    EXPECT_EQ(g().choices.printerName, "Lab");
    EXPECT_EQ(userInf("Printer"), "Lab");
}

}  // namespace
}  // namespace lw::test
