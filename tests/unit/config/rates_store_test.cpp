#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <optional>

#include "config/configure_form.h"
#include "config/rates.h"
#include "config_fixture.h"

namespace lw::test {
namespace {

// The configuration form as built, not loaded: the figures are read into it as the common set-up does.
class RatesStoreTest : public ConfigTest {
protected:
    void SetUp() override {
        ConfigTest::SetUp();
        form = std::make_unique<ConfigureForm>(program().parts);
        g().document.currentForm = form.get();
        g().taxYear = TaxYearChoice(2025);
    }

    void showYear(const char* digits) { form->TaxYear1.caption = digits; }

    void loadYear(const char* digits, FilingStatus status) {
        showYear(digits);
        g().rates.filingStatus = status;
        loadRates(*form, g().edition.ssmcInfFile, g().rates);
    }
    const Rates& rates() { return g().rates; }
    static std::optional<text::Currency> cents(std::int64_t count) {
        return text::Currency::fromRaw(count * 100);
    }

    std::unique_ptr<ConfigureForm> form;
};

TEST_F(RatesStoreTest, LoadFillsTheFieldsAndGlobalsOfTheYear) {
    loadYear("25", FilingStatus::Single);
    EXPECT_EQ(form->txtSSRate.text, "6.2");
    EXPECT_EQ(form->txtSSMax.text, "176,100.00");
    EXPECT_EQ(form->txtMCInitRate.text, "1.45");
    EXPECT_EQ(form->txtMCChgRateAfter.text, "200,000.00");
    EXPECT_EQ(form->txtMCRateAfter.text, "2.35");
    EXPECT_EQ(form->txtMCPartBPremiums.text, "2220.00");
    EXPECT_EQ(rates().socialSecurityRate.text(), "6.2");
    EXPECT_EQ(rates().socialSecurityWageBase.text(), "176100");
    EXPECT_EQ(rates().medicareRate.text(), "1.45");
    EXPECT_EQ(rates().medicareChangePoint.text(), "200000");
    EXPECT_EQ(rates().medicareRateAfter.text(), "2.35");
    EXPECT_EQ(rates().partBPremium.text(), "2220.00");
    EXPECT_EQ(rates().partBIncomeLimit.text(), "106000");
    // Each figure is read once, as it comes from the file.
    EXPECT_EQ(rates().socialSecurityRate.value(), cents(620));
    EXPECT_EQ(rates().socialSecurityWageBase.value(), cents(17610000));
    EXPECT_EQ(rates().medicareRate.value(), cents(145));
    EXPECT_EQ(rates().medicareChangePoint.value(), cents(20000000));
    EXPECT_EQ(rates().medicareRateAfter.value(), cents(235));
    EXPECT_EQ(rates().partBPremium.value(), cents(222000));
    EXPECT_EQ(rates().partBIncomeLimit.value(), cents(10600000));
    EXPECT_EQ(rates().filingStatus, FilingStatus::Single);
    EXPECT_EQ(form->Frame3.caption, "Social Security Withholding 2025");
    EXPECT_EQ(form->Frame4.caption, "Medicare Withholding 2025 --- Martial Status is Single");
    EXPECT_EQ(form->labelVersion.caption, "Ledgerwick - Version 25.1.5");
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(reports.empty());
}

struct StatusRow {
    FilingStatus status;
    const char* changePoint;
};

void PrintTo(const StatusRow& row, std::ostream* os) { *os << '"' << filingStatusWord(row.status) << '"'; }

class ChangePointByStatus : public RatesStoreTest, public ::testing::WithParamInterface<StatusRow> {};

TEST_P(ChangePointByStatus, TakesTheKeyOfTheFilingStatus) {
    loadYear("25", GetParam().status);
    EXPECT_EQ(form->txtMCChgRateAfter.text, GetParam().changePoint);
}

// A clicked status ("SGL"), one chosen on closing ("S") and none at all fall to the joint figure.
INSTANTIATE_TEST_SUITE_P(Table, ChangePointByStatus,
                         ::testing::Values(StatusRow{FilingStatus::Single, "200,000.00"},
                                           StatusRow{FilingStatus::MarriedSeparately, "125,000.00"},
                                           StatusRow{FilingStatus::MarriedJointly, "250,000.00"},
                                           StatusRow{FilingStatus::SingleByOption, "250,000.00"},
                                           StatusRow{FilingStatus::NotChosen, "250,000.00"},
                                           StatusRow{FilingStatus::SingleOnClosing, "250,000.00"}));

TEST_F(RatesStoreTest, TheYearComesFromTheFormsTwoYearLabels) {
    loadYear("XX", FilingStatus::MarriedSeparately);
    EXPECT_EQ(form->txtSSRate.text, "7.65");
    EXPECT_EQ(form->txtSSMax.text, "190,000.00");
    EXPECT_EQ(form->txtMCChgRateAfter.text, "130,000.00");
    EXPECT_EQ(form->Frame3.caption, "Social Security Withholding 20XX");
    EXPECT_EQ(form->Frame4.caption, "Medicare Withholding 20XX --- Martial Status is MFS");
}

TEST_F(RatesStoreTest, AYearWithNoSectionLeavesTheSixFieldsEmpty) {
    loadYear("25", FilingStatus::Single);
    loadYear("31", FilingStatus::Single);
    for (Control* field : {&form->txtSSRate, &form->txtSSMax, &form->txtMCInitRate, &form->txtMCChgRateAfter,
                           &form->txtMCRateAfter, &form->txtMCPartBPremiums})
        EXPECT_EQ(field->text, "") << field->name;
    EXPECT_EQ(rates().socialSecurityRate.text(), "");
    EXPECT_EQ(rates().socialSecurityWageBase.text(), "");
    EXPECT_EQ(rates().partBIncomeLimit.text(), "");
    EXPECT_EQ(rates().socialSecurityRate.value(), std::nullopt);
    EXPECT_EQ(rates().socialSecurityWageBase.value(), std::nullopt);
    EXPECT_TRUE(reports.empty());
}

TEST_F(RatesStoreTest, AStoredAmountThatIsNoNumberShowsAsItStands) {
    writeFile(g().edition.ssmcInfFile, "[2025]\r\nSSMax=lots\r\n");
    loadYear("25", FilingStatus::Single);
    EXPECT_EQ(form->txtSSMax.text, "lots");
    EXPECT_EQ(rates().socialSecurityWageBase.text(), "lots");
    EXPECT_EQ(rates().socialSecurityWageBase.value(), std::nullopt);
}

TEST_F(RatesStoreTest, SaveWritesTheSixFiguresOfTheFormsYear) {
    loadYear("25", FilingStatus::Single);
    form->txtSSRate.text = "6.5%";
    form->txtSSMax.text = "180,000.40";
    form->txtMCChgRateAfter.text = "168600.5";
    form->txtMCPartBPremiums.text = "2300";
    storeRates(*form, g().edition.ssmcInfFile, g().rates);
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(ssmc("2025", "SSRate"), "6.5");
    EXPECT_EQ(ssmc("2025", "SSMax"), "180000");
    EXPECT_EQ(ssmc("2025", "MCInitRate"), "1.45");
    EXPECT_EQ(ssmc("2025", "MCChangeRateAfter"), "168600");
    EXPECT_EQ(ssmc("2025", "MCRateAfter"), "2.35");
    EXPECT_EQ(ssmc("2025", "MCPartBPremium"), "2,300.00");
    // The figures by filing status and the income limit are never written.
    EXPECT_EQ(ssmc("2025", "MCChgRateAfterSingle"), "200000");
    EXPECT_EQ(ssmc("2025", "MCPartBIncome"), "106000");
    EXPECT_EQ(ssmc("2026", "SSRate"), "6.2");
    EXPECT_EQ(rates().socialSecurityRate.text(), "6.5");
    EXPECT_EQ(rates().socialSecurityWageBase.text(), "180000");
    EXPECT_EQ(rates().medicareChangePoint.text(), "168600");
    EXPECT_EQ(rates().partBPremium.text(), "2,300.00");
    EXPECT_EQ(rates().socialSecurityRate.value(), cents(650));
    EXPECT_EQ(rates().socialSecurityWageBase.value(), cents(18000000));
    EXPECT_EQ(rates().medicareChangePoint.value(), cents(16860000));
    EXPECT_EQ(rates().partBPremium.value(), cents(230000));
}

TEST_F(RatesStoreTest, SaveGoesToTheSectionShownOnTheForm) {
    loadYear("XX", FilingStatus::Single);
    form->txtSSRate.text = "8";
    storeRates(*form, g().edition.ssmcInfFile, g().rates);
    EXPECT_EQ(ssmc("20XX", "SSRate"), "8");
    EXPECT_EQ(ssmc("20XX", "SSMax"), "190000");
    EXPECT_EQ(ssmc("2025", "SSRate"), "6.2");
}

TEST_F(RatesStoreTest, SaveWithABadFigureWritesNothing) {
    loadYear("25", FilingStatus::Single);
    const std::string before = readFile(g().edition.ssmcInfFile);
    form->txtSSRate.text = "6.5";
    form->txtMCRateAfter.text = "12.5";
    storeRates(*form, g().edition.ssmcInfFile, g().rates);
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].message,
              dataErrorText("M3_Ledgerwick:SS_MC_Edit_Rate", 802,
                            "Invalid Medicare Rate - Format is #, ##, #.#, ##.#, #.## or ##.##"));
    EXPECT_EQ(readFile(g().edition.ssmcInfFile), before);
    EXPECT_EQ(rates().socialSecurityRate.text(), "6.2");
    EXPECT_EQ(rates().socialSecurityRate.value(), cents(620));
}

TEST(SSMCRow, LaysOutTheItemIn22AndEachValueIn9) {
    EXPECT_EQ(rateChangeRow("SS Rate", "6.2", "6.5"), "SS Rate                     6.2      6.5\r\n");
    EXPECT_EQ(rateChangeRow("Item", "Original", "Current"), "Item                   Original  Current\r\n");
    EXPECT_EQ(rateChangeRow("", "Value", "Value"), "                          Value    Value\r\n");
    EXPECT_EQ(rateChangeRow("SS Rate", "6.2", "6.5").size(), 22u + 9u + 9u + 2u);
    // Longer texts stand whole.
    EXPECT_EQ(rateChangeRow("MC Change Rate After !!", "1234567890", ""),
              "MC Change Rate After !!1234567890         \r\n");
}

class CheckChangesTest : public RatesStoreTest {
protected:
    static std::string expectedMessage(const std::string& rows) {
        return "One or more values below have changed.\r\n"
               "Item                   Original  Current\r\n"
               "                          Value    Value\r\n"
               "----------------------------------------\r\n" +
               rows + "DO YOU WANT TO SAVE THE CHANGES?";
    }
};

TEST_F(CheckChangesTest, UnchangedFiguresAskNothing) {
    loadYear("25", FilingStatus::Single);
    offerToSaveChangedRates(*form, program().parts);
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(ui.quitCalls, 0);
}

TEST_F(CheckChangesTest, UnchangedFiguresEndTheProgramWhenTheFrameIsQuitting) {
    loadYear("25", FilingStatus::Single);
    g().process.quitting = true;
    offerToSaveChangedRates(*form, program().parts);
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(ui.quitCalls, 1);
}

TEST_F(CheckChangesTest, AChangedFigureShowsTheTableAndYesSavesIt) {
    loadYear("25", FilingStatus::Single);
    form->txtSSRate.text = "6.5";
    ui.queueAnswer("Yes");
    offerToSaveChangedRates(*form, program().parts);
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].title, "M3_Ledgerwick:SS_MC_Check_Changes");
    EXPECT_EQ(boxes[0].number, 800);
    EXPECT_EQ(boxes[0].buttons[0], "Yes");
    EXPECT_EQ(boxes[0].buttons[1], "No");
    EXPECT_EQ(boxes[0].buttons[2], "");
    EXPECT_EQ(boxes[0].message, expectedMessage("SS Rate                     6.2      6.5\r\n"
                                                "SS Max                   176100   176100\r\n"
                                                "MC Rate                    1.45     1.45\r\n"
                                                "MC Change Rate After     200000   200000\r\n"
                                                "MC Rate After              2.35     2.35\r\n"
                                                "MC Max Medicare         2220.00  2220.00\r\n"));
    EXPECT_EQ(ssmc("2025", "SSRate"), "6.5");
    EXPECT_EQ(ui.quitCalls, 0);
}

TEST_F(CheckChangesTest, NoLeavesTheFileAsItWas) {
    loadYear("25", FilingStatus::Single);
    const std::string before = readFile(g().edition.ssmcInfFile);
    form->txtMCPartBPremiums.text = "2,300.00";
    ui.queueAnswer("No");
    g().process.quitting = true;
    offerToSaveChangedRates(*form, program().parts);
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_NE(boxes[0].message.find("MC Max Medicare         2220.00 2,300.00\r\n"), std::string::npos);
    EXPECT_EQ(readFile(g().edition.ssmcInfFile), before);
    EXPECT_EQ(ui.quitCalls, 1);
}

TEST_F(CheckChangesTest, TheChangePointIsComparedWithTheOneSavedValue) {
    // Married filing jointly shows 250,000.00, while the saved change point is 200000.
    loadYear("25", FilingStatus::MarriedJointly);
    ui.queueAnswer("No");
    offerToSaveChangedRates(*form, program().parts);
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_NE(boxes[0].message.find("MC Change Rate After     200000   250000\r\n"), std::string::npos);
}

TEST_F(CheckChangesTest, TheStoredYearIsTheOneInForce) {
    // The form shows 2025, but 2026 is in force: its stored figures are the originals.
    loadYear("25", FilingStatus::Single);
    g().taxYear = TaxYearChoice(2025, TaxYearChoice::Slot::NextYear);
    ui.queueAnswer("No");
    offerToSaveChangedRates(*form, program().parts);
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_NE(boxes[0].message.find("SS Max                   184500   176100\r\n"), std::string::npos);
    EXPECT_NE(boxes[0].message.find("MC Max Medicare         2434.80  2220.00\r\n"), std::string::npos);
}

}  // namespace
}  // namespace lw::test
