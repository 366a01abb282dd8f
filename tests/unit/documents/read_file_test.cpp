#include "documents_fixture.h"

namespace lw::testing {
namespace {

using ReadFile = Documents;

bool anyContains(const std::vector<std::string>& texts, const std::string& part) {
    for (const std::string& t : texts)
        if (t.find(part) != std::string::npos) return true;
    return false;
}

TEST_F(ReadFile, ASavedFormComesBackWhole) {
    Form& form = open("TF_W2");
    form.at("Text1", 0).text = "MARY A SAMPLE\r\n12 MAIN ST";
    form.at("Text1", 3).text = "1,234.00";
    form.at("Check", 2).caption = "X";
    const std::string path = write("w2.venturo", record().value() + "\r\n");
    open("F4_CHK");
    openFile(path);
    ASSERT_NE(active(), nullptr);
    EXPECT_EQ(active()->name(), "TF_W2");
    EXPECT_EQ(g.document.currentForm, active());
    EXPECT_EQ(field("Text1", 0).text, "MARY A SAMPLE\r\n12 MAIN ST");
    EXPECT_EQ(field("Text1", 3).text, "1,234.00");
    EXPECT_EQ(field("Check", 2).caption, "X");
    EXPECT_EQ(field("labelMisc").caption, path);
    EXPECT_EQ(field("labelMisc").foreColor, 255u);
    EXPECT_EQ(g.document.currentFileName, path);
    EXPECT_TRUE(test.ui.boxes.empty());
    EXPECT_TRUE(test.ui.reports.empty());
}

TEST_F(ReadFile, ReturnsTheFormItFilled) {
    g.document.currentFileName = write("w2.venturo", "W-2" + D + "2025" + D + "TXT0=A\r\n");
    Form* read = readCurrentFile();
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read, active());
    EXPECT_EQ(read->name(), "TF_W2");
    EXPECT_EQ(g.document.catalogue.formTitle, "TF_W2");
    EXPECT_EQ(read->at("Text1", 0).text, "A");
    g.document.currentFileName.clear();
    EXPECT_EQ(readCurrentFile(), nullptr) << "no file, nothing read";
}

TEST_F(ReadFile, TheFileNamesTheFormWhateverIsOnTheScreenAndTheYearInForceStays) {
    open("F5_TPInfo");
    openFile(write("any.name", "W-2" + D + "1999" + D + "TXT1=B\r\nnot read" + D + "TXT2=C\r\n"));
    ASSERT_NE(active(), nullptr);
    EXPECT_EQ(active()->name(), "TF_W2");
    EXPECT_EQ(field("TaxYear", 1).caption, "25");
    EXPECT_EQ(field("Text1", 1).text, "B");
    EXPECT_EQ(field("Text1", 2).text, "") << "only the first line is read";
    EXPECT_EQ(test.program->desktop.findForm("F5_TPInfo"), nullptr);
}

TEST_F(ReadFile, AValueHoldingEqualsComesBackCutAtIt) {
    openFile(write("eq.venturo", "W-2" + D + "2025" + D + "TXT0=A=B\r\n"));
    EXPECT_EQ(field("Text1", 0).text, "A");
}

TEST_F(ReadFile, TheOldCheckKeyIsReadAsTheNewOneValuesIncluded) {
    openFile(write("cbx.venturo", "W-2" + D + "2025" + D + "cbx1=X" + D + "TXT0=ACBX INC\r\n"));
    EXPECT_EQ(field("Check", 1).caption, "X");
    EXPECT_EQ(field("Text1", 0).text, "ACHK INC");
}

TEST_F(ReadFile, ASeparatorInAValueSplitsAndTheTailIsAFaultOfTheOpen) {
    openFile(write("dot.venturo", "W-2" + D + "2025" + D + "TXT0=A" + D + "B" + D + "TXT1=C\r\n"));
    ASSERT_NE(active(), nullptr);
    EXPECT_EQ(field("Text1", 0).text, "A");
    EXPECT_EQ(field("Text1", 1).text, "") << "the read ends at the field without =";
    ASSERT_EQ(test.ui.reports.size(), 1u);
    EXPECT_NE(test.ui.reports[0].find("M4_FileCode:Open_File"), std::string::npos);
}

TEST_F(ReadFile, AFirstKeyFieldWithoutEqualsIsAFaultOfTheRead) {
    openFile(write("first.venturo", "W-2" + D + "2025" + D + "junk" + D + "TXT1=C\r\n"));
    ASSERT_NE(active(), nullptr) << "the form was opened before the fault";
    EXPECT_EQ(field("Text1", 1).text, "");
    ASSERT_EQ(test.ui.reports.size(), 1u);
    EXPECT_NE(test.ui.reports[0].find("M4_FileCode:Read_File"), std::string::npos);
}

TEST_F(ReadFile, AKeyWithoutAControlIsSilentlyLost) {
    openFile(write("lost.venturo",
                   "W-2" + D + "2025" + D + "CHK647=X" + D + "TXT99=Z" + D + "FOO=1" + D + "TXT1=kept\r\n"));
    EXPECT_EQ(field("Text1", 1).text, "kept");
    EXPECT_TRUE(test.ui.reports.empty());
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(ReadFile, OnlyTwoCharactersMakeTheIndex) {
    openFile(write("idx.venturo", "W-2" + D + "2025" + D + "CHK1 7=X" + D + "TXT05=Q\r\n"));
    EXPECT_EQ(field("Check", 1).caption, "X") << "CHK1 7 is read by its two characters \"1 \"";
    EXPECT_EQ(field("Text1", 5).text, "Q");
}

TEST_F(ReadFile, AnOldCardFileIsRewrittenInPlaceBeforeAnythingElse) {
    const std::string path =
        write("cards.venturo", "SS" + D + D + "TXT1=JOHN GLASS" + D + "TXT0=123-45-6789\r\n");
    openFile(path);
    EXPECT_EQ(contents(path), "SS_ITIN" + D + D + "TXT1=JOHN GLASS_ITIN" + D + "TXT0=123-45-6789\r\n");
    ASSERT_NE(active(), nullptr);
    EXPECT_EQ(active()->name(), "F2_SS_ITIN");
    EXPECT_EQ(field("Text1", 1).text, "JOHN GLASS_ITIN") << "a value ending in ss is changed too";
    EXPECT_EQ(field("Image1", 0).picture, g.edition.picturesFolder + "/SSN.jpg");
}

TEST_F(ReadFile, AnOldCardFileIsRewrittenBeforeAFaultOfItsFields) {
    const std::string path = write("cards.venturo", "SS" + D + D + "junk\r\ntrailing line\r\n");
    openFile(path);
    EXPECT_EQ(contents(path), "SS_ITIN" + D + D + "junk\r\n");
    EXPECT_EQ(test.ui.reports.size(), 1u);
}

TEST_F(ReadFile, AnOldMiscFileIsRewritten) {
    const std::string path = write("misc.venturo", "1099-MISC20" + D + "2025" + D + "TXT0=PAYER\r\n");
    openFile(path);
    EXPECT_EQ(contents(path), "1099-MISC" + D + "2025" + D + "TXT0=PAYER\r\n");
    ASSERT_NE(active(), nullptr);
    EXPECT_EQ(active()->name(), "TF_1099MISC");
    EXPECT_EQ(field("Text1", 0).text, "PAYER");
}

TEST_F(ReadFile, AnUnknownFormLeavesNoFormAndSaysWhy) {
    open("TF_W2");
    const std::string path = write("odd.venturo", "NOPE" + D + "2025" + D + "TXT0=A\r\n");
    openFile(path);
    EXPECT_EQ(active(), nullptr);
    EXPECT_EQ(g.document.currentForm, nullptr);
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(test.ui.boxes[0].find("NOPE"), std::string::npos);
    EXPECT_NE(test.ui.boxes[0].find(path), std::string::npos);
}

struct BadFile {
    const char* name;
    std::string bytes;
    const char* why;
};

TEST_F(ReadFile, FilesThatAreNoRecordAreRefusedUnchangedWithAMessage) {
    const BadFile bad[] = {
        {"empty.venturo", "", "empty"},
        {"binary.venturo", std::string("SS\xB7\xB7TXT0=1\0\x01\x02", 13), "binary"},
        {"control.venturo", "W-2" + D + "2025" + D + "TXT0=\x01\x02\x1A\r\n", "binary"},
        {"huge.venturo", "W-2" + D + "2025" + D + "TXT0=" + std::string(1024 * 1024, 'A'),
         "larger than 1 MB"},
        {"plain.venturo", "just some text\r\nand more\xB7\r\n", "no field separator"},
        {"blankline.venturo", "\r\nW-2" + D + "2025\r\n", "no field separator"},
    };
    for (const BadFile& file : bad) {
        SCOPED_TRACE(file.name);
        open("TF_W2");
        Form* before = active();
        test.ui.boxes.clear();
        const std::string path = write(file.name, file.bytes);
        g.document.currentFileName = path;
        EXPECT_EQ(readCurrentFile(), nullptr);
        EXPECT_EQ(active(), before) << "nothing is unloaded for a file that is no record";
        EXPECT_EQ(contents(path), file.bytes);
        ASSERT_EQ(test.ui.boxes.size(), 1u);
        EXPECT_NE(test.ui.boxes[0].find(path), std::string::npos);
        EXPECT_NE(test.ui.boxes[0].find(file.why), std::string::npos) << test.ui.boxes[0];
        EXPECT_TRUE(test.ui.reports.empty());
    }
}

TEST_F(ReadFile, AMissingFileIsReported) {
    openFile((files / "gone.venturo").string());
    EXPECT_EQ(active(), nullptr);
    EXPECT_TRUE(anyContains(test.ui.reports, "M4_FileCode:Read_File"));
    EXPECT_TRUE(anyContains(test.ui.reports, "gone.venturo"));
}

TEST_F(ReadFile, CancelInOpenModeLeavesNoForm) {
    open("TF_W2");
    openDataFile(test.program->parts);
    EXPECT_EQ(active(), nullptr);
    EXPECT_EQ(g.document.currentFileName, D);
    EXPECT_TRUE(test.ui.boxes.empty());
    EXPECT_TRUE(test.ui.reports.empty());
}

TEST_F(ReadFile, DatesAreRecheckedAgainstTheYearInForce) {
    openFile(write("dates.venturo", "W-2G" + D + "2024" + D + "TXT2=3/7/2024" + D + "TXT3=1/2/1999\r\n"));
    EXPECT_EQ(field("Text1", 2).text, "03/07/2025");
    EXPECT_EQ(field("Text1", 3).text, "01/02/1999");
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(test.ui.boxes[0].find("Date MUST match the Tax Year shown on the form"), std::string::npos);
}

TEST_F(ReadFile, TheDatePassEndsAtTheFirstThatFails) {
    Form& form = open("TF_W2G");
    form.at("Text1", 2).text = "13/45/2025";
    form.at("Text1", 3).text = "1/2/1999";
    recheckDates();
    EXPECT_EQ(form.at("Text1", 3).text, "1/2/1999");
}

TEST_F(ReadFile, TheBenefitStatementTakesEveryKeyIntoItsFirstArrayAndShowsNegativesInRed) {
    openFile(
        write("ssa.venturo", "SSA" + D + "2025" + D + "TXT4=-100.00" + D + "XYZ5=-5" + D + "TXT6=-1\r\n"));
    ASSERT_NE(active(), nullptr);
    EXPECT_EQ(active()->name(), "TF_SSA1099");
    EXPECT_EQ(field("Text1", 4).text, "-100.00");
    EXPECT_EQ(field("Text1", 4).foreColor, 255u);
    EXPECT_EQ(field("Text1", 5).text, "-5");
    EXPECT_EQ(field("Text1", 5).foreColor, 255u);
    EXPECT_EQ(field("Text1", 6).text, "-1");
    EXPECT_NE(field("Text1", 6).foreColor, 255u);
}

TEST_F(ReadFile, TheLicenseGetsItsPicturesBack) {
    openFile(write("dl.venturo", "DL" + D + D + "TXT0=JOHN DOE" + D + "PIC1=7" + D + "PIC2=0\r\n"));
    auto& license = dynamic_cast<SmallLicenseForm&>(*active());
    EXPECT_EQ(license.license1PictureIndex, 7);
    EXPECT_EQ(license.license2PictureIndex, 0);
    EXPECT_EQ(license.at("Picture2").picture, g.edition.picturesFolder + "/P7GS.jpg");
    EXPECT_EQ(license.at("Picture4").picture, "");
    EXPECT_EQ(record(), "DL" + D + D + "TXT0=JOHN DOE" + D + "PIC1=7" + D + "PIC2=0");
}

TEST_F(ReadFile, TheCardsShowTheirKindByTheFirstDigit) {
    openFile(write("cards.venturo", "SS_ITIN" + D + D + "TXT0=912-70-1234" + D + "TXT1=A" + D +
                                        "TXT2=123-45-6789" + D + "TXT3=B\r\n"));
    EXPECT_EQ(field("Image1", 0).picture, g.edition.picturesFolder + "/ITIN.jpg");
    EXPECT_EQ(field("Image1", 1).picture, g.edition.picturesFolder + "/SSN.jpg");
    EXPECT_EQ(field("Image1", 2).picture, "");
}

TEST_F(ReadFile, TheTaxpayerSheetRefreshesTheStoreAndTheAges) {
    store::writeInfValue("TESTER", "Dependent1", "KEPT" + D + "111", g.edition.userInfFile);
    openFile(write("tp.venturo", "TPINFO" + D + "2025" + D + "TXT0=MARY A SAMPLE" + R + "12 MAIN ST" + D +
                                     "TXT1=123-45-6789" + D + "TXT2=01/15/1980" + D + "TXT3=JOHN" + D +
                                     "TXT8=12/31/2000" + D + "TXT34=555-1212\r\n"));
    ASSERT_NE(active(), nullptr);
    EXPECT_EQ(field("Label1").backColor, 65535u);
    EXPECT_EQ(userInf("TP1NameAddr"), "MARY A SAMPLE" + R + "12 MAIN ST");
    EXPECT_EQ(userInf("TP1SSN"), "123-45-6789");
    EXPECT_EQ(userInf("TP1DOB"), "01/15/1980");
    EXPECT_EQ(userInf("TP2NameAddr"), "JOHN");
    EXPECT_EQ(userInf("TP2SSN"), "");
    EXPECT_EQ(userInf("TP2DOB"), "");
    EXPECT_EQ(userInf("Dependent1"), "KEPT" + D + "111") << "an open leaves the dependants alone";
    EXPECT_EQ(field("Text2", 0).text, "45");
    EXPECT_EQ(field("Text2", 2).text, "25") << "born on the last day of the year counts the whole year";
    EXPECT_EQ(field("Text2", 1).text, "");
}

TEST_F(ReadFile, AgesReadNotApplicableInThePlaceholderYear) {
    g.taxYear = TaxYearChoice(2025, TaxYearChoice::Slot::Placeholder);
    openFile(write("tp.venturo", "TPINFO" + D + "20XX" + D + "TXT2=01/15/1980\r\n"));
    EXPECT_EQ(field("Text2", 0).text, "N/A");
}

TEST_F(ReadFile, ABirthAfterTheYearGivesANegativeAgeAndAWarning) {
    openFile(write("tp.venturo", "TPINFO" + D + "2025" + D + "TXT2=01/15/2030\r\n"));
    EXPECT_EQ(field("Text2", 0).text, "-5");
    EXPECT_EQ(field("labelMisc").caption, "One or more date(s) are invalid");
}

}  // namespace
}  // namespace lw::testing
