#pragma once
// A fresh folder for one test, removed with everything in it when the test ends.

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace lw::store::testing {

class ScratchFolder {
public:
    ScratchFolder() {
        static std::atomic<int> counter{0};
        auto tick = std::chrono::steady_clock::now().time_since_epoch().count();
        path_ = std::filesystem::temp_directory_path() /
                ("lw_store_" + std::to_string(tick) + "_" + std::to_string(counter++));
        std::filesystem::create_directories(path_);
    }
    ~ScratchFolder() {
        std::error_code ec;
        // A test may have taken the write permission away; give it back so that the folder can go.
        restoreOwnerRights(path_, ec);
        for (std::filesystem::recursive_directory_iterator it(path_, ec), end; !ec && it != end;
             it.increment(ec)) {
            std::error_code ignored;
            if (it->is_directory(ignored)) restoreOwnerRights(it->path(), ignored);
        }
        std::filesystem::remove_all(path_, ec);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::string file(const std::string& name) const { return (path_ / name).string(); }

    // Names of everything directly in `folder`, hidden files included.
    static std::vector<std::string> entriesOf(const std::filesystem::path& folder) {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

private:
    static void restoreOwnerRights(const std::filesystem::path& p, std::error_code& ec) {
        std::filesystem::permissions(p, std::filesystem::perms::owner_all, std::filesystem::perm_options::add,
                                     ec);
    }
    std::filesystem::path path_;
};

inline void writeBytes(const std::string& file, const std::string& bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string readBytes(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

}  // namespace lw::store::testing
