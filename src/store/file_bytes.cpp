#include "store/file_bytes.h"

#include <cstdio>
#include <system_error>

namespace lw::store {

bool readFileBytes(const std::filesystem::path& file, std::string& bytes) {
    bytes.clear();
    std::error_code ec;
    // Opening a folder for reading succeeds on some systems and then fails on read; refuse it first.
    if (!std::filesystem::is_regular_file(file, ec)) return false;
    std::FILE* f = std::fopen(file.c_str(), "rb");
    if (f == nullptr) return false;
    auto size = std::filesystem::file_size(file, ec);
    if (!ec) bytes.reserve(static_cast<std::size_t>(size));
    char chunk[65536];
    bool ok = true;
    for (;;) {
        std::size_t got = std::fread(chunk, 1, sizeof chunk, f);
        bytes.append(chunk, got);
        if (got < sizeof chunk) {
            ok = std::ferror(f) == 0;
            break;
        }
    }
    std::fclose(f);
    if (!ok) bytes.clear();
    return ok;
}

}  // namespace lw::store
