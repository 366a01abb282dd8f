#include "cases/batched_disk.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace lw::cases {

BatchedDisk::BatchedDisk() : machine_(store::disk()) { store::useDisk(this); }

BatchedDisk::~BatchedDisk() { store::useDisk(nullptr); }

bool BatchedDisk::syncFile(std::FILE* file, const std::filesystem::path&) { return std::fflush(file) == 0; }

void BatchedDisk::rename(const std::filesystem::path& from, const std::filesystem::path& to, std::error_code& ec) {
    machine_.rename(from, to, ec);
}

bool BatchedDisk::syncFolder(const std::filesystem::path&) { return true; }

bool BatchedDisk::canWriteInto(const std::filesystem::path& folder) { return machine_.canWriteInto(folder); }

bool BatchedDisk::syncAllUnder(const std::filesystem::path& folder) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return false;
    const bool synced = ::syncfs(fd) == 0;
    ::close(fd);
    return synced;
}

}  // namespace lw::cases
