#include "documents_fixture.h"

namespace lw::testing {
namespace {

using BuildRecord = Documents;

TEST_F(BuildRecord, FilledFieldsAndMarkedChecksInControlOrder) {
    Form& form = open("TF_W2");
    form.at("Text1", 0).text = "MARY A SAMPLE\r\n12 MAIN ST\r\nANYTOWN, OH 44000";
    form.at("Text1", 2).text = "123-45-6789";
    form.at("Check", 1).caption = "X";
    form.at("txtNote").text = "kept by name";
    EXPECT_EQ(record(), "W-2" + D + "2025" + D + "TXT0=MARY A SAMPLE" + R + "12 MAIN ST" + R +
                            "ANYTOWN, OH 44000" + D + "TXT2=123-45-6789" + D + "CHK1=X" + D +
                            "txtNote=kept by name");
}

TEST_F(BuildRecord, TheYearIsTheOneShownOnTheForm) {
    Form& form = open("TF_W2");
    form.at("TaxYear", 1).caption = "XX";
    EXPECT_EQ(record(), "W-2" + D + "20XX");
}

TEST_F(BuildRecord, AnEmptyFormIsFieldZeroSeparatorFieldOne) {
    open("TF_W2");
    EXPECT_EQ(record(), "W-2" + D + "2025");
    open("F4_CHK");
    EXPECT_EQ(record(), "CHK" + D);
}

TEST_F(BuildRecord, TheCheckHasNoYearSoTwoSeparatorsFollowEachOther) {
    Form& form = open("F4_CHK");
    form.at("Text1", 0).text = "MARY A SAMPLE\r\n12 MAIN ST";
    form.at("Text1", 1).text = "325070760";
    EXPECT_EQ(record(), "CHK" + D + D + "TXT0=MARY A SAMPLE" + R + "12 MAIN ST" + D + "TXT1=325070760");
}

TEST_F(BuildRecord, ASecondTextArrayIsKeyedByItsDigit) {
    Form& form = open("F5_TPInfo");
    form.at("Text1", 0).text = "MARY A SAMPLE";
    form.at("Text2", 0).text = "45";
    EXPECT_EQ(record(), "TPINFO" + D + "2025" + D + "TXT0=MARY A SAMPLE" + D + "TX20=45");
}

TEST_F(BuildRecord, TheLicenseAppendsBothPictureNumbersAlways) {
    open("F3_DL");
    EXPECT_EQ(record(), "DL" + D + D + "PIC1=0" + D + "PIC2=0");
    auto& license = dynamic_cast<SmallLicenseForm&>(*active());
    license.license1PictureIndex = 7;
    license.at("Text1", 0).text = "JOHN DOE";
    EXPECT_EQ(record(), "DL" + D + D + "TXT0=JOHN DOE" + D + "PIC1=7" + D + "PIC2=0");
}

TEST_F(BuildRecord, CardsPairNumbersAndNames) {
    Form& form = open("F2_SS_ITIN");
    form.at("Text1", 0).text = "123-45-6789";
    form.at("Text1", 1).text = "MARY A SAMPLE";
    EXPECT_EQ(record(), "SS_ITIN" + D + D + "TXT0=123-45-6789" + D + "TXT1=MARY A SAMPLE");
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(BuildRecord, ANumberWithoutANameIsRefused) {
    Form& form = open("F2_SS_ITIN");
    form.at("Text1", 2).text = "123-45-6789";
    EXPECT_EQ(record(), std::nullopt);
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(test.ui.boxes[0].find("One or more SS or ITIN cards has a Number without a Name"),
              std::string::npos);
}

TEST_F(BuildRecord, ANameWithoutANumberIsRefusedAndTheFirstBadPairDecides) {
    Form& form = open("F2_SS_ITIN");
    form.at("Text1", 5).text = "JOHN";
    form.at("Text1", 8).text = "987-65-4321";
    EXPECT_EQ(record(), std::nullopt);
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(test.ui.boxes[0].find("One or more SS or ITIN cards has a Name without a Number"),
              std::string::npos);
}

TEST_F(BuildRecord, NoFormIsAFaultOfItsOwnAndMakesNoLine) {
    open("TF_W2");
    EXPECT_EQ(buildRecord(nullptr, g.document), std::nullopt);
    ASSERT_EQ(test.ui.reports.size(), 1u);
    EXPECT_NE(test.ui.reports[0].find("M4_FileCode:Build_Record"), std::string::npos) << test.ui.reports[0];
    EXPECT_NE(test.ui.reports[0].find("Object required"), std::string::npos) << test.ui.reports[0];
}

// The line needs nothing of the program: the form handed in and what its document says of it.
TEST(BuildRecordAlone, TheFormHandedInMakesTheLineUnderTheDocumentsPrefix) {
    SmallForm form("TF_W2", {2, 0, 1, true});
    form.at("TaxYear", 1).caption = "24";
    form.at("Text1", 1).text = "A";
    form.at("Check", 0).caption = "X";
    OpenDocument document;
    document.formKey = "W2";
    document.catalogue.recordPrefix = "W-2";
    EXPECT_EQ(buildRecord(&form, document), "W-2" + D + "2024" + D + "TXT1=A" + D + "CHK0=X");
    document.formKey = "CHK";
    document.catalogue.recordPrefix = "CHK";
    EXPECT_EQ(buildRecord(&form, document), "CHK" + D + D + "TXT1=A" + D + "CHK0=X")
        << "a form key without a tax year leaves the year out, whatever the form shows";
}

TEST_F(BuildRecord, NineBlankCardsAreNotSaved) {
    open("F2_SS_ITIN");
    EXPECT_EQ(record(), std::nullopt);
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(test.ui.boxes[0].find("All SS/ITIN cards are blank, They WILL NOT be saved."),
              std::string::npos);
}

}  // namespace
}  // namespace lw::testing
