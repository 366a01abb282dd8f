#pragma once
// The command line of ledgerwick-cases.

#include <optional>
#include <string>
#include <vector>

#include "cases/class_set.h"

namespace lw::cases {

extern const char* const kCasesUsage;

struct CaseArguments {
    ClassSetOptions options;
    bool window = false;  // --window, or no argument at all: the window instead of the command line
    bool listProfiles = false;
};

// Nothing, with `error` set to the message for the trainer, when the line cannot be used.
std::optional<CaseArguments> parseCaseArguments(const std::vector<std::string>& arguments, std::string& error);

}  // namespace lw::cases
