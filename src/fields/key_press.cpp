#include "fields/key_press.h"

#include "model/desktop.h"
#include "model/keys.h"
#include "model/ports.h"
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

}  // namespace

void filterFieldKey(Control& ctl, int& keyAscii) {
    const int k = keyAscii;
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
            keyAscii = k - 32;
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
            keyAscii = k - 32;
            return;
        }
        passes = k > 31 || k == keys::kTab || k == keys::kEnter;
    }
    if (!passes) keyAscii = 0;
}

void sendTabKey(const Form& form) {
    if (Desktop* desktop = form.desktop()) desktop->sendKey(keys::kTab, 0, 0);
}

}  // namespace lw
