#pragma once
// Reads a whole file as bytes, with no conversion of line ends or code page.

#include <filesystem>
#include <string>

namespace lw::store {

// False when the file cannot be opened or read (missing, a folder, no permission); `bytes` is then empty.
bool readFileBytes(const std::filesystem::path& file, std::string& bytes);

}  // namespace lw::store
