#include <gtest/gtest.h>

#include <memory>

#include "config/configure_form.h"
#include "configure_form_fixture.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"

namespace lw::test {
namespace {

struct StatusClickRow {
    int option;
    const char* status;
    const char* income;
};

void PrintTo(const StatusClickRow& row, std::ostream* os) { *os << "optStatus(" << row.option << ')'; }

class StatusClick : public ConfigureFormTest, public ::testing::WithParamInterface<StatusClickRow> {};

TEST_P(StatusClick, SetsTheStatusAndItsIncomeTexts) {
    const StatusClickRow& row = GetParam();
    open();
    desktop().click(*form->optStatus[static_cast<std::size_t>(row.option)]);
    const std::string income = row.income;
    EXPECT_STREQ(filingStatusWord(g().rates.filingStatus), row.status);
    EXPECT_EQ(form->Frame4.caption,
              std::string("Medicare Info --- Goto www.cms.gov --- Filing Status: ") + row.status);
    EXPECT_EQ(form->lblMC[3]->caption,
              "Annual Medicare Part B Premiums for taxpayers with\r\nincome up to $" + income +
                  ".\r\nPremium may be more for income over $" + income + ".");
    EXPECT_EQ(form->lblMC[2]->caption, "Withholding Rate on Wages over " + income + ":");
    EXPECT_EQ(form->txtMCChgRateAfter.text, income);
}

INSTANTIATE_TEST_SUITE_P(Table, StatusClick,
                         ::testing::Values(StatusClickRow{0, "SGL", "106,000"},
                                           StatusClickRow{1, "MFS", "106,000"},
                                           StatusClickRow{2, "MFJ", "212,000"}));

TEST_F(ConfigureFormTest, AClickedStatusTakesTheJointChangePointAtTheNextYear) {
    open();
    desktop().click(*form->optStatus[0]);
    changeTaxYear(*form);
    EXPECT_EQ(form->TaxYear1.caption, "26");
    EXPECT_EQ(form->txtMCChgRateAfter.text, "250,000.00");
    EXPECT_EQ(form->txtSSMax.text, "184,500.00");
}

TEST_F(ConfigureFormTest, AFigureFieldIsSelectedAsItTakesTheFocus) {
    open();
    desktop().setFocus(form->txtSSRate);
    EXPECT_EQ(form->txtSSRate.selStart(), 0);
    EXPECT_EQ(form->txtSSRate.selLength(), 3);
    form->txtSSMax.text = "123,456,789,012,345,678.00";
    desktop().setFocus(form->txtSSMax);
    EXPECT_EQ(form->txtSSMax.selLength(), 20);
}

TEST_F(ConfigureFormTest, ATypedRateLosesItsPercentOnLeaving) {
    open();
    type(form->txtSSRate, "6.2%");
    EXPECT_TRUE(form->changed);
    tab();
    EXPECT_EQ(form->txtSSRate.text, "6.2");
    EXPECT_EQ(g().rates.socialSecurityRate.text(), "6.2");
    EXPECT_EQ(g().rates.socialSecurityRate.value(), text::Currency::fromRaw(62000));
    EXPECT_EQ(desktop().focus(), &form->txtSSMax);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(ConfigureFormTest, ABadRateKeepsTheFocusAndStillReachesTheGlobal) {
    open();
    type(form->txtSSRate, "12.5");
    tab();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_NE(boxes[0].message.find("Invalid Social Security Rate"), std::string::npos);
    EXPECT_EQ(desktop().focus(), &form->txtSSRate);
    EXPECT_EQ(form->txtSSRate.selStart(), 0);
    EXPECT_EQ(form->txtSSRate.selLength(), 4);
    EXPECT_EQ(g().rates.socialSecurityRate.text(), "12.5");
    EXPECT_EQ(g().rates.socialSecurityRate.value(), text::Currency::fromRaw(125000));
}

TEST_F(ConfigureFormTest, TheWageBaseIsRoundedOnLeaving) {
    open();
    type(form->txtSSMax, "168601.50");
    tab();
    EXPECT_EQ(form->txtSSMax.text, "168,602.00");
    EXPECT_EQ(g().rates.socialSecurityWageBase.text(), "168,602.00");
    EXPECT_EQ(g().rates.socialSecurityWageBase.value(), text::Currency::fromUnits(168602));
    EXPECT_EQ(desktop().focus(), &form->txtMCInitRate);
}

TEST_F(ConfigureFormTest, APremiumOverTheLimitKeepsTheFocus) {
    open();
    type(form->txtMCPartBPremiums, "3000.01");
    tab();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_NE(boxes[0].message.find("Amount CANNOT be Greater Than 3,000.00"), std::string::npos);
    EXPECT_EQ(desktop().focus(), &form->txtMCPartBPremiums);
    EXPECT_EQ(g().rates.partBPremium.text(), "3000.01");
}

TEST_F(ConfigureFormTest, ClosingWithAStatusAsksNothing) {
    open();
    form->unload();
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(ui.quitCalls, 0);
}

TEST_F(ConfigureFormTest, ClosingWithNoStatusAsksForOneAndEndsTheProgram) {
    open();
    g().rates.filingStatus = FilingStatus::NotChosen;
    ui.queueAnswer("Single - S");
    form->unload();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].title, "F1_Configure");
    EXPECT_EQ(boxes[0].number, 800);
    EXPECT_EQ(boxes[0].message, "Filing Status not chosen - Choose Now");
    EXPECT_EQ(boxes[0].buttons[0], "Married Filing Single - MFS");
    EXPECT_EQ(boxes[0].buttons[1], "Single - S");
    EXPECT_EQ(boxes[0].buttons[2], "Married Filing Joint - MFJ");
    EXPECT_EQ(boxes[0].buttons[3], "");
    EXPECT_EQ(boxes[0].defaultButton, MessageBoxButton::First);
    EXPECT_EQ(boxes[0].answer, MessageBoxButton::Second);
    EXPECT_EQ(g().rates.filingStatus, FilingStatus::SingleOnClosing);
    EXPECT_STREQ(filingStatusWord(g().rates.filingStatus), "S");
    EXPECT_EQ(ui.quitCalls, 1);
}

TEST_F(ConfigureFormTest, TheDefaultAnswerToTheClosingQuestionIsMFS) {
    open();
    g().rates.filingStatus = FilingStatus::NotChosen;
    form->unload();
    EXPECT_EQ(g().rates.filingStatus, FilingStatus::MarriedSeparately);
    EXPECT_EQ(ui.quitCalls, 1);
}

TEST_F(ConfigureFormTest, TheThirdAnswerToTheClosingQuestionIsMFJ) {
    open();
    g().rates.filingStatus = FilingStatus::NotChosen;
    ui.queueAnswer("Married Filing Joint - MFJ");
    form->unload();
    EXPECT_EQ(g().rates.filingStatus, FilingStatus::MarriedJointly);
    EXPECT_STREQ(filingStatusWord(g().rates.filingStatus), "MFJ");
}

TEST_F(ConfigureFormTest, RegisteringMakesTheFormKnownAndABadRateKeepsTheScreen) {
    registerConfigureForm();
    ASSERT_TRUE(hasForm("F1_Configure"));
    std::unique_ptr<Form> made = createForm("f1_configure", program().parts);
    ASSERT_NE(dynamic_cast<ConfigureForm*>(made.get()), nullptr);
    ConfigureForm& loaded = open();
    EXPECT_FALSE(loaded.keepsTheScreen());
    loaded.txtMCRateAfter.text = "100";
    EXPECT_TRUE(loaded.keepsTheScreen());
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_NE(boxes[0].message.find("Invalid Medicare Rate"), std::string::npos);
    EXPECT_EQ(desktop().focus(), &loaded.txtMCRateAfter);
}

}  // namespace
}  // namespace lw::test
