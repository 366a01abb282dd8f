#pragma once
// A private folder of the system's temporary folder, removed with all it holds when the object goes:
// where the tools run the program on a disk of its own, leaving the trainer's settings as they were.

#include <string>

namespace lw::store {

class ScratchFolder {
public:
    // `prefix` begins the folder's name. A temporary folder that cannot be found or written leaves the
    // path empty; nothing throws.
    explicit ScratchFolder(const std::string& prefix);
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string path_;
};

}  // namespace lw::store
