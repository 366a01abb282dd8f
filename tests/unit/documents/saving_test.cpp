#include "saving_fixture.h"

namespace lw {
namespace {

using namespace saving_fixture;

TEST_F(Saving, SaveWritesTheRecordAndOneLineEndWhereTheDialogSays) {
    w2().at("Text1", 0).toolTipText = "The employee's number";
    const fs::path path = forms() / "doe.venturo";
    test.ui.fileAnswers.push_back(path.string());
    saveDataFile(test.program->parts);
    ASSERT_EQ(test.ui.fileDialogs.size(), 1u);
    EXPECT_TRUE(test.ui.fileDialogs[0].save);
    EXPECT_EQ(test.ui.fileDialogs[0].proposedName, "DOE,JOHN_W2_ABC PLUMBING_000.venturo");
    EXPECT_EQ(readFile(path), g.document.formRecord + "\r\n");
    EXPECT_EQ(g.document.formRecord.rfind("W-2\xB7", 0), 0u);
    Form& form = *g.document.currentForm;
    // The path goes on the status line in red; the field the operator is sent back to then puts its tip
    // there, and the red stays.
    EXPECT_EQ(form.at("labelMisc").caption, form.at("Text1", 0).toolTipText);
    EXPECT_EQ(form.at("labelMisc").foreColor, 255u);
    // The path is not kept: the next Save of the form asks again.
    EXPECT_EQ(g.document.currentFileName, "");
    EXPECT_EQ(test.program->desktop.focus(), &form.at("Text1", 0));
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(Saving, TheExtensionStandsOnceAtTheEnd) {
    Form& form = w2();
    set(form, 4, "A.VENTURO PLUMBING");
    test.ui.fileAnswers.push_back((forms() / "x.venturo").string());
    saveDataFile(test.program->parts);
    ASSERT_EQ(test.ui.fileDialogs.size(), 1u);
    EXPECT_EQ(test.ui.fileDialogs[0].proposedName, "DOE,JOHN_W2_A PLUMBING_000.venturo");
}

TEST_F(Saving, CancelWritesNothing) {
    w2();
    saveDataFile(test.program->parts);
    EXPECT_EQ(test.ui.fileDialogs.size(), 1u);
    EXPECT_EQ(filesIn(forms()), 0);
}

TEST_F(Saving, AnOpenedFileIsSavedWithoutADialog) {
    w2();
    const fs::path path = forms() / "opened.venturo";
    g.document.currentFileName = path.string();
    saveDataFile(test.program->parts);
    EXPECT_TRUE(test.ui.fileDialogs.empty());
    EXPECT_EQ(readFile(path), g.document.formRecord + "\r\n");
}

TEST_F(Saving, ANamingErrorAsksForNoPath) {
    w2("");
    saveDataFile(test.program->parts);
    EXPECT_TRUE(test.ui.fileDialogs.empty());
    EXPECT_EQ(filesIn(forms()), 0);
    EXPECT_NE(lastBox().find("Name is MANDATORY"), std::string::npos);
    // The naming chose the first field to go back to.
    EXPECT_EQ(test.program->desktop.focus(), &g.document.currentForm->at("Text1", 0));
}

TEST_F(Saving, TheNumberErrorSendsTheOperatorToTheNumber) {
    Form& form = open("TF_1099R");
    set(form, 7, "MARY SAMPLE");
    saveDataFile(test.program->parts);
    EXPECT_TRUE(test.ui.fileDialogs.empty());
    EXPECT_EQ(test.program->desktop.focus(), &form.at("Text1", 4));
}

TEST_F(Saving, CardsThatDoNotPairUpAreNotSaved) {
    Form& form = open("F2_SS_ITIN");
    set(form, 0, "123-45-6789");
    test.ui.fileAnswers.push_back((forms() / "cards.venturo").string());
    g.document.formRecord = "stale";
    saveDataFile(test.program->parts);
    EXPECT_EQ(g.document.formRecord, "Error SS_ITIN");
    EXPECT_TRUE(test.ui.fileDialogs.empty());
    EXPECT_EQ(filesIn(forms()), 0);
}

TEST_F(Saving, AnExistingFileLeftWithoutAnAnswerIsKept) {
    w2();
    const fs::path path = forms() / "kept.venturo";
    std::ofstream(path, std::ios::binary) << "OLD\r\n";
    test.ui.fileAnswers.push_back(path.string());
    saveDataFile(test.program->parts);
    EXPECT_EQ(readFile(path), "OLD\r\n");
    EXPECT_EQ(g.document.lastSaveOutcome, SaveOutcome::Done);
    EXPECT_NE(g.document.currentForm->at("labelMisc").foreColor, 255u);
}

TEST_F(Saving, AnExistingFileKeptUnderItsNameIsOverwritten) {
    w2();
    const fs::path path = forms() / "kept.venturo";
    std::ofstream(path, std::ios::binary) << "OLD\r\n";
    test.ui.fileAnswers.push_back(path.string());
    test.ui.saveFormPresses = {"cmdSave"};
    saveDataFile(test.program->parts);
    EXPECT_EQ(readFile(path), g.document.formRecord + "\r\n");
    EXPECT_EQ(g.document.formRecord.rfind("W-2\xB7", 0), 0u);
    EXPECT_EQ(g.document.lastSaveOutcome, SaveOutcome::WriteSamePath);
    EXPECT_EQ(g.document.currentForm->at("labelMisc").foreColor, 255u);
}

TEST_F(Saving, AVanishedFolderIsToldAndForgotten) {
    w2();
    const fs::path gone = test.root / "GoneFolder";
    test.ui.fileAnswers.push_back((gone / "doe.venturo").string());
    saveDataFile(test.program->parts);
    EXPECT_FALSE(fs::exists(gone));
    ASSERT_FALSE(test.ui.boxes.empty());
    EXPECT_NE(lastBox().find("NOT saved"), std::string::npos) << lastBox();
    EXPECT_NE(lastBox().find(gone.string()), std::string::npos) << lastBox();
    // The dialog remembered the folder; the check forgets it again, as it is gone.
    EXPECT_EQ(store::readInfValue(g.process.userNameUpper, "LastSaveFolder", "?", g.edition.userInfFile), "");
    EXPECT_NE(g.document.currentForm->at("labelMisc").foreColor, 255u);
    EXPECT_TRUE(test.ui.reports.empty());
}

TEST_F(Saving, AFailedWriteIsToldAndLeavesNoPieceBehind) {
    w2();
    // A folder where the file should be: the write cannot replace it.
    const fs::path path = forms() / "taken.venturo";
    fs::create_directories(path);
    test.ui.fileAnswers.push_back(path.string());
    saveDataFile(test.program->parts);
    EXPECT_TRUE(fs::is_directory(path));
    EXPECT_NE(lastBox().find("NOT saved"), std::string::npos) << lastBox();
    EXPECT_EQ(filesIn(forms()), 1);
    EXPECT_TRUE(test.ui.reports.empty());
}

TEST_F(Saving, TheSheetHandsItsPeopleToTheStoreAfterTheWrite) {
    const auto store = [&](const char* key) {
        return store::readInfValue(g.process.userNameUpper, key, "?", g.edition.userInfFile);
    };
    Form& form = open("F5_TPInfo");
    set(form, 0, "JOHN DOE");
    set(form, 1, "123-45-6789");
    // A write that fails hands nothing on.
    const fs::path taken = forms() / "taken.venturo";
    fs::create_directories(taken);
    test.ui.fileAnswers.push_back(taken.string());
    saveDataFile(test.program->parts);
    EXPECT_EQ(store("TP1SSN"), "?");

    const fs::path path = forms() / "sheet.venturo";
    test.ui.fileAnswers.push_back(path.string());
    saveDataFile(test.program->parts);
    EXPECT_EQ(readFile(path), g.document.formRecord + "\r\n");
    EXPECT_EQ(store("TP1NameAddr"), "JOHN DOE");
    EXPECT_EQ(store("TP1SSN"), "123-45-6789");

    // Another form's save leaves the store alone.
    Form& other = w2("MARY MAJOR");
    set(other, 0, "987-65-4321");
    test.ui.fileAnswers.push_back((forms() / "w2.venturo").string());
    saveDataFile(test.program->parts);
    EXPECT_EQ(store("TP1NameAddr"), "JOHN DOE");
    EXPECT_EQ(store("TP1SSN"), "123-45-6789");
}

TEST_F(Saving, SavingWithNoFormIsADataErrorAndWritesNothing) {
    g.document.currentForm->unload();
    saveDataFile(test.program->parts);
    EXPECT_TRUE(test.ui.fileDialogs.empty());
    EXPECT_NE(lastBox().find("You must open an existing form"), std::string::npos) << lastBox();
}

}  // namespace
}  // namespace lw

namespace lw::testing {
namespace {

TEST(SafeFileName, CharactersThatAFileNameCannotHoldBecomeDashes) {
    EXPECT_EQ(safeFileName("DOE,JOHN_W2_A/B PLUMBING_000.venturo"), "DOE,JOHN_W2_A-B PLUMBING_000.venturo");
    EXPECT_EQ(safeFileName("..\\..\\x:y*z?\"q\"<a>|b"), "..-..-x-y-z--q--a--b");
    EXPECT_EQ(safeFileName(std::string("TAB\tLINE\r\nDEL\x7F")), "TAB-LINE--DEL-");
    EXPECT_EQ(safeFileName("O'BRIEN, MARY-ANN & SONS (2025)"), "O'BRIEN, MARY-ANN & SONS (2025)");
    EXPECT_EQ(safeFileName("CAF\xC9"), "CAF\xC9") << "letters of the code page stay";
}

}  // namespace
}  // namespace lw::testing
