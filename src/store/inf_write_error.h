#pragma once
// The failure of a write to an INF file, in the program's numbered error shape.

#include <string>

#include "model/app_error.h"

namespace lw::store {

constexpr int kInfWriteErrorNumber = 900;

// Number 900 when the file could not be written, 76 (path not found) when a folder could not be made.
class InfWriteError : public lw::AppError {
public:
    InfWriteError(int number, std::string description) : lw::AppError(number, std::move(description)) {}
};

}  // namespace lw::store
