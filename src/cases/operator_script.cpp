#include "cases/operator_script.h"

#include <cstdio>

namespace lw::cases {

OperatorScript::OperatorScript(const std::string& root, const std::string& today, const std::string& edition) {
    line("root " + quoted(root));
    line("edition " + quoted(edition));
    line("today " + today);
    line("start");
}

void OperatorScript::line(const std::string& command) {
    text_ += command;
    text_ += '\n';
}

std::string OperatorScript::quoted(const std::string& text) {
    std::string out = "\"";
    for (char c : text) {
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    return out + "\"";
}

void OperatorScript::openForm(const std::string& menuItem) { line("menu " + menuItem); }

void OperatorScript::loadTaxpayer(int which) { line("button \"Load TP " + std::to_string(which) + "\""); }

void OperatorScript::fill(const std::string& control, const std::string& text) {
    line("focus " + control);
    std::size_t from = 0;
    for (;;) {
        const std::size_t end = text.find('\n', from);
        const std::string piece = text.substr(from, end == std::string::npos ? std::string::npos : end - from);
        if (!piece.empty()) line("type " + quoted(piece));
        if (end == std::string::npos) break;
        line("key Enter");
        from = end + 1;
    }
    line("key Tab");
}

void OperatorScript::replace(const std::string& control, const std::string& text) {
    line("focus " + control);
    line("key Home");
    line("key Shift+End");
    line("type " + quoted(text));
    line("key Tab");
}

void OperatorScript::leave(const std::string& control) {
    line("focus " + control);
    line("key Tab");
}

void OperatorScript::click(const std::string& control) { line("click " + control); }

void OperatorScript::saveInto(const std::string& folder) {
    line("filesave sequence");
    line("file proposed " + quoted(folder));
    line("button Save");
    expectQuiet();
    // A form opened again while it is on the screen keeps what it holds: the next document starts afresh.
    line("menu mnuControlClose");
}

void OperatorScript::expectQuiet() {
    line("expect no-message");
    line("expect no-report");
}

std::string typedAmount(long long cents) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%lld.%02lld", cents / 100, cents % 100);
    return buffer;
}

std::string typedDigits(const std::string& number) {
    std::string digits;
    for (char c : number)
        if (c >= '0' && c <= '9') digits += c;
    return digits;
}

}  // namespace lw::cases
