#include "store/disk.h"

#include <fcntl.h>
#include <unistd.h>

namespace lw::store {

namespace {

class MachineDisk : public Disk {
public:
    bool syncFile(std::FILE* file, const std::filesystem::path&) override {
        return std::fflush(file) == 0 && ::fsync(::fileno(file)) == 0;
    }
    void rename(const std::filesystem::path& from, const std::filesystem::path& to,
                std::error_code& ec) override {
        std::filesystem::rename(from, to, ec);
    }
    bool syncFolder(const std::filesystem::path& folder) override {
        const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (fd < 0) return false;
        const bool synced = ::fsync(fd) == 0;
        ::close(fd);
        return synced;
    }
    bool canWriteInto(const std::filesystem::path& folder) override {
        return ::access(folder.empty() ? "." : folder.c_str(), W_OK) == 0;
    }
};

Disk* replacementDisk = nullptr;

}  // namespace

Disk& disk() {
    static MachineDisk machine;
    return replacementDisk ? *replacementDisk : machine;
}

void useDisk(Disk* replacement) { replacementDisk = replacement; }

}  // namespace lw::store
