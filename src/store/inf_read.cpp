#include <string_view>

#include "store/file_bytes.h"
#include "store/inf_lines.h"
#include "store/inf_store.h"

namespace lw::store {

namespace {

constexpr std::size_t kValueMax = kInfValueBuffer - 1;

std::string_view withoutQuotes(std::string_view value) {
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"') {
        return value.substr(1, value.size() - 2);
    }
    return value;
}

std::string defaultOf(const std::string& defaultValue) {
    std::string_view d = defaultValue;
    while (!d.empty() && isInfBlank(d.back())) d.remove_suffix(1);
    return std::string(d.substr(0, kValueMax));
}

// Calls `take` for each non-blank, non-comment line of the first section named `section`.
template <typename Take>
void forEachLineOfSection(std::string_view text, std::string_view section, Take take) {
    InfLineReader reader(text);
    InfLine line;
    bool inSection = false;
    while (reader.next(line)) {
        if (line.kind == InfLineKind::sectionName) {
            if (inSection) return;
            inSection = sameInfName(line.name, section);
            continue;
        }
        if (inSection && line.kind == InfLineKind::Entry && !take(line)) return;
    }
}

}  // namespace

std::string readInfValue(const std::string& section, const std::string& key, const std::string& defaultValue,
                         const std::string& file) {
    std::string text;
    if (!readFileBytes(file, text)) return defaultOf(defaultValue);
    std::string_view wantedKey = trimInfBlanks(key);
    bool found = false;
    std::string_view value;
    forEachLineOfSection(text, trimInfBlanks(section), [&](const InfLine& line) {
        if (!line.hasEquals || !sameInfName(line.name, wantedKey)) return true;
        found = true;
        value = withoutQuotes(line.value);
        return false;
    });
    if (!found) return defaultOf(defaultValue);
    return std::string(value.substr(0, kValueMax));
}

std::vector<std::string> readInfSection(const std::string& section, const std::string& file,
                                        std::size_t bufferSize) {
    std::vector<std::string> lines;
    std::string text;
    // The smallest list, one character and its two NULs, needs three characters.
    if (bufferSize < 3 || !readFileBytes(file, text)) return lines;
    const std::size_t whole = bufferSize - 1;  // lines and their NULs when the list fits
    const std::size_t room = bufferSize - 2;   // lines and their NULs when the list is cut
    std::size_t used = 0;
    std::size_t before = 0;  // characters taken by the lines ahead of the last one
    bool cut = false;
    forEachLineOfSection(text, trimInfBlanks(section), [&](const InfLine& line) {
        std::string entry(line.name);
        if (line.hasEquals) {
            entry += '=';
            entry.append(line.value);
        }
        before = used;
        used += entry.size() + 1;
        lines.push_back(std::move(entry));
        if (used > whole) {
            cut = true;
            return false;
        }
        return true;
    });
    if (!cut) return lines;
    // Keep `room` characters of "line NUL line NUL ...": the last line is cut, or dropped if none of it fits.
    std::size_t keep = room > before ? room - before : 0;
    if (keep == 0) {
        lines.pop_back();
    } else {
        lines.back().resize(keep);
    }
    return lines;
}

}  // namespace lw::store
