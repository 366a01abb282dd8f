#pragma once
// The files a fuzzed session meets: the user INF store, K1Help.inf and the data files it opens. Each is
// good, damaged or made up from the input; every folder a store names lies inside the session's root, so
// that nothing the program creates from it lands elsewhere.

#include <optional>
#include <string>
#include <vector>

#include "session_input.h"

namespace lw::fuzz {

// What the shipped files hold that the makers below build on.
struct ShippedData {
    std::vector<std::string> recordPrefixes;  // RecordPrefix values of Forms.inf
    std::vector<std::string> k1Sections;      // section names of K1Help.inf
    std::string k1Help;                       // the whole shipped K1Help.inf
};
const ShippedData& shippedData();

// A user INF file for the user whose section is `section`; nothing at all when the session starts
// on a machine that has none.
std::optional<std::string> userStore(SessionInput& in, const std::string& section, const std::string& root);

// The K1Help.inf of the session; nothing when the shipped one stands.
std::optional<std::string> k1HelpFile(SessionInput& in);

// The bytes of a data file that a tester picks in the open dialog: a record of any form, damaged or
// not, an older release's record, or something that is no record at all.
std::string dataFile(SessionInput& in);

// Writes bytes to a file, making its folder; false when that fails.
bool writeFile(const std::string& path, const std::string& bytes);

}  // namespace lw::fuzz
