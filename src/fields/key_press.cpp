#include "fields/key_press.h"

#include <filesystem>

#include "diagnostics/error_tail.h"
#include "model/app_error.h"
#include "model/keys.h"
#include "model/program.h"
#include "store/inf_store.h"
#include "text/case.h"

namespace lw {

namespace {

bool isDigit(int k) { return k >= '0' && k <= '9'; }
bool isLower(int k) { return k >= 'a' && k <= 'z'; }
bool isUpper(int k) { return k >= 'A' && k <= 'Z'; }
bool isOneOf(int k, const char* signs) {
    for (const char* s = signs; *s; ++s)
        if (k == static_cast<unsigned char>(*s)) return true;
    return false;
}

bool tagIs(const std::string& tag, std::initializer_list<const char*> names) {
    for (const char* name : names)
        if (tag == name) return true;
    return false;
}

// An empty name stands for the current folder, which always exists.
bool folderExists(const std::string& path) {
    if (path.empty()) return true;
    std::error_code ec;
    return std::filesystem::is_directory(path, ec);
}

}  // namespace

void Key_Press(Control& ctl, int& KeyAscii) {
    const int k = KeyAscii;
    if (k == keys::kBackspace) return;
    const std::string tag = text::toUpper(ctl.tag);

    bool passes = false;
    if (tagIs(tag, {"DATE", "DATEX"})) {
        // X lets the placeholder year 20XX be typed.
        passes = isDigit(k) || isOneOf(k, "/-Xx");
    } else if (tagIs(tag, {"MONEY", "SMONEY"})) {
        passes = isDigit(k) || isOneOf(k, "$,.");
    } else if (tag == "-MONEY") {
        passes = isDigit(k) || isOneOf(k, "$(),-.");
    } else if (tag == "AMONEY") {
        // The key is held against the number 9, not the digit: digits are refused, control codes 0-9 pass.
        if (isLower(k)) {
            KeyAscii = k - 32;
            return;
        }
        passes = isOneOf(k, "$(),.") || isUpper(k) || (k >= 0 && k <= 9);
    } else if (tag == "TIN") {
        passes = isDigit(k) || isOneOf(k, "-Xx");
    } else if (tagIs(tag, {"YEAR", "TAXYEAR", "TAXYEAR1099G"})) {
        passes = isDigit(k);
    } else if (tag == "VERIFICATION") {
        passes = isDigit(k) || (k >= 'a' && k <= 'f') || (k >= 'A' && k <= 'F') || k == '-';
    } else if (tagIs(tag, {"%", "#.#"})) {
        passes = isDigit(k) || isOneOf(k, ",-.");
    } else if (tag == "#") {
        passes = isDigit(k) || isOneOf(k, ",.");
    } else {
        if (isLower(k)) {
            KeyAscii = k - 32;
            return;
        }
        passes = k > 31 || k == keys::kTab || k == keys::kEnter;
    }
    if (!passes) KeyAscii = 0;
}

void Verify_INF_Entry(const std::string& sKind) {
    runGuarded("M3_Ledgerwick:Verify_INF_Entry", [&] {
        std::string key;
        if (text::equalsNoCase(sKind, "Open"))
            key = "LastOpenFolder";
        else if (text::toLower(sKind) == "save")
            key = "LastSaveFolder";
        else
            throw AppError(900, "Program Error", "M3_Ledgerwick:Verify_INF_Entry");
        const Globals& g = program().g;
        const std::string folder = store::ReadINF(g.UserNameUC, key, "", g.UserInfFile);
        // A folder that has gone would send the dialog astray.
        if (!folderExists(folder)) store::SaveINF(g.UserNameUC, key, "", g.UserInfFile);
    });
}

void SendTabKey() { program().desktop.sendKey(keys::kTab, 0, 0); }

}  // namespace lw
