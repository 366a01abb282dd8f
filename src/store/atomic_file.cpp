#include "store/atomic_file.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <system_error>

#include "store/disk.h"

namespace lw::store {

namespace {

// Unique enough for one process and its neighbours: a counter and the clock; "wbx" refuses a clash anyway.
std::filesystem::path temporaryBeside(const std::filesystem::path& file, int attempt) {
    static std::atomic<unsigned long> counter{0};
    auto tick = std::chrono::steady_clock::now().time_since_epoch().count();
    std::string name = "." + file.filename().string() + ".tmp" + std::to_string(counter++) + "-" +
                       std::to_string(static_cast<unsigned long long>(tick) % 1000000007ULL) + "-" +
                       std::to_string(attempt);
    return file.parent_path() / name;
}

std::FILE* createTemporary(const std::filesystem::path& file, std::filesystem::path& tmp,
                           std::string& error) {
    for (int attempt = 0; attempt < 16; ++attempt) {
        tmp = temporaryBeside(file, attempt);
        errno = 0;
        std::FILE* f = std::fopen(tmp.c_str(), "wbx");
        if (f != nullptr) return f;
        if (errno != EEXIST) {
            error = "cannot create " + tmp.string() + ": " + std::strerror(errno);
            return nullptr;
        }
    }
    error = "cannot find a free temporary name beside " + file.string();
    return nullptr;
}

}  // namespace

bool writeFileAtomically(const std::filesystem::path& file, std::string_view bytes, std::string& error) {
    error.clear();
    std::filesystem::path tmp;
    std::FILE* f = createTemporary(file, tmp, error);
    if (f == nullptr) return false;

    errno = 0;
    bool ok = std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
    // The new bytes reach the device before the name moves to them: a power cut in between leaves the old
    // file whole, never an empty or partial one under its name.
    ok = ok && disk().syncFile(f, tmp);
    int writeErrno = errno;
    ok = std::fclose(f) == 0 && ok;
    if (!ok) {
        error = "cannot write " + tmp.string() + ": " + std::strerror(writeErrno != 0 ? writeErrno : errno);
    }

    std::error_code ec;
    if (ok) {
        auto old = std::filesystem::status(file, ec);
        if (!ec && std::filesystem::is_regular_file(old)) {
            std::filesystem::permissions(tmp, old.permissions(), ec);
        }
        ec.clear();
        disk().rename(tmp, file, ec);
        if (ec) {
            ok = false;
            error = "cannot replace " + file.string() + ": " + ec.message();
        }
    }
    // The rename itself is kept by the folder. Some file systems cannot sync a folder; the file is whole
    // either way, so that refusal is no failure of the save.
    if (ok) disk().syncFolder(file.has_parent_path() ? file.parent_path() : std::filesystem::path("."));
    if (!ok) std::filesystem::remove(tmp, ec);
    return ok;
}

}  // namespace lw::store
