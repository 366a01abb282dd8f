// Start-up of the frame: the single-instance test, the edition, every path and folder, the remembered
// folders.
#include "shell/startup.h"

#include <cmath>
#include <cstdint>
#include <filesystem>

#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "diagnostics/version.h"
#include "model/program.h"
#include "shell/frame_form.h"
#include "shell/paths.h"
#include "store/inf_store.h"
#include "store/user_inf.h"
#include "text/case.h"

namespace lw {

namespace {

constexpr int kEnvironmentBuffer = 30;
constexpr const char* kDevelopmentTreeMarker = "O:\\OneDrive\\All_Projects";

Globals& g() { return program().g; }
PlatformPort& platform() { return program().platform; }

void pause(int ms) { platform().sleep(ms); }

// The classic environment call with a fixed buffer: a value that does not fit leaves the buffer as it was.
std::string environmentInBuffer(const std::string& name) {
    const std::string untouched(kEnvironmentBuffer, ' ');
    std::optional<std::string> value = platform().environment(name);
    if (!value) return "";
    std::size_t returned =
        value->size() < static_cast<std::size_t>(kEnvironmentBuffer) ? value->size() : value->size() + 1;
    std::string buffer = value->size() < static_cast<std::size_t>(kEnvironmentBuffer) ? *value : untouched;
    auto kept = static_cast<std::size_t>(static_cast<std::int16_t>(returned));
    return buffer.substr(0, std::min(kept, buffer.size()));
}

std::string removeWordNoCase(std::string text, const std::string& word) {
    for (std::size_t at = text::findNoCase(text, word); at != std::string::npos;
         at = text::findNoCase(text, word))
        text.erase(at, word.size());
    return text;
}

}  // namespace

void saveRememberedFolders(const std::string& infFile, const std::string& defaultFolder) {
    for (const char* key : {"TaxFormsFolder", "LastOpenFolder", "LastSaveFolder"}) {
        const UserInfSection userInf{infFile, g().process.userNameUpper};
        if (userInf.read(key).empty()) userInf.write(key, defaultFolder);
    }
}

void setUpTaxFormsFolder(FrameForm& frame) {
    const std::string root = platform().rootFolder();
    std::string byDefault = text::endsWithNoCase(g().edition.userInfFile, "UserVenturo.inf")
                                ? joinPath(root, "VenturoForms")
                                : joinPath(root, "TaxFormsLW");
    frame.taxFormsFolder = readUserInf(program().parts, "TaxFormsFolder");
    if (frame.taxFormsFolder.empty()) {
        frame.taxFormsFolder = byDefault;
        writeUserInf(program().parts, "TaxFormsFolder", byDefault);
    }
}

void setUpInfFilePaths() {
    const std::string infFolder = infFilesFolder(platform().rootFolder());
    g().edition.formsInfFile = joinPath(infFolder, "Forms.inf");
    g().edition.ssmcInfFile = joinPath(infFolder, "SSMC.inf");
    g().edition.k1HelpInfFile = joinPath(infFolder, "K1Help.inf");
    g().edition.picturesFolder = platform().executableFolder();
}

namespace {

// The two editions set themselves up line for line alike, each from its own table of places.
void setUpEdition(FrameForm& frame, const Edition& edition) {
    g().edition.userInfFile = edition.userInfFile;
    g().edition.userGuideFile = edition.guideFile;
    frame.iconFile = edition.iconFile;
    if (text::containsNoCase(platform().executableFolder(), kDevelopmentTreeMarker))
        frame.iconFile = frame.devSharedFolder + "/ICONS/" + edition.name + ".ICO";
    saveRememberedFolders(g().edition.userInfFile, edition.defaultFormsFolder);
    g().edition.fileExtension = edition.fileExtension;
    g().edition.fileFilter = fileFilter(edition.filterDescription, edition.filterPattern);
    setUpTaxFormsFolder(frame);
}

// Taken under any executable name but the two editions': the program runs against the development tree.
void setUpTestPath(FrameForm& frame) {
    const std::string root = platform().rootFolder();
    frame.devFormsFolder = frame.devAppFolder + "/Forms";
    frame.devInfFolder = frame.devAppFolder + "/InfFiles";
    g().edition.picturesFolder = frame.devSharedFolder + "/Pictures";
    g().edition.formsInfFile = frame.devInfFolder + "/Forms.inf";
    g().edition.ssmcInfFile = frame.devInfFolder + "/SSMC.inf";
    g().edition.k1HelpInfFile = frame.devInfFolder + "/K1Help.inf";
    installShippedInfFiles(platform().executableFolder(), frame.devInfFolder);

    const MessageBoxRequest ask{"Ledgerwick - Testing",
                                "Choose System to Test",
                                kNoMessageNumber,
                                {"Venturo", "Other"},
                                MessageBoxButton::None};
    bool venturo = showMessageBox(program().desktop, ask).button == MessageBoxButton::First;
    Edition edition = venturo ? venturoEdition(root, platform().executableFolder(), frame.versionMajor)
                              : othAgcyEdition(root, platform().executableFolder(), frame.versionMajor);
    frame.caption = venturo ? "Ledgerwick - Test - Venturo" : "Ledgerwick - Test - Other Agency";
    frame.iconFile = frame.devSharedFolder + "/ICONS/" + edition.name + ".ICO";
    g().edition.userInfFile = edition.userInfFile;
    g().edition.fileExtension = edition.fileExtension;
    g().edition.fileFilter = fileFilter(venturo ? "Tax Form Files (*.venturo)" : "Tax Form Files (*.taxform)",
                                        edition.filterPattern);
    g().edition.userGuideFile = frame.devAppFolder + "/Docs/PDFFiles/Ledgerwick_V" + frame.versionMajor +
                                "_" + edition.name + "_UserGuide.pdf";
    // The editions would also fix the forms folder here; the test path leaves it empty.
    saveRememberedFolders(g().edition.userInfFile, edition.defaultFormsFolder);
}

}  // namespace

void setUpFrame(FrameForm& frame) {
    runGuarded("F0_MDI:MDI_Setup", [&] {
        pause(500);
        frame.versionMajor = versionMajorText();
        frame.versionFull = versionFullText();
        g().process.commandWords = platform().commandLine();
        g().process.computerNameUpper = text::toUpper(environmentInBuffer("ComputerName"));
        g().process.userNameUpper = text::toUpper(environmentInBuffer("UserName"));
        if (text::containsNoCase(g().process.commandWords, "debug")) {
            g().process.debug = true;
            g().process.commandWords = text::trim(removeWordNoCase(g().process.commandWords, "debug"));
        }
        const std::string root = platform().rootFolder();
        frame.devAppFolder = joinPath(root, "Apps/Ledgerwick_" + frame.versionMajor);
        frame.devSharedFolder = joinPath(root, "Apps/Ledgerwick_Shared");

        const std::string exe = platform().executableName();
        if (text::equalsNoCase(exe, "Ledgerwick_Venturo")) {
            setUpInfFilePaths();
            setUpEdition(frame, venturoEdition(root, platform().executableFolder(), frame.versionMajor));
        } else if (text::equalsNoCase(exe, "Ledgerwick_OthAgcy")) {
            setUpInfFilePaths();
            setUpEdition(frame, othAgcyEdition(root, platform().executableFolder(), frame.versionMajor));
        } else {
            setUpTestPath(frame);
        }
        frame.icon = frame.iconFile;
        if (!frame.taxFormsFolder.empty() && !folderExists(frame.taxFormsFolder)) {
            std::error_code ec;
            std::filesystem::create_directories(frame.taxFormsFolder, ec);
            if (ec)
                throw AppError(err::kPathNotFound,
                               "Path not found: " + frame.taxFormsFolder + " (" + ec.message() + ")");
        }
        if (MenuItem* guide = frame.findMenu("mnuControlGuide"))
            guide->visible = fileExists(g().edition.userGuideFile);
        std::vector<Control*> legend = frame.arrayOf("txtLegend");
        for (std::size_t i = 1; i < legend.size() && i < g().edition.legendColors.size(); ++i)
            g().edition.legendColors[i] = legend[i]->backColor;
    });
}

namespace {

// A remembered folder that is gone is forgotten, in memory and in the file.
void forgetVanishedFolder(const char* key, std::string& folder) {
    if (folderExists(folder)) return;
    writeUserInf(program().parts, key, "");
    pause(250);
    folder.clear();
}

void fillPersonTable() {
    static const char* const rows[9][3] = {
        {"TP1", "2", "0"},  {"TP2", "5", "1"},  {"OP1", "8", "2"},  {"OP2", "12", "3"}, {"OP3", "16", "4"},
        {"OP4", "20", "5"}, {"OP5", "24", "6"}, {"OP6", "28", "7"}, {"OP7", "32", "8"},
    };
    for (int r = 0; r < 9; ++r)
        for (int c = 0; c < 3; ++c) g().taxpayers.personTable[r][c] = rows[r][c];
}

}  // namespace

void onFrameLoad(FrameForm& frame) {
    runGuarded("F0_MDI:FormLoad", [&] {
        g().document.currentForm = &frame;
        if (platform().earlierInstanceRunning()) {
            showMessageBox(
                program().desktop,
                {"F0_MDI:FormLoad",
                 "The Ledgerwick is already running.\r\nIf the Ledgerwick is minimized, Click the\r\n"
                 "Ledgerwick ICON on the Taskbar to restore."});
            std::string title = frame.caption;
            frame.caption.clear();
            platform().activateEarlierInstance(title);
            program().ui.quit();
            return;
        }
        g().process.starting = true;
        frame.top = 0;
        frame.height = 11020;
        frame.width = 16500;
        double centred = platform().screenWidthTwips() / 2.0 - frame.width / 2.0;
        frame.left = centred < 0 ? 0 : static_cast<int>(std::nearbyint(centred));
        frame.top = 0;

        installShippedInfFiles(platform().executableFolder(), infFilesFolder(platform().rootFolder()));
        setUpFrame(frame);

        g().choices.lastOpenFolder = readUserInf(program().parts, "LastOpenFolder");
        pause(250);
        g().choices.lastSaveFolder = readUserInf(program().parts, "LastSaveFolder");
        pause(250);
        forgetVanishedFolder("LastOpenFolder", g().choices.lastOpenFolder);
        forgetVanishedFolder("LastSaveFolder", g().choices.lastSaveFolder);

        openFirstChild(frame);

        g().process.starting = false;
        fillPersonTable();
    });
}

}  // namespace lw
