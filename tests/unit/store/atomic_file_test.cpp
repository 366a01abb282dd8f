#include "store/atomic_file.h"

#include <gtest/gtest.h>

#include <string>

#include "scratch_folder.h"

namespace lw::store {
namespace {

using testing::readBytes;
using testing::ScratchFolder;
using testing::writeBytes;

TEST(AtomicFile, CreatesANewFile) {
    ScratchFolder folder;
    std::string error;
    ASSERT_TRUE(writeFileAtomically(folder.file("a.inf"), "x\r\ny", error)) << error;
    EXPECT_EQ(readBytes(folder.file("a.inf")), "x\r\ny");
    EXPECT_EQ(ScratchFolder::entriesOf(folder.path()), std::vector<std::string>{"a.inf"});
}

TEST(AtomicFile, ReplacesTheWholeFileAndKeepsItsPermissions) {
    ScratchFolder folder;
    std::string file = folder.file("a.inf");
    writeBytes(file, std::string(5000, 'o'));
    auto mode = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write |
                std::filesystem::perms::group_read;
    std::filesystem::permissions(file, mode);
    std::string error;
    ASSERT_TRUE(writeFileAtomically(file, std::string("n\0n", 3), error)) << error;
    EXPECT_EQ(readBytes(file), std::string("n\0n", 3));
    EXPECT_EQ(std::filesystem::status(file).permissions(), mode);
    EXPECT_EQ(ScratchFolder::entriesOf(folder.path()).size(), 1u);
}

TEST(AtomicFile, MissingFolderFailsAndTellsWhy) {
    ScratchFolder folder;
    std::string error;
    EXPECT_FALSE(writeFileAtomically(folder.file("no/such/a.inf"), "x", error));
    EXPECT_FALSE(error.empty());
    EXPECT_TRUE(ScratchFolder::entriesOf(folder.path()).empty());
}

TEST(AtomicFile, AFolderInTheWayIsNotReplaced) {
    ScratchFolder folder;
    std::filesystem::create_directory(folder.path() / "a.inf");
    std::string error;
    EXPECT_FALSE(writeFileAtomically(folder.file("a.inf"), "x", error));
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "a.inf"));
    EXPECT_EQ(ScratchFolder::entriesOf(folder.path()), std::vector<std::string>{"a.inf"});
}

}  // namespace
}  // namespace lw::store
