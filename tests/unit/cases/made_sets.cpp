#include "made_sets.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

namespace lw::cases {

const std::string kShipped = LW_BIN_DIR;

std::filesystem::path freshFolder(const std::string& name) {
    // The process's own folder: two test runs on one machine must not make their sets in each other's.
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("lw-class-set-" + std::to_string(getpid()) + "-" + name);
    std::filesystem::remove_all(folder);
    return folder;
}

std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

std::map<std::string, std::string> filesUnder(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            files[std::filesystem::relative(entry.path(), folder).string()] = bytesOf(entry.path());
    return files;
}

int make(ClassSetOptions options, const std::string& userRoot) {
    ClassSet set(std::move(options), kShipped, userRoot);
    std::ostringstream log;
    const int failed = set.make(log);
    EXPECT_EQ(log.str(), "");
    return failed;
}

ClassSetOptions optionsFor(const std::filesystem::path& out, int count, std::uint64_t seed,
                           std::vector<std::string> profiles) {
    ClassSetOptions options;
    options.count = count;
    options.seed = seed;
    options.year = 2025;
    options.out = out.string();
    options.profiles = std::move(profiles);
    return options;
}

long long centsIn(const std::string& line, const std::string& key) {
    const std::string marker = "\xB7" + key + "=";
    const std::size_t at = line.find(marker);
    if (at == std::string::npos) return 0;
    std::string digits;
    for (std::size_t i = at + marker.size(); i < line.size() && line[i] != '\xB7' && line[i] != '\r'; ++i)
        if (line[i] >= '0' && line[i] <= '9') digits += line[i];
    return digits.empty() ? 0 : std::stoll(digits);
}

std::string fieldIn(const std::string& line, const std::string& key) {
    const std::string marker = "\xB7" + key + "=";
    const std::size_t at = line.find(marker);
    if (at == std::string::npos) return "";
    const std::size_t from = at + marker.size();
    return line.substr(from, line.find_first_of("\xB7\r\n", from) - from);
}

}  // namespace lw::cases
