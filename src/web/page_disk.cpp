#include "web/page_disk.h"

#include <unistd.h>

namespace lw::web {

// The memory keeps what is written as soon as it is flushed.
bool PageDisk::syncFile(std::FILE* file, const std::filesystem::path&) { return std::fflush(file) == 0; }

void PageDisk::rename(const std::filesystem::path& from, const std::filesystem::path& to,
                      std::error_code& ec) {
    if (to.filename().string().size() > kLongestName) {
        ec = std::make_error_code(std::errc::filename_too_long);
        return;
    }
    std::filesystem::rename(from, to, ec);
}

bool PageDisk::canWriteInto(const std::filesystem::path& folder) {
    return ::access(folder.empty() ? "." : folder.c_str(), W_OK) == 0;
}

}  // namespace lw::web
