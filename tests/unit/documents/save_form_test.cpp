#include "documents/save_form.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "forms/register_forms.h"
#include "model/program.h"
#include "shell/form_lifecycle.h"
#include "test_program.h"

namespace lw {
namespace {

namespace fs = std::filesystem;

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

void writeFile(const fs::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

struct SaveFormTest : ::testing::Test {
    testing::TestProgram test;
    Globals& g = test.program->g;
    Desktop& desktop = test.program->desktop;
    fs::path folder;

    void SetUp() override {
        registerAllForms();
        test.start();
        folder = test.root / "VenturoForms";
        fs::create_directories(folder);
    }

    // The form as saveDataFile loads it for a path that holds a file, without its modal loop.
    SaveForm& load(const fs::path& path) {
        auto owned = std::make_unique<SaveForm>(test.program->parts);
        owned->savePath = path.string();
        return static_cast<SaveForm&>(desktop.load(std::move(owned)));
    }
    SaveForm& loadExisting(const std::string& fileName, const std::string& bytes = "OLD\r\n") {
        writeFile(folder / fileName, bytes);
        return load(folder / fileName);
    }
    // The operator's new name, as the edit of the box hands it to the form: the text, then its Change.
    void retype(SaveForm& form, const std::string& text) {
        form.Text1.text = text;
        desktop.dispatch([&] { form.onChange(form.Text1); });
    }
    // A closed form is gone: only the desktop may be asked about it.
    bool isOpen() const { return desktop.findForm("F7_Save") != nullptr; }
    std::string lastBox() const { return test.ui.boxes.empty() ? std::string() : test.ui.boxes.back(); }
    int filesIn(const fs::path& where) const {
        int n = 0;
        for (const auto& entry : fs::directory_iterator(where)) {
            (void)entry;
            ++n;
        }
        return n;
    }
};

TEST_F(SaveFormTest, LoadSplitsThePathAndWritesEveryCaption) {
    SaveForm& form = loadExisting("DOE,JOHN_W2_ABC PLUMBING_000.venturo");
    EXPECT_FALSE(form.isChild);
    EXPECT_EQ(form.saveFolder, folder.string());
    EXPECT_EQ(form.saveBaseName, "DOE,JOHN_W2_ABC PLUMBING_000");
    EXPECT_EQ(form.saveExtension, "venturo");
    EXPECT_EQ(form.Text1.text, "DOE,JOHN_W2_ABC PLUMBING_000");
    EXPECT_EQ(form.Text2.text, "venturo");
    EXPECT_EQ(form.at("Label3", 0).caption, "File Name");
    EXPECT_EQ(form.at("Label4").caption, "Extension");
    EXPECT_EQ(form.at("Label3", 1).caption,
              "If name of existing file is changed, it will be renamed when the Save Button pressed.");
    EXPECT_EQ(form.cmdNewSequence.caption, "ASSIGN Next Sequence Number\r\nCREATE new file\r\nEXIT");
    EXPECT_EQ(form.cmdExit.caption, "Exit WITHOUT SAVING");
    EXPECT_EQ(form.cmdSave.caption,
              "SAVE\r\n" + folder.string() + "/DOE,JOHN_W2_ABC PLUMBING_000.venturo\r\nEXIT");
    EXPECT_EQ(
        form.Label1.caption,
        "File Names must be UNIQUE (including Disk, Folder/Directory and File Name). The File Names "
        "generated "
        "by the Ledgerwick include a SEQUENCE NUMBER (###) that can be used to make the file name unique."
        "\r\n\r\nThe Ledgerwick can assign a NEW sequence number to the if desired.");
    const std::string blanks(17, ' ');
    EXPECT_EQ(form.Label2.caption,
              "Current File:   DOE,JOHN_W2_ABC PLUMBING_000.venturo\r\n"
              "Current Folder: " +
                  folder.string() +
                  "\r\n"
                  "Options:        Press Save Button\r\n" +
                  blanks + "Press Assign Next Sequence Number Button\r\n" + blanks +
                  "Press Exit Without Saving Button");
}

TEST_F(SaveFormTest, TheF99WordShowsTheBaseNameAndTheLayoutTwice) {
    test.platform.commandLineText = "debug f99";
    SaveForm& form = loadExisting("A_000.venturo");
    auto count = [](const std::string& text, const std::string& word) {
        int n = 0;
        for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) ++n;
        return n;
    };
    EXPECT_EQ(count(form.Label2.caption, "<FILE>"), 1) << form.Label2.caption;
    EXPECT_EQ(count(form.Label2.caption, "<FOLDER>"), 2) << form.Label2.caption;
    EXPECT_EQ(count(form.Label2.caption, "Current File:   "), 2) << form.Label2.caption;
    EXPECT_EQ(form.Label2.caption.rfind("Current File:   A_000\r\nCurrent Folder: <FOLDER>\r\n", 0), 0u)
        << form.Label2.caption;
    // The second copy is the bare layout, its markers standing.
    EXPECT_NE(form.Label2.caption.find("Button"
                                       "Current File:   <FILE>"),
              std::string::npos)
        << form.Label2.caption;
    EXPECT_EQ(form.Label2.caption.find(folder.string()), std::string::npos);
}

TEST_F(SaveFormTest, TheLayoutStaysInsideTheFormWithoutOverlaps) {
    for (const char* args : {"", "F99"}) {
        test.platform.commandLineText = args;
        SaveForm& form = loadExisting("A_000.venturo");
        for (const auto& c : form.controls()) {
            EXPECT_GE(c->left, 0) << c->key();
            EXPECT_GE(c->top, 0) << c->key();
            EXPECT_LE(c->left + c->width, form.width) << c->key();
            EXPECT_LE(c->top + c->height, form.height) << c->key();
        }
        // Label2 grows with its lines, and the buttons stand below it.
        EXPECT_GE(form.cmdSave.top, form.Label2.top + form.Label2.height) << args;
        EXPECT_GE(form.cmdNewSequence.top, form.cmdSave.top + form.cmdSave.height);
        EXPECT_LE(form.cmdNewSequence.left + form.cmdNewSequence.width, form.cmdExit.left);
        form.unload();
    }
}

TEST_F(SaveFormTest, ActivationGivesTheNameTheFocus) {
    SaveForm& form = loadExisting("A_000.venturo");
    desktop.dispatch([&] { form.onActivate(); });
    EXPECT_EQ(form.activeControl(), &form.Text1);
}

TEST_F(SaveFormTest, EveryChangeOfTheNameRebuildsTheSaveCaption) {
    SaveForm& form = loadExisting("A_000.venturo");
    retype(form, "B");
    EXPECT_EQ(form.cmdSave.caption, "SAVE\r\n" + folder.string() + "/B.venturo\r\nEXIT");
    retype(form, "BC");
    EXPECT_EQ(form.cmdSave.caption, "SAVE\r\n" + folder.string() + "/BC.venturo\r\nEXIT");
}

TEST_F(SaveFormTest, ABlankNameIsRestoredAndTheFormStays) {
    SaveForm& form = loadExisting("A_000.venturo");
    retype(form, "");
    ASSERT_EQ(form.Text1.text, "");
    desktop.click(form.cmdSave);
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_EQ(lastBox(), "File Name BLANK - Restoring Original File Name.");
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(form.Text1.text, "A_000");
    EXPECT_EQ(form.cmdSave.caption, "SAVE\r\n" + folder.string() + "/A_000.venturo\r\nEXIT");
    EXPECT_EQ(readFile(folder / "A_000.venturo"), "OLD\r\n");
}

TEST_F(SaveFormTest, TheSameNameInAnotherCaseKeepsThePath) {
    SaveForm& form = loadExisting("Doe_000.venturo");
    const auto outcome = form.outcome();
    retype(form, "DOE_000");
    desktop.click(form.cmdSave);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(*outcome, SaveOutcome::WriteSamePath);
    EXPECT_EQ(filesIn(folder), 1);
    EXPECT_EQ(readFile(folder / "Doe_000.venturo"), "OLD\r\n");
}

TEST_F(SaveFormTest, UnchangedNameKeepsThePath) {
    SaveForm& form = loadExisting("A_000.venturo");
    const auto outcome = form.outcome();
    desktop.click(form.cmdSave);
    EXPECT_EQ(*outcome, SaveOutcome::WriteSamePath);
    EXPECT_FALSE(isOpen());
}

TEST_F(SaveFormTest, ANewNameWritesTheRebuiltRecordThereAndRemovesTheOldFile) {
    // The form on the screen is the configuration form, whose line the rename rebuilds.
    ASSERT_NE(openCatalogueForm("F1_Configure"), nullptr);
    g.document.formRecord = "stale";
    SaveForm& form = loadExisting("A_000.venturo");
    const auto outcome = form.outcome();
    retype(form, "B_000");
    desktop.click(form.cmdSave);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(*outcome, SaveOutcome::Done);
    EXPECT_FALSE(fs::exists(folder / "A_000.venturo"));
    EXPECT_NE(g.document.formRecord, "stale");
    EXPECT_EQ(g.document.formRecord.rfind("CONFIGURE\xB7", 0), 0u) << g.document.formRecord;
    EXPECT_EQ(readFile(folder / "B_000.venturo"), g.document.formRecord + "\r\n");
    EXPECT_EQ(filesIn(folder), 1);
}

TEST_F(SaveFormTest, ARenameThatCannotBeWrittenKeepsTheOldFile) {
    SaveForm& form = loadExisting("A_000.venturo");
    fs::create_directories(folder / "B_000.venturo");
    retype(form, "B_000");
    desktop.click(form.cmdSave);
    EXPECT_NE(lastBox().find("NOT saved"), std::string::npos) << lastBox();
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(readFile(folder / "A_000.venturo"), "OLD\r\n");
    EXPECT_EQ(filesIn(folder), 2);
}

TEST_F(SaveFormTest, TheNextSequenceIsTheFirstFreeNumber) {
    const std::string base = (folder / "DOE_W2_").string();
    EXPECT_EQ(SaveForm::nextSequencePath(base + "000.venturo"), base + "001.venturo");
    writeFile(base + "001.venturo", "");
    writeFile(base + "002.venturo", "");
    EXPECT_EQ(SaveForm::nextSequencePath(base + "000.venturo"), base + "003.venturo");
    EXPECT_EQ(SaveForm::nextSequencePath(base + "007.venturo"), base + "008.venturo");
    EXPECT_EQ(SaveForm::nextSequencePath(base + "999.venturo"), base + "1000.venturo");
    EXPECT_EQ(SaveForm::nextSequencePath(base + "041"), base + "042");
}

TEST_F(SaveFormTest, OnlyAnUnderscoreAndThreeDigitsMakeASequence) {
    const std::string f = folder.string() + "/";
    EXPECT_EQ(SaveForm::nextSequencePath(f + "ABC_12.venturo"), "");
    EXPECT_EQ(SaveForm::nextSequencePath(f + "ABC_1000.venturo"), "");
    EXPECT_EQ(SaveForm::nextSequencePath(f + "ABC-123.venturo"), "");
    EXPECT_EQ(SaveForm::nextSequencePath(f + "ABC_12A.venturo"), "");
    EXPECT_EQ(SaveForm::nextSequencePath(f + "ABC.venturo"), "");
    EXPECT_EQ(SaveForm::nextSequencePath(folder.string() + "_123/A.venturo"), "");
}

TEST_F(SaveFormTest, NewSequenceWritesTheRecordUnderTheNextName) {
    g.document.formRecord =
        "W-2\xB7"
        "2025\xB7TXT13=JOHN DOE";
    writeFile(folder / "DOE_999.venturo", "OLD\r\n");
    SaveForm& form = loadExisting("DOE_998.venturo");
    const auto outcome = form.outcome();
    desktop.click(form.cmdNewSequence);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(*outcome, SaveOutcome::Done);
    EXPECT_EQ(readFile(folder / "DOE_1000.venturo"), g.document.formRecord + "\r\n");
    EXPECT_EQ(readFile(folder / "DOE_998.venturo"), "OLD\r\n");
    EXPECT_EQ(readFile(folder / "DOE_999.venturo"), "OLD\r\n");
}

TEST_F(SaveFormTest, NewSequenceFollowsTheTypedName) {
    g.document.formRecord =
        "W-2\xB7"
        "2025\xB7";
    SaveForm& form = loadExisting("DOE_000.venturo");
    retype(form, "SMITH_010");
    desktop.click(form.cmdNewSequence);
    EXPECT_EQ(readFile(folder / "SMITH_011.venturo"), g.document.formRecord + "\r\n");
}

TEST_F(SaveFormTest, NoSequenceForAShortNumberWritesNothingAndSaysSo) {
    g.document.formRecord =
        "W-2\xB7"
        "2025\xB7";
    SaveForm& form = loadExisting("ABC_12.venturo");
    const auto outcome = form.outcome();
    desktop.click(form.cmdNewSequence);
    EXPECT_EQ(filesIn(folder), 1);
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(lastBox().find("Nothing was saved"), std::string::npos) << lastBox();
    EXPECT_TRUE(test.ui.reports.empty());
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(*outcome, SaveOutcome::Done);
}

TEST_F(SaveFormTest, ExitWritesNothing) {
    SaveForm& form = loadExisting("A_000.venturo");
    const auto outcome = form.outcome();
    retype(form, "B_000");
    desktop.click(form.cmdExit);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(*outcome, SaveOutcome::Done);
    EXPECT_EQ(filesIn(folder), 1);
    EXPECT_EQ(readFile(folder / "A_000.venturo"), "OLD\r\n");
}

TEST_F(SaveFormTest, ClosingTheFormAnyOtherWayWritesNothing) {
    SaveForm& form = loadExisting("A_000.venturo");
    const auto outcome = form.outcome();
    form.unload();
    EXPECT_EQ(*outcome, SaveOutcome::Done);
    EXPECT_EQ(readFile(folder / "A_000.venturo"), "OLD\r\n");
}

TEST_F(SaveFormTest, RunTellsHowTheFormEnded) {
    writeFile(folder / "A_000.venturo", "OLD\r\n");
    const std::string path = (folder / "A_000.venturo").string();
    test.ui.saveFormPresses = {"cmdSave", "cmdExit"};
    EXPECT_EQ(SaveForm::run(test.program->parts, path), SaveOutcome::WriteSamePath);
    EXPECT_EQ(SaveForm::run(test.program->parts, path), SaveOutcome::Done);
    // Left with no button pressed.
    EXPECT_EQ(SaveForm::run(test.program->parts, path), SaveOutcome::Done);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(readFile(folder / "A_000.venturo"), "OLD\r\n");
}

TEST_F(SaveFormTest, TheExtensionIsShownNotTyped) {
    SaveForm& form = loadExisting("A_000.venturo");
    EXPECT_TRUE(form.Text2.locked);
    EXPECT_FALSE(form.Text2.tabStop);
}

TEST_F(SaveFormTest, AFileWithoutExtensionKeepsItsPath) {
    SaveForm& form = loadExisting("PLAIN_000");
    EXPECT_EQ(form.saveExtension, "");
    EXPECT_EQ(form.cmdSave.caption, "SAVE\r\n" + folder.string() + "/PLAIN_000\r\nEXIT");
    retype(form, "OTHER_000");
    desktop.click(form.cmdSave);
    EXPECT_TRUE(fs::exists(folder / "OTHER_000"));
    EXPECT_FALSE(fs::exists(folder / "PLAIN_000"));
}

}  // namespace
}  // namespace lw
