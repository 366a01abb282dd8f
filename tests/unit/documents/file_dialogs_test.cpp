#include "documents/file_dialogs.h"

#include "documents_fixture.h"
#include "shell/frame_command_hooks.h"

namespace lw::testing {
namespace {

using FileDialogs = Documents;

constexpr const char* kOpenTitle = "Select File, Press OPEN button -OR - Press Delete Key to DELETE the File";
constexpr const char* kSaveTitle =
    "Save Form File - MAKE SURE YOU SELECT THE PROPER FOLDER TO SAVE THE FILE IN";

TEST_F(FileDialogs, CancelGivesNoPath) {
    EXPECT_EQ(chooseFileToOpenOrSave(test.program->parts, FileDialogMode::Open, ""), std::nullopt);
    EXPECT_EQ(chooseFileToOpenOrSave(test.program->parts, FileDialogMode::Save, "A.venturo"), std::nullopt);
    EXPECT_EQ(test.ui.fileDialogs.size(), 2u);
}

TEST_F(FileDialogs, TheOpenDialogAsksWithItsTitleFilterAndRememberedFolder) {
    store::writeInfValue("TESTER", "LastOpenFolder", files.string(), g.edition.userInfFile);
    chooseFileToOpenOrSave(test.program->parts, FileDialogMode::Open, "ignored.venturo");
    ASSERT_EQ(test.ui.fileDialogs.size(), 1u);
    const FileDialogRequest& asked = test.ui.fileDialogs[0];
    EXPECT_FALSE(asked.save);
    EXPECT_EQ(asked.title, kOpenTitle);
    EXPECT_EQ(asked.startFolder, files.string());
    EXPECT_EQ(asked.proposedName, "") << "the open dialog starts blank";
    EXPECT_EQ(asked.filterDescription, "Venturo Form Files (*.venturo)");
    EXPECT_EQ(asked.filterPattern, "*.venturo");
}

TEST_F(FileDialogs, TheSaveDialogProposesTheNameInItsOwnFolder) {
    store::writeInfValue("TESTER", "LastSaveFolder", "/somewhere/saved", g.edition.userInfFile);
    chooseFileToOpenOrSave(test.program->parts, FileDialogMode::Save, "DOE,JOHN_W2_000.venturo");
    ASSERT_EQ(test.ui.fileDialogs.size(), 1u);
    const FileDialogRequest& asked = test.ui.fileDialogs[0];
    EXPECT_TRUE(asked.save);
    EXPECT_EQ(asked.title, kSaveTitle);
    EXPECT_EQ(asked.startFolder, "/somewhere/saved");
    EXPECT_EQ(asked.proposedName, "DOE,JOHN_W2_000.venturo");
}

TEST_F(FileDialogs, ANameLongerThanTheBufferIsNotOfferedWhole) {
    const std::string longName = std::string(300, 'N') + ".venturo";
    chooseFileToOpenOrSave(test.program->parts, FileDialogMode::Save, longName);
    ASSERT_EQ(test.ui.fileDialogs.size(), 1u);
    EXPECT_EQ(test.ui.fileDialogs[0].proposedName, std::string(256, 'N'));
}

TEST_F(FileDialogs, AnEmptyFolderFallsBackToTheTaxFormsFolderThenToTheDialogsOwn) {
    store::writeInfValue("TESTER", "LastOpenFolder", "", g.edition.userInfFile);
    chooseFileToOpenOrSave(test.program->parts, FileDialogMode::Open, "");
    store::writeInfValue("TaxForms", "Folder", "/training/forms", g.edition.userInfFile);
    chooseFileToOpenOrSave(test.program->parts, FileDialogMode::Open, "");
    ASSERT_EQ(test.ui.fileDialogs.size(), 2u);
    EXPECT_EQ(test.ui.fileDialogs[0].startFolder, "") << "the dialog's own default";
    EXPECT_EQ(test.ui.fileDialogs[1].startFolder, "/training/forms");
}

TEST_F(FileDialogs, ASaveInANewFolderMovesOnlyTheSaveFolder) {
    store::writeInfValue("TESTER", "LastOpenFolder", "/open/here", g.edition.userInfFile);
    store::writeInfValue("TESTER", "LastSaveFolder", "/save/here", g.edition.userInfFile);
    test.ui.fileAnswers.push_back("/new/place/DOE_W2_000.venturo");
    EXPECT_EQ(chooseFileToOpenOrSave(test.program->parts, FileDialogMode::Save, "DOE_W2_000.venturo"),
              "/new/place/DOE_W2_000.venturo");
    EXPECT_EQ(userInf("LastSaveFolder"), "/new/place");
    EXPECT_EQ(g.choices.lastSaveFolder, "/new/place");
    EXPECT_EQ(userInf("LastOpenFolder"), "/open/here");

    test.ui.fileAnswers.push_back("/elsewhere/x.venturo");
    chooseFileToOpenOrSave(test.program->parts, FileDialogMode::Open, "");
    EXPECT_EQ(userInf("LastOpenFolder"), "/elsewhere");
    EXPECT_EQ(g.choices.lastOpenFolder, "/elsewhere");
    EXPECT_EQ(userInf("LastSaveFolder"), "/new/place");
}

TEST_F(FileDialogs, TheSameFolderAsTheStartIsNotWritten) {
    store::writeInfValue("TESTER", "LastOpenFolder", "", g.edition.userInfFile);
    store::writeInfValue("TaxForms", "Folder", "/training/forms", g.edition.userInfFile);
    test.ui.fileAnswers.push_back("/training/forms/a.venturo");
    EXPECT_EQ(chooseFileToOpenOrSave(test.program->parts, FileDialogMode::Open, ""),
              "/training/forms/a.venturo");
    EXPECT_EQ(userInf("LastOpenFolder"), "") << "the folder equals the start folder of the fall-back";
}

TEST_F(FileDialogs, TheAnswerIsCutAtItsFirstNul) {
    test.ui.fileAnswers.push_back(std::string("/cut/here.venturo\0rest", 22));
    EXPECT_EQ(chooseFileToOpenOrSave(test.program->parts, FileDialogMode::Open, ""), "/cut/here.venturo");
}

TEST_F(FileDialogs, AFolderThatHasGoneIsForgottenBeforeTheOpenDialog) {
    store::writeInfValue("TESTER", "LastOpenFolder", (test.root / "vanished").string(),
                         g.edition.userInfFile);
    openDataFile(test.program->parts);
    ASSERT_EQ(test.ui.fileDialogs.size(), 1u);
    EXPECT_EQ(test.ui.fileDialogs[0].startFolder, "");
    EXPECT_EQ(userInf("LastOpenFolder"), "");
}

TEST_F(FileDialogs, TheFrameOffersOpenOnceTheCommandIsThere) {
    EXPECT_TRUE(static_cast<bool>(frameCommandHooks().openFile));
    EXPECT_TRUE(test.frame().at("cmdBtn", 0).enabled);
    const MenuItem* item = test.frame().findMenu("mnuControlOpen");
    ASSERT_NE(item, nullptr);
    EXPECT_TRUE(item->enabled);
}

TEST_F(FileDialogs, TheOpenButtonOpensAFile) {
    const std::string path = write("w2.venturo", "W-2" + D + "2025" + D + "TXT0=FROM THE BUTTON\r\n");
    test.ui.fileAnswers.push_back(path);
    test.program->desktop.click(test.frame().at("cmdBtn", 0));
    ASSERT_NE(active(), nullptr);
    EXPECT_EQ(field("Text1", 0).text, "FROM THE BUTTON");
    EXPECT_EQ(userInf("LastOpenFolder"), files.string());
}

}  // namespace
}  // namespace lw::testing
