#pragma once
// The one place that asks the operator for a path, and remembers the folder used.

#include <string>

namespace lw {

// SaveMode 0 opens, any other saves; FileName is the name proposed in save mode. Returns the full path,
// or "·" (the byte 0xB7) when the operator cancels.
std::string OpenOrSaveFile(int SaveMode, const std::string& FileName);

}  // namespace lw
