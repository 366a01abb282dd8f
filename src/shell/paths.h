#pragma once
// The program's fixed places. What the program knows as the machine's disk is the root folder
// of the platform; every fixed location lies beneath it.

#include <string>

namespace lw {

struct Edition {
    std::string name;         // "Venturo" or "OthAgcy"
    std::string userInfFile;  // the user INF file of the edition
    std::string guideFile;
    std::string iconFile;
    std::string defaultFormsFolder;
    std::string fileExtension;
    std::string filterDescription;
    std::string filterPattern;
};

// Joins folder and name with one separator.
std::string joinPath(const std::string& folder, const std::string& name);

std::string infFilesFolder(const std::string& root);
Edition venturoEdition(const std::string& root, const std::string& appFolder,
                       const std::string& versionMajor);
Edition othAgcyEdition(const std::string& root, const std::string& appFolder,
                       const std::string& versionMajor);
std::string fileFilter(const std::string& description, const std::string& pattern);

// The sixteen license portraits: P1GS.jpg to P16GS.jpg in the pictures folder.
constexpr int kPortraits = 16;
std::string portraitFile(const std::string& picturesFolder, int number);

// The file of `folder` whose name is `name` blind to case, as the classic file system finds it; the plain
// join when none is there.
std::string fileNamedNoCase(const std::string& folder, const std::string& name);

bool folderExists(const std::string& path);
bool fileExists(const std::string& path);

// The folder of the shipped files (INF files, pictures, icons, guide): beside the executable, as in the
// build tree, else ../share/ledgerwick from it, as an install lays them out.
std::string shippedFilesFolder(const std::string& executableFolder);

// Places the shipped INF files into a folder that lacks them, as an installer would.
void installShippedInfFiles(const std::string& appFolder, const std::string& targetFolder);

}  // namespace lw
