#include <filesystem>
#include <system_error>

#include "store/atomic_file.h"
#include "store/file_bytes.h"
#include "store/inf_edit.h"
#include "store/inf_lines.h"
#include "store/inf_store.h"

namespace lw::store {

namespace {

[[noreturn]] void failWrite(const std::string& section, const std::string& key, const std::string& value,
                            const std::string& file) {
    throw InfWriteError(kInfWriteErrorNumber,
                        "Error Writing " + section + "/" + key + "/" + value + "\r\n" + "to " + file);
}

// The first write of a run builds the whole path, so no installer step is needed for the user file.
void createFolders(const std::filesystem::path& folder) {
    if (folder.empty()) return;
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    if (ec) {
        throw InfWriteError(lw::err::kPathNotFound,
                            "Path not found: " + folder.string() + " (" + ec.message() + ")");
    }
}

}  // namespace

void writeInfValue(const std::string& section, const std::string& key, const std::string& value,
                   const std::string& file) {
    const std::filesystem::path path(file);
    createFolders(path.parent_path());

    std::string text;
    std::error_code ec;
    bool exists = std::filesystem::exists(path, ec);
    // A file that is there but cannot be read must not be replaced by one that lacks its other settings.
    if (ec || (exists && !readFileBytes(path, text))) failWrite(section, key, value, file);

    const std::string oneSection = infOneLine(section);
    const std::string oneKey = infOneLine(key);
    std::string updated =
        infWithValue(text, trimInfBlanks(oneSection), trimInfBlanks(oneKey), infOneLine(value));
    std::string error;
    if (!writeFileAtomically(path, updated, error)) failWrite(section, key, value, file);
}

}  // namespace lw::store
