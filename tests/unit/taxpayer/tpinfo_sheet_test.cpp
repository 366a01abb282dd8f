// The sheet's ages and its copy into the store, on the sheet opened from its menu item.
#include "taxpayer/tpinfo_sheet.h"

#include <gtest/gtest.h>

#include "forms/tpinfo_form.h"
#include "model/app_error.h"
#include "opened_form.h"
#include "shell/startup.h"
#include "store/user_inf.h"
#include "taxpayer/load_tp.h"

namespace lw {
namespace {

struct TaxpayerSheet : testing::OpenedForm<TaxpayerSheetForm> {
    TaxpayerSheet() : OpenedForm("mnuIDFormsTP", "F5_TPInfo") {}
    Globals& g() { return test.program->g; }
    Control& status() { return form->at("labelMisc"); }
};

TEST_F(TaxpayerSheet, AgesCountTheCalendarYearsAlone) {
    EXPECT_EQ(ageAtYearEnd(*form, "12/31/2000", g().taxYear), "25");
    EXPECT_EQ(ageAtYearEnd(*form, "01/01/2000", g().taxYear), "25");
    EXPECT_EQ(ageAtYearEnd(*form, "01/01/2000", TaxYearChoice(2025, TaxYearChoice::Slot::NextYear)), "26");
    EXPECT_NE(status().caption, "One or more date(s) are invalid");
}

TEST_F(TaxpayerSheet, ABirthAfterTheTaxYearGivesANegativeAgeAndARedMessage) {
    EXPECT_EQ(ageAtYearEnd(*form, "03/15/2030", g().taxYear), "-5");
    EXPECT_EQ(status().caption, "One or more date(s) are invalid");
    EXPECT_EQ(status().foreColor, kRed);
}

TEST_F(TaxpayerSheet, NoAgeIsCountedWhile20XXIsInForce) {
    EXPECT_EQ(ageAtYearEnd(*form, "03/15/1980", TaxYearChoice(2025, TaxYearChoice::Slot::Placeholder)),
              "N/A");
    g().taxYear = TaxYearChoice(2025, TaxYearChoice::Slot::Placeholder);
    form->at("Text2", 0).text = "41";
    form->at("Text1", 2).text = "03/15/1980";
    updateAge(*form, "2", "0", g().taxYear);
    EXPECT_EQ(form->at("Text2", 0).text, "N/A") << "the sheet ages by the year in force";
}

TEST_F(TaxpayerSheet, ABirthDateThatIsNoDateIsATypeMismatch) {
    try {
        ageAtYearEnd(*form, "02/30/1980", g().taxYear);
        FAIL() << "no fault";
    } catch (const AppError& e) {
        EXPECT_EQ(e.number(), err::kTypeMismatch);
    }
}

TEST_F(TaxpayerSheet, AnEmptyDateLeavesTheAgeAndA20XXDateHasNone) {
    form->at("Text2", 0).text = "41";
    updateAge(*form, "2", "0", g().taxYear);
    EXPECT_EQ(form->at("Text2", 0).text, "41");
    form->at("Text1", 2).text = "05/05/20XX";
    updateAge(*form, "2", "0", g().taxYear);
    EXPECT_EQ(form->at("Text2", 0).text, "N/A");
}

TEST_F(TaxpayerSheet, SavingWritesTheTaxpayersFromTheLineAndTheOthersFromTheFields) {
    g().document.formRecord =
        "TPINFO\xB7"
        "2025\xB7TXT0=ANN LEE\xBB"
        "1 MAIN ST\xB7txt1=123-45-6789\xB7TXT10=X\xB7TXT5=07/04/1982";
    form->at("Text1", 6).text = "KIM LEE";
    form->at("Text1", 11).text = "222-33-4444";
    saveTaxpayerSheet(test.program->parts);
    EXPECT_EQ(readUserInf(program().parts, "TP1NameAddr"),
              "ANN LEE\xBB"
              "1 MAIN ST");
    EXPECT_EQ(readUserInf(program().parts, "TP1SSN"), "123-45-6789");
    EXPECT_EQ(readUserInf(program().parts, "TP1DOB"), "");
    EXPECT_EQ(readUserInf(program().parts, "TP2DOB"), "07/04/1982");
    EXPECT_EQ(readUserInf(program().parts, "Dependent1"), "KIM LEE\xB7");
    EXPECT_EQ(readUserInf(program().parts, "Dependent2"),
              "\xB7"
              "222-33-4444");
    EXPECT_EQ(readUserInf(program().parts, "Dependent3"), "");
}

}  // namespace
}  // namespace lw
