#include <atomic>
#include <chrono>
#include <filesystem>
#include <string>

#include "fields_fixture.h"
#include "store/inf_store.h"

namespace lw::test {
namespace {

namespace fs = std::filesystem;

class VerifyInfEntry : public FieldsTest {
protected:
    void SetUp() override {
        FieldsTest::SetUp();
        static std::atomic<int> counter{0};
        const auto tick = std::chrono::steady_clock::now().time_since_epoch().count();
        scratch_ = fs::temp_directory_path() /
                   ("lw_fields_" + std::to_string(tick) + "_" + std::to_string(counter++));
        fs::create_directories(scratch_ / "forms");
        g().UserNameUC = "TRAINER";
        g().UserInfFile = (scratch_ / "UserVenturo.inf").string();
        existing_ = (scratch_ / "forms").string();
        gone_ = (scratch_ / "gone").string();
    }
    void TearDown() override {
        std::error_code ec;
        fs::remove_all(scratch_, ec);
        FieldsTest::TearDown();
    }

    void write(const std::string& key, const std::string& value) {
        store::SaveINF("TRAINER", key, value, g().UserInfFile);
    }
    std::string read(const std::string& key) {
        return store::ReadINF("TRAINER", key, "<none>", g().UserInfFile);
    }

    fs::path scratch_;
    std::string existing_;
    std::string gone_;
};

TEST_F(VerifyInfEntry, AnOpenFolderThatHasGoneIsForgotten) {
    write("LastOpenFolder", gone_);
    write("LastSaveFolder", gone_);
    Verify_INF_Entry("Open");
    EXPECT_EQ(read("LastOpenFolder"), "");
    EXPECT_EQ(read("LastSaveFolder"), gone_);
    EXPECT_TRUE(ui.modalForms.empty());
}

TEST_F(VerifyInfEntry, TheKindOfTheDialogIsBlindToCase) {
    write("LastOpenFolder", gone_);
    write("LastSaveFolder", gone_);
    Verify_INF_Entry("SAVE");
    EXPECT_EQ(read("LastSaveFolder"), "");
    EXPECT_EQ(read("LastOpenFolder"), gone_);
    Verify_INF_Entry("oPEN");
    EXPECT_EQ(read("LastOpenFolder"), "");
}

TEST_F(VerifyInfEntry, AnExistingFolderIsKept) {
    write("LastOpenFolder", existing_);
    write("LastSaveFolder", existing_);
    Verify_INF_Entry("open");
    Verify_INF_Entry("Save");
    EXPECT_EQ(read("LastOpenFolder"), existing_);
    EXPECT_EQ(read("LastSaveFolder"), existing_);
}

TEST_F(VerifyInfEntry, AFileIsNoFolder) {
    write("LastSaveFolder", g().UserInfFile);
    Verify_INF_Entry("save");
    EXPECT_EQ(read("LastSaveFolder"), "");
}

TEST_F(VerifyInfEntry, AnyOtherKindIsAProgramErrorThatTouchesNothing) {
    write("LastOpenFolder", gone_);
    write("LastSaveFolder", gone_);
    Verify_INF_Entry("Print");
    EXPECT_EQ(read("LastOpenFolder"), gone_);
    EXPECT_EQ(read("LastSaveFolder"), gone_);
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->module, "M3_Ledgerwick:Verify_INF_Entry");
    EXPECT_EQ(lastErrorReport()->number, "900");
    EXPECT_EQ(lastErrorReport()->description, "Program Error");
}

}  // namespace
}  // namespace lw::test
