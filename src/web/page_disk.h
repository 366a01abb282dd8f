#pragma once
// The page's disk: its files live in the browser's memory, whose file system takes a file name of any
// length. A machine's disk keeps none longer than 255 bytes; the page refuses them as such a disk does,
// so that the program tells of a file it could not save, as on the desktop, instead of handing the
// browser a file by a name no disk keeps.

#include "store/disk.h"

namespace lw::web {

class PageDisk : public store::Disk {
public:
    // The longest file name a machine's disk keeps, in bytes.
    static constexpr std::size_t kLongestName = 255;

    bool syncFile(std::FILE* file, const std::filesystem::path& path) override;
    void rename(const std::filesystem::path& from, const std::filesystem::path& to,
                std::error_code& ec) override;
    bool syncFolder(const std::filesystem::path&) override { return true; }
    bool canWriteInto(const std::filesystem::path& folder) override;
};

}  // namespace lw::web
