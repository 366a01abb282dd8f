#include "saving_fixture.h"

namespace lw {
namespace {

using namespace saving_fixture;

TEST_F(Saving, TheFourTemplatesOfAW2) {
    const char* const expected[] = {
        "DOE,JOHN_W2_ABC PLUMBING_000.venturo", "JOHN DOE_W2_ABC PLUMBING_000.venturo",
        "W2_DOE,JOHN_ABC PLUMBING_000.venturo", "W2_JOHN DOE_ABC PLUMBING_000.venturo"};
    w2();
    for (int i = 0; i < 4; ++i) {
        useTemplate(i);
        int focus = -1;
        EXPECT_EQ(name(focus), expected[i]) << "template " << i;
        EXPECT_EQ(focus, 0);
    }
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(Saving, FirstNameFirstKeepsTheWholeCleanedLine) {
    useTemplate(1);
    w2("JOHN Q DOE JR.");
    EXPECT_EQ(name(), "JOHN Q DOE JR_W2_ABC PLUMBING_000.venturo");
    useTemplate(0);
    EXPECT_EQ(name(), "DOE JR,JOHN_W2_ABC PLUMBING_000.venturo");
}

TEST_F(Saving, NamingAlsoFillsTheRecord) {
    w2();
    g.document.formRecord = "stale";
    name();
    EXPECT_EQ(g.document.formRecord.rfind("W-2\xB7", 0), 0u) << g.document.formRecord;
    EXPECT_NE(g.document.formRecord.find("ABC PLUMBING"), std::string::npos);
}

TEST_F(Saving, WithNoTemplateChosenTheFirstIsTaken) {
    g.choices.fileNameFormat.clear();
    w2();
    EXPECT_EQ(name(), "DOE,JOHN_W2_ABC PLUMBING_000.venturo");
}

TEST_F(Saving, TheFieldBeingLeftIsEditedBeforeTheRecordIsMade) {
    Form& form = w2();
    Control& number = form.at("Text1", 0);
    number.tag = "TIN";
    test.program->desktop.setFocus(number);
    ASSERT_EQ(form.activeControl(), &number);
    number.text = "123456789";
    name();
    EXPECT_EQ(number.text, "123-45-6789");
    EXPECT_NE(g.document.formRecord.find("TXT0=123-45-6789"), std::string::npos) << g.document.formRecord;
}

TEST_F(Saving, PlaceholdersAreFoundInAnyCase) {
    g.choices.fileNameFormat = "<last>_<First>_<FORM>_<Other>_<seq>.venturo";
    w2();
    EXPECT_EQ(name(), "DOE,JOHN_W2_ABC PLUMBING_000.venturo");
}

TEST_F(Saving, OnlyTheFirstLinesOfNameAndOtherInformationCount) {
    Form& form = w2("JOHN DOE\r\n12 MAIN ST\r\nANYTOWN, OH 44000");
    set(form, 4, "ABC PLUMBING\r\n1 PIPE RD");
    EXPECT_EQ(name(), "DOE,JOHN_W2_ABC PLUMBING_000.venturo");
}

TEST_F(Saving, OtherInformationEqualToTheNameIsLeftOut) {
    Form& form = w2();
    set(form, 4, "JOHN DOE");
    EXPECT_EQ(name(), "DOE,JOHN_W2_000.venturo");
}

TEST_F(Saving, DoubledSeparatorsCollapse) {
    Form& form = w2();
    set(form, 4, "_ABC__PLUMBING_");
    EXPECT_EQ(name(), "DOE,JOHN_W2_ABC_PLUMBING_000.venturo");
}

TEST_F(Saving, ARetirementFormWithABlankPayerHasNoDoubledSeparator) {
    Form& form = open("TF_1099R");
    set(form, 7, "MARY SAMPLE");
    set(form, 4, "123-45-6789");
    for (int i = 0; i < 4; ++i) {
        useTemplate(i);
        const std::string n = name().value_or("");
        EXPECT_EQ(n.find("__"), std::string::npos) << n;
        EXPECT_NE(n.find("_000.venturo"), std::string::npos) << n;
    }
    useTemplate(0);
    EXPECT_EQ(name(), "SAMPLE,MARY_1099R_000.venturo");
    useTemplate(2);
    EXPECT_EQ(name(), "1099R_SAMPLE,MARY_000.venturo");
    set(form, 0, "FIRST STATE PENSION");
    useTemplate(0);
    EXPECT_EQ(name(), "SAMPLE,MARY_1099R_FIRST STATE PENSION_000.venturo");
}

TEST_F(Saving, ACheckNeverCarriesOtherInformation) {
    Form& form = open("F4_CHK");
    set(form, 0, "JOHN DOE\r\n12 MAIN ST");
    set(form, 3, "FIRST NATIONAL BANK");
    int focus = -1;
    EXPECT_EQ(name(focus), "DOE,JOHN_CHK_000.venturo");
    // A check has no number field to insist on.
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(Saving, TwoCardsNameTheFileAfterBothPeopleAsTyped) {
    Form& form = open("F2_SS_ITIN");
    set(form, 0, "123-45-6789");
    set(form, 1, "MARY A SAMPLE");
    set(form, 2, "987-65-4321");
    set(form, 3, "JOHN B SAMPLE");
    useTemplate(1);
    EXPECT_EQ(name(), "SS_ITIN_MARY A SAMPLE_JOHN B SAMPLE_000");
    EXPECT_EQ(g.document.formRecord.rfind("SS_ITIN\xB7\xB7", 0), 0u) << g.document.formRecord;
}

TEST_F(Saving, OneCardNamesOnePerson) {
    Form& form = open("F2_SS_ITIN");
    set(form, 0, "123-45-6789");
    set(form, 1, "MARY A SAMPLE");
    EXPECT_EQ(name(), "SS_ITIN_MARY A SAMPLE_000");
}

TEST_F(Saving, CardsThatDoNotPairUpProposeNoName) {
    Form& form = open("F2_SS_ITIN");
    set(form, 0, "123-45-6789");
    EXPECT_EQ(name(), std::nullopt);
    EXPECT_EQ(g.document.formRecord, "Error SS_ITIN");
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(lastBox().find("One or more SS or ITIN cards has a Number without a Name"), std::string::npos);
}

TEST_F(Saving, NameIsMandatory) {
    Form& form = w2("");
    set(form, 0, "");
    int focus = -1;
    EXPECT_EQ(name(focus), std::nullopt);
    EXPECT_EQ(focus, 0);
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(lastBox().find("Name is MANDATORY"), std::string::npos) << lastBox();
    EXPECT_NE(lastBox().find("M4_FileCode:Build_FileName"), std::string::npos);
    EXPECT_NE(lastBox().find("800"), std::string::npos);
}

TEST_F(Saving, TheNumberIsMandatoryAndTakesTheFocus) {
    Form& form = open("TF_1099R");
    set(form, 7, "MARY SAMPLE");
    int focus = -1;
    EXPECT_EQ(name(focus), std::nullopt);
    EXPECT_EQ(focus, 4);
    EXPECT_NE(lastBox().find("Social Security/Taxpayer ID Number is MANDATORY"), std::string::npos)
        << lastBox();
    EXPECT_NE(lastBox().find("801"), std::string::npos);
}

TEST_F(Saving, TheSheetNamesItsSecondTaxpayerLastNameFirst) {
    Form& form = open("F5_TPInfo");
    set(form, 0, "JOHN DOE\r\n12 MAIN ST");
    set(form, 1, "123-45-6789");
    set(form, 3, "MARY Q DOE\r\n12 MAIN ST");
    EXPECT_EQ(name(), "DOE,JOHN_TPINFO_DOE,MARY_000.venturo");
    useTemplate(1);
    EXPECT_EQ(name(), "JOHN DOE_TPINFO_MARY DOE_000.venturo");
}

TEST_F(Saving, TheLicensesNameTheSecondHolderLastNameFirst) {
    Form& form = open("F3_DL");
    set(form, 0, "JOHN DOE");
    set(form, 4, "MARY Q DOE");
    EXPECT_EQ(name(), "DOE,JOHN_DL_DOE,MARY_000.venturo");
}

TEST_F(Saving, TheBenefitStatementTakesItsNameFromTheFirstField) {
    Form& form = open("TF_SSA1099");
    ASSERT_EQ(g.document.formKey, "SSA1099");
    set(form, 0, "JOHN DOE");
    set(form, 1, "123-45-6789");
    EXPECT_EQ(name(), "DOE,JOHN_SSA1099_000.venturo");
}

struct K1Case {
    const char* form;
    bool numberMissing;
    const char* message;
    const char* numberLine;  // the message number on show, empty for 800
    int tab;
};

struct SavingK1 : Saving, ::testing::WithParamInterface<K1Case> {};

TEST_P(SavingK1, BothNumberAndNameAreRequiredNumberFirst) {
    const K1Case& c = GetParam();
    Form& form = open(c.form);
    const int numberIndex = std::stoi(g.document.catalogue.ssnIndex);
    const int nameIndex = std::stoi(g.document.catalogue.nameAddrIndex);
    if (!c.numberMissing) set(form, numberIndex, "123-45-6789");
    Control* tabs = form.find("SSTab1");
    if (tabs) tabs->listIndex = 1 - c.tab;
    int focus = -1;
    EXPECT_EQ(name(focus), std::nullopt);
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(lastBox().find(c.message), std::string::npos) << lastBox();
    if (*c.numberLine) {
        EXPECT_NE(lastBox().find(c.numberLine), std::string::npos) << lastBox();
    } else {
        EXPECT_EQ(lastBox().find("Message Number"), std::string::npos) << lastBox();
    }
    if (tabs) {
        EXPECT_EQ(tabs->listIndex, c.tab);
    }
    const int missing = c.numberMissing ? numberIndex : nameIndex;
    EXPECT_EQ(focus, missing);
    EXPECT_EQ(test.program->desktop.focus(), &form.at("Text1", missing));
}

INSTANTIATE_TEST_SUITE_P(
    Rules, SavingK1,
    ::testing::Values(
        K1Case{"TF_K11041", true, "Beneficiary's SSN/ITIN REQUIRED", "", 1},
        K1Case{"TF_K11041", false, "Beneficiary's Name and Address Required.", "", 1},
        K1Case{"TF_K11065", true, "Shareholder's SSN REQUIRED", "Message Number: 801", 0},
        K1Case{"TF_K11065", false, "Shareholder's Name and Address Required.", "Message Number: 801", 0},
        K1Case{"TF_K11120S", true, "Shareholder's SSN REQUIRED", "Message Number: 801", 0},
        K1Case{"TF_K11120S", false, "Shareholder's Name and Address Required.", "Message Number: 801", 1}));

TEST_F(Saving, AK1WithNumberAndNameIsNamed) {
    Form& form = open("TF_K11065");
    set(form, 5, "123-45-6789");
    set(form, 6, "JOHN DOE\r\n12 MAIN ST");
    set(form, 3, "ABC PARTNERS");
    EXPECT_EQ(name(), "DOE,JOHN_K11065_ABC PARTNERS_000.venturo");
}

}  // namespace
}  // namespace lw
