#include <gtest/gtest.h>

#include <csignal>
#include <string>

#include "permissions_enforced.h"
#include "scratch_folder.h"
#include "store/inf_store.h"

#if defined(__unix__) || defined(__APPLE__)
#include <sys/resource.h>
#define LW_HAS_FILE_SIZE_LIMIT 1
#endif

namespace lw::store {
namespace {

using testing::PermissionsEnforced;
using testing::readBytes;
using testing::ScratchFolder;
using testing::writeBytes;

const std::string kOld = "[ALICE]\r\nPrinter=Laser\r\n; hand note\r\nLastTaxYear=2024\r\n";

// Runs writeInfValue and hands back the error it must raise.
InfWriteError failedSave(const std::string& section, const std::string& key, const std::string& value,
                         const std::string& file) {
    try {
        writeInfValue(section, key, value, file);
    } catch (const InfWriteError& e) {
        return e;
    }
    ADD_FAILURE() << "SaveINF did not fail for " << file;
    return InfWriteError(0, "");
}

TEST(SaveInfFailure, FolderThroughARegularFileIsPathNotFound) {
    ScratchFolder folder;
    writeBytes(folder.file("plain"), "not a folder");
    std::string file = folder.file("plain/Venturo/UserVenturo.inf");
    InfWriteError e = failedSave("ALICE", "Printer", "Laser", file);
    EXPECT_EQ(e.number(), 76);
    EXPECT_EQ(e.description().rfind("Path not found: " + folder.file("plain/Venturo"), 0), 0u)
        << e.description();
    EXPECT_STREQ(e.what(), e.description().c_str());
    EXPECT_EQ(readBytes(folder.file("plain")), "not a folder");
}

TEST(SaveInfFailure, AFolderWhereTheFileShouldBeIsError900) {
    ScratchFolder folder;
    std::filesystem::create_directory(folder.path() / "User.inf");
    std::string file = folder.file("User.inf");
    InfWriteError e = failedSave("ALICE", "Printer", "Laser", file);
    EXPECT_EQ(e.number(), 900);
    EXPECT_EQ(e.description(), "Error Writing ALICE/Printer/Laser\r\nto " + file);
    EXPECT_TRUE(std::filesystem::is_directory(file));
    EXPECT_EQ(ScratchFolder::entriesOf(folder.path()), std::vector<std::string>{"User.inf"});
}

TEST(SaveInfFailure, DescriptionCarriesTheValueAsGiven) {
    ScratchFolder folder;
    std::filesystem::create_directory(folder.path() / "User.inf");
    InfWriteError e = failedSave("S", "K", "a\r\nb", folder.file("User.inf"));
    EXPECT_EQ(e.description(), "Error Writing S/K/a\r\nb\r\nto " + folder.file("User.inf"));
}

// A name the file system just takes leaves no room for a longer temporary name beside it, so the
// write fails before anything is replaced, whoever runs the test.
TEST(SaveInfFailure, FailedWriteLeavesTheOldFileByteForByte) {
    ScratchFolder folder;
    std::string file = folder.file(std::string(250, 'u') + ".inf");
    writeBytes(file, kOld);
    ASSERT_EQ(readBytes(file), kOld) << "the file system does not take 254-character names";
    InfWriteError e = failedSave("ALICE", "Printer", "Ink", file);
    EXPECT_EQ(e.number(), 900);
    EXPECT_EQ(readBytes(file), kOld);
    EXPECT_EQ(ScratchFolder::entriesOf(folder.path()).size(), 1u);
}

#ifdef LW_HAS_FILE_SIZE_LIMIT
// A file size limit lets the temporary be created and then refuses its content: the half-written
// temporary must go, and the old file must stay as it was.
TEST(SaveInfFailure, HalfWrittenTemporaryIsRemoved) {
    ScratchFolder folder;
    std::string file = folder.file("User.inf");
    writeBytes(file, kOld);

    rlimit saved{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &saved), 0);
    auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = saved;
    small.rlim_cur = 4096;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    bool threw = false;
    int number = 0;
    try {
        writeInfValue("ALICE", "TP1NameAddr", std::string(100000, 'a'), file);
    } catch (const InfWriteError& e) {
        threw = true;
        number = e.number();
    }
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, oldHandler);

    EXPECT_TRUE(threw);
    EXPECT_EQ(number, 900);
    EXPECT_EQ(readBytes(file), kOld);
    EXPECT_EQ(ScratchFolder::entriesOf(folder.path()), std::vector<std::string>{"User.inf"});
}
#endif

// The folder takes no new file, so the save cannot even begin its temporary copy. The superuser's power
// to write anywhere is put aside for the test, so the folder refuses whoever runs it.
TEST(SaveInfFailure, ReadOnlyFolderKeepsTheOldFile) {
    ScratchFolder folder;
    std::filesystem::path sub = folder.path() / "ro";
    std::filesystem::create_directory(sub);
    std::string file = (sub / "User.inf").string();
    writeBytes(file, kOld);
    std::filesystem::permissions(sub,
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    PermissionsEnforced enforced;
    ASSERT_TRUE(enforced.active());
    writeBytes((sub / "probe").string(), "x");
    ASSERT_FALSE(std::filesystem::exists(sub / "probe")) << "the read-only folder took a new file";

    InfWriteError e = failedSave("ALICE", "Printer", "Ink", file);
    EXPECT_EQ(e.number(), 900);
    EXPECT_EQ(e.description(), "Error Writing ALICE/Printer/Ink\r\nto " + file);
    EXPECT_EQ(readBytes(file), kOld);
    EXPECT_EQ(ScratchFolder::entriesOf(sub), std::vector<std::string>{"User.inf"});
}

}  // namespace
}  // namespace lw::store
