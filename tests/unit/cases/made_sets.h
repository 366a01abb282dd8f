#pragma once
// What the tests of class sets share: sets made into fresh folders, and the saved lines read back.

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "cases/class_set.h"

namespace lw::cases {

// The folder of the shipped files the tests make their sets from.
extern const std::string kShipped;

// A folder of the temporary folder, emptied.
std::filesystem::path freshFolder(const std::string& name);
std::string bytesOf(const std::filesystem::path& file);
// Every file under a folder, by its path below it, with its bytes.
std::map<std::string, std::string> filesUnder(const std::filesystem::path& folder);
// Makes a set, expecting nothing told on its log; returns the number of cases that failed.
int make(ClassSetOptions options, const std::string& userRoot = "");
ClassSetOptions optionsFor(const std::filesystem::path& out, int count, std::uint64_t seed,
                           std::vector<std::string> profiles = {});
// The value of a field of a saved line, as an amount in cents; 0 when the line lacks it.
long long centsIn(const std::string& line, const std::string& key);
// The text of a field of a saved line; empty when the line lacks it.
std::string fieldIn(const std::string& line, const std::string& key);

}  // namespace lw::cases
