#pragma once
// The program's title and version, kept in one place: the report form, the frame and the paths read them.

#include <string>

namespace lw {

constexpr const char* kAppTitle = "Ledgerwick";
constexpr int kVersionMajor = 25;
constexpr int kVersionMinor = 1;
constexpr int kVersionRevision = 5;
// The executable's version record: file and product version.
constexpr const char* kFileVersionText = "25.01.0005";

// "25": the major version, which names the guide and the development folders.
inline std::string versionMajorText() { return std::to_string(kVersionMajor); }

// "25.1.5": major, minor and revision without leading zeros.
inline std::string versionFullText() {
    return std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
           std::to_string(kVersionRevision);
}

// "Ledgerwick v.25.1.5": the program as the error report names it.
inline std::string programVersionText() { return std::string(kAppTitle) + " v." + versionFullText(); }

}  // namespace lw
