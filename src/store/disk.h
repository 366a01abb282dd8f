#pragma once
// The few calls that reach the machine's disk below the C++ library: putting written bytes on the
// device, renaming, and asking whether a folder takes new files. They stand behind one interface, so
// that tests can watch the order in which a save makes its changes.

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace lw::store {

class Disk {
public:
    virtual ~Disk() = default;
    // Returns once the system has put every byte written to the open file on the device.
    virtual bool syncFile(std::FILE* file, const std::filesystem::path& path) = 0;
    virtual void rename(const std::filesystem::path& from, const std::filesystem::path& to,
                        std::error_code& ec) = 0;
    // Puts the folder's list of names on the device, so that a rename in it survives a power cut.
    virtual bool syncFolder(const std::filesystem::path& folder) = 0;
    virtual bool canWriteInto(const std::filesystem::path& folder) = 0;
};

// The disk in use: the machine's own unless a test has put another in its place.
Disk& disk();
// Puts another disk in place (tests, and the page, whose files live in the browser's memory); nullptr
// brings the machine's own back.
void useDisk(Disk* replacement);

}  // namespace lw::store
