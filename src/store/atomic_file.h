#pragma once
// Writes a file whole or not at all, so that a failure never leaves half a file behind.

#include <filesystem>
#include <string>
#include <string_view>

namespace lw::store {

// Writes `bytes` to a new temporary file beside `file`, puts it on the device and closes it, renames it
// over `file`, and puts the folder on the device. On failure `file` is left as it was, the temporary is removed, `error` tells what went wrong
// and the result is false. The folder must exist. An existing file's permissions are carried over.
bool writeFileAtomically(const std::filesystem::path& file, std::string_view bytes, std::string& error);

}  // namespace lw::store
