#include "store/scratch_folder.h"

#include <cstdlib>
#include <filesystem>

namespace lw::store {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder(const std::string& prefix) {
    std::error_code ec;
    const fs::path temporary = fs::temp_directory_path(ec);
    if (ec) return;
    std::string pattern = (temporary / (prefix + "-XXXXXX")).string();
    if (mkdtemp(pattern.data())) path_ = pattern;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ec;
    if (!path_.empty()) fs::remove_all(path_, ec);
}

}  // namespace lw::store
