#include "shell/paths.h"

#include <filesystem>
#include <system_error>

#include "text/case.h"

namespace fs = std::filesystem;

namespace lw {

std::string joinPath(const std::string& folder, const std::string& name) {
    if (folder.empty()) return name;
    if (folder.back() == '/') return folder + name;
    return folder + "/" + name;
}

std::string infFilesFolder(const std::string& root) { return joinPath(root, "LedgerwickInfFiles"); }

Edition venturoEdition(const std::string& root, const std::string& appFolder,
                       const std::string& versionMajor) {
    return Edition{"Venturo",
                   joinPath(infFilesFolder(root), "Venturo/UserVenturo.inf"),
                   joinPath(appFolder, "Ledgerwick_V" + versionMajor + "_Venturo_UserGuide.pdf"),
                   joinPath(appFolder, "Venturo.ICO"),
                   joinPath(root, "VenturoForms"),
                   ".venturo",
                   "Venturo Form Files (*.venturo)",
                   "*.venturo"};
}

Edition othAgcyEdition(const std::string& root, const std::string& appFolder,
                       const std::string& versionMajor) {
    // The extension keeps its capital F while the dialog pattern stays lower case.
    return Edition{"OthAgcy",
                   joinPath(infFilesFolder(root), "OthAgcy/UserOthAgcy.inf"),
                   joinPath(appFolder, "Ledgerwick_V" + versionMajor + "_OthAgcy_UserGuide.pdf"),
                   joinPath(appFolder, "OthAgcy.ICO"),
                   joinPath(root, "TaxFormsLW"),
                   ".taxForm",
                   "Tax Form Files (*.taxform)",
                   "*.taxform"};
}

std::string fileFilter(const std::string& description, const std::string& pattern) {
    std::string filter = description;
    filter.push_back('\0');
    filter += pattern;
    filter.push_back('\0');
    return filter;
}

std::string portraitFile(const std::string& picturesFolder, int number) {
    return joinPath(picturesFolder, "P" + std::to_string(number) + "GS.jpg");
}

std::string fileNamedNoCase(const std::string& folder, const std::string& name) {
    std::error_code ec;
    for (std::filesystem::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string entry = it->path().filename().string();
        if (text::equalsNoCase(entry, name)) return joinPath(folder, entry);
    }
    return joinPath(folder, name);
}

bool folderExists(const std::string& path) {
    std::error_code ec;
    // An empty name stands for the current folder, which always exists.
    if (path.empty()) return true;
    return fs::is_directory(path, ec);
}

bool fileExists(const std::string& path) {
    std::error_code ec;
    return !path.empty() && fs::is_regular_file(path, ec);
}

void installShippedInfFiles(const std::string& appFolder, const std::string& targetFolder) {
    static const char* const shipped[] = {"Forms.inf", "SSMC.inf", "K1Help.inf"};
    for (const char* name : shipped) {
        std::string source = joinPath(appFolder, name);
        std::string target = joinPath(targetFolder, name);
        std::error_code ec;
        if (!fs::is_regular_file(source, ec) || fs::exists(target, ec)) continue;
        fs::create_directories(targetFolder, ec);
        if (ec) return;  // a folder we cannot make leaves the files missing; their reads give empty values
        std::string temporary = target + ".installing";
        fs::copy_file(source, temporary, fs::copy_options::overwrite_existing, ec);
        if (!ec) fs::rename(temporary, target, ec);
        if (ec) fs::remove(temporary, ec);
    }
}

std::string shippedFilesFolder(const std::string& executableFolder) {
    if (fileExists(joinPath(executableFolder, "Forms.inf"))) return executableFolder;
    const std::string installed = joinPath(executableFolder, "../share/ledgerwick");
    if (fileExists(joinPath(installed, "Forms.inf"))) {
        std::error_code ec;
        const auto canonical = std::filesystem::weakly_canonical(installed, ec);
        return ec ? installed : canonical.string();
    }
    return executableFolder;
}

}  // namespace lw
