#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scratch_folder.h"
#include "store/atomic_file.h"
#include "store/disk.h"

namespace lw::store {
namespace {

using testing::readBytes;
using testing::ScratchFolder;
using testing::writeBytes;

// A disk that does the real work and writes down each step, with what the disk held at that moment.
class RecordingDisk : public Disk {
public:
    explicit RecordingDisk(const std::string& target) : target_(std::move(target)) { useDisk(this); }
    ~RecordingDisk() override { useDisk(nullptr); }

    bool syncFile(std::FILE* file, const std::filesystem::path& path) override {
        std::fflush(file);
        steps.push_back("sync file: temporary holds \"" + readBytes(path.string()) + "\", target holds \"" +
                        target() + "\"");
        return !failSync;
    }
    void rename(const std::filesystem::path& from, const std::filesystem::path& to,
                std::error_code& ec) override {
        steps.push_back(std::string("rename temporary over ") + to.filename().string());
        std::filesystem::rename(from, to, ec);
    }
    bool syncFolder(const std::filesystem::path& folder) override {
        steps.push_back("sync folder " + folder.filename().string() + ": target holds \"" + target() + "\"");
        return !failFolder;
    }
    bool canWriteInto(const std::filesystem::path&) override { return true; }

    std::vector<std::string> steps;
    bool failSync = false;
    bool failFolder = false;

private:
    std::string target() const {
        std::error_code ec;
        return std::filesystem::exists(target_, ec) ? readBytes(target_) : "<none>";
    }
    std::string target_;
};

TEST(DurableWrite, TheBytesReachTheDeviceBeforeTheRenameAndTheFolderAfterIt) {
    ScratchFolder folder;
    const auto file = folder.file("case.venturo");
    writeBytes(file, "OLD");
    RecordingDisk disk(file);
    std::string error;
    ASSERT_TRUE(writeFileAtomically(file, "NEW", error)) << error;
    const std::string folderName = folder.path().filename().string();
    EXPECT_EQ(disk.steps, (std::vector<std::string>{
                              "sync file: temporary holds \"NEW\", target holds \"OLD\"",
                              "rename temporary over case.venturo",
                              "sync folder " + folderName + ": target holds \"NEW\"",
                          }));
    EXPECT_EQ(readBytes(file), "NEW");
}

TEST(DurableWrite, AFileTheDeviceRefusesIsNotPutInPlace) {
    ScratchFolder folder;
    const auto file = folder.file("case.venturo");
    writeBytes(file, "OLD");
    RecordingDisk disk(file);
    disk.failSync = true;
    std::string error;
    EXPECT_FALSE(writeFileAtomically(file, "NEW", error));
    EXPECT_FALSE(error.empty());
    EXPECT_EQ(disk.steps.size(), 1u) << "no rename after a refused sync";
    EXPECT_EQ(readBytes(file), "OLD");
    EXPECT_EQ(ScratchFolder::entriesOf(folder.path()), std::vector<std::string>{"case.venturo"})
        << "the temporary file is gone";
}

TEST(DurableWrite, AFolderThatCannotBeSyncedStillKeepsTheWholeNewFile) {
    ScratchFolder folder;
    const auto file = folder.file("case.venturo");
    RecordingDisk disk(file);
    disk.failFolder = true;
    std::string error;
    EXPECT_TRUE(writeFileAtomically(file, "NEW", error)) << error;
    EXPECT_EQ(readBytes(file), "NEW");
}

}  // namespace
}  // namespace lw::store
