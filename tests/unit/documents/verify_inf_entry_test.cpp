#include <filesystem>
#include <string>

#include "documents/file_dialogs.h"
#include "documents_fixture.h"
#include "store/inf_store.h"

namespace lw::testing {
namespace {

namespace fs = std::filesystem;

class VerifyInfEntry : public Documents {
protected:
    void SetUp() override {
        Documents::SetUp();
        fs::create_directories(files / "forms");
        existing_ = (files / "forms").string();
        gone_ = (files / "gone").string();
    }

    void write(const std::string& key, const std::string& value) {
        store::writeInfValue("TESTER", key, value, g.edition.userInfFile);
    }
    UserInfSection userInf() const { return {g.edition.userInfFile, "TESTER"}; }
    std::string read(const std::string& key) {
        return store::readInfValue("TESTER", key, "<none>", g.edition.userInfFile);
    }

    std::string existing_;
    std::string gone_;
};

TEST_F(VerifyInfEntry, AnOpenFolderThatHasGoneIsForgotten) {
    write("LastOpenFolder", gone_);
    write("LastSaveFolder", gone_);
    verifyRememberedFolder(FileDialogMode::Open, userInf());
    EXPECT_EQ(read("LastOpenFolder"), "");
    EXPECT_EQ(read("LastSaveFolder"), gone_);
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(VerifyInfEntry, ASaveFolderThatHasGoneIsForgottenAlone) {
    write("LastOpenFolder", gone_);
    write("LastSaveFolder", gone_);
    verifyRememberedFolder(FileDialogMode::Save, userInf());
    EXPECT_EQ(read("LastSaveFolder"), "");
    EXPECT_EQ(read("LastOpenFolder"), gone_);
    verifyRememberedFolder(FileDialogMode::Open, userInf());
    EXPECT_EQ(read("LastOpenFolder"), "");
}

TEST_F(VerifyInfEntry, AnExistingFolderIsKept) {
    write("LastOpenFolder", existing_);
    write("LastSaveFolder", existing_);
    verifyRememberedFolder(FileDialogMode::Open, userInf());
    verifyRememberedFolder(FileDialogMode::Save, userInf());
    EXPECT_EQ(read("LastOpenFolder"), existing_);
    EXPECT_EQ(read("LastSaveFolder"), existing_);
}

TEST_F(VerifyInfEntry, OnlyTheSectionHandedInIsChecked) {
    write("LastOpenFolder", gone_);
    store::writeInfValue("OTHER", "LastOpenFolder", gone_, g.edition.userInfFile);
    verifyRememberedFolder(FileDialogMode::Open, {g.edition.userInfFile, "OTHER"});
    EXPECT_EQ(store::readInfValue("OTHER", "LastOpenFolder", "<none>", g.edition.userInfFile), "");
    EXPECT_EQ(read("LastOpenFolder"), gone_);
}

TEST_F(VerifyInfEntry, AFileIsNoFolder) {
    write("LastSaveFolder", g.edition.userInfFile);
    verifyRememberedFolder(FileDialogMode::Save, userInf());
    EXPECT_EQ(read("LastSaveFolder"), "");
}

}  // namespace
}  // namespace lw::testing
