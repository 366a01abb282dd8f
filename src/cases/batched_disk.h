#pragma once
// A class set writes hundreds of small files into folders that only become cases when they are renamed
// into place. Putting each file on the device as it is written (as the program does for a trainer's
// own document) would cost a journal commit per file; here the writes go to the device once, when the
// set is done.

#include <filesystem>

#include "store/disk.h"

namespace lw::cases {

class BatchedDisk : public store::Disk {
public:
    // Stands in for the disk in use until it is destroyed.
    BatchedDisk();
    ~BatchedDisk() override;
    BatchedDisk(const BatchedDisk&) = delete;
    BatchedDisk& operator=(const BatchedDisk&) = delete;

    bool syncFile(std::FILE* file, const std::filesystem::path& path) override;
    void rename(const std::filesystem::path& from, const std::filesystem::path& to, std::error_code& ec) override;
    bool syncFolder(const std::filesystem::path& folder) override;
    bool canWriteInto(const std::filesystem::path& folder) override;

    // Puts everything written under `folder`'s file system on the device.
    static bool syncAllUnder(const std::filesystem::path& folder);

private:
    store::Disk& machine_;
};

}  // namespace lw::cases
