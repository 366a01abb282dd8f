// The open and save dialogs: their titles, the edition's one filter, where they start, and the two
// folders they remember apart.
#include "documents/file_dialogs.h"

#include "diagnostics/error_tail.h"
#include "model/edition_settings.h"
#include "model/ports.h"
#include "model/program_parts.h"
#include "model/user_choices.h"
#include "shell/paths.h"
#include "store/inf_store.h"

namespace lw {

namespace {

constexpr const char* kLabel = "M8_CommonDialogReplacement:chooseFileToOpenOrSave";
constexpr const char* kOpenTitle = "Select File, Press OPEN button -OR - Press Delete Key to DELETE the File";
constexpr const char* kSaveTitle =
    "Save Form File - MAKE SURE YOU SELECT THE PROPER FOLDER TO SAVE THE FILE IN";
// The name buffer holds 257 characters, the last of which ends the string.
constexpr std::size_t kOfferedName = 256;

std::string beforeNul(const std::string& text) { return text.substr(0, text.find('\0')); }

// The filter is kept as description, NUL, pattern, NUL.
void putFilter(const std::string& filter, FileDialogRequest& request) {
    const std::size_t end = filter.find('\0');
    request.filterDescription = filter.substr(0, end);
    if (end == std::string::npos) return;
    request.filterPattern = beforeNul(filter.substr(end + 1));
}

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

// The key of the user INF file that remembers the last folder of the dialog.
const char* rememberedFolderKey(FileDialogMode mode) {
    return mode == FileDialogMode::Save ? "LastSaveFolder" : "LastOpenFolder";
}

}  // namespace

std::optional<std::string> chooseFileToOpenOrSave(const ProgramParts& parts, FileDialogMode mode,
                                                  const std::string& fileName) {
    return runGuardedOr<std::optional<std::string>>(
        kLabel, std::string(), [&]() -> std::optional<std::string> {
            const EditionSettings& edition = parts.edition;
            const UserInfSection userInf = userInfSectionOf(edition, parts.process);
            const bool save = mode == FileDialogMode::Save;
            const std::string key = rememberedFolderKey(mode);
            std::string startFolder = userInf.read(key);
            if (startFolder.empty())
                startFolder = store::readInfValue("TaxForms", "Folder", "", userInf.file);

            FileDialogRequest request;
            request.save = save;
            request.title = save ? kSaveTitle : kOpenTitle;
            request.startFolder = startFolder;
            if (save) request.proposedName = beforeNul(fileName).substr(0, kOfferedName);
            putFilter(edition.fileFilter, request);

            std::optional<std::string> answer = parts.ui.fileDialog(request);
            if (!answer) return std::nullopt;
            const std::string path = beforeNul(*answer);
            const std::string folder = folderOf(path);
            if (folder != startFolder) {
                userInf.write(key, folder);
                (save ? parts.choices.lastSaveFolder : parts.choices.lastOpenFolder) = folder;
            }
            return path;
        });
}

void verifyRememberedFolder(FileDialogMode mode, const UserInfSection& userInf) {
    runGuarded("M3_Ledgerwick:Verify_INF_Entry", [&] {
        const std::string key = rememberedFolderKey(mode);
        const std::string folder = userInf.read(key);
        // A folder that has gone would send the dialog astray.
        if (!folderExists(folder)) userInf.write(key, "");
    });
}

}  // namespace lw
