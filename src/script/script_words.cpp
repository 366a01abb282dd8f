#include "script/script_words.h"

#include <sstream>

#include "text/cp1252.h"

namespace lw::script {

std::string codePage(const std::string& utf8) {
    auto converted = text::utf8ToCp1252(utf8);
    if (!converted) throw ScriptError("the text \"" + utf8 + "\" holds a character outside the code page");
    return *converted;
}

std::string utf8(const std::string& cp1252) { return text::cp1252ToUtf8(cp1252); }

std::string escapeLineEnds(const std::string& text) {
    std::string out;
    for (char c : text) {
        if (c == '\r')
            out += "\\r";
        else if (c == '\n')
            out += "\\n";
        else
            out.push_back(c);
    }
    return out;
}

std::string quoted(const std::string& text) {
    std::string out = "\"";
    for (char c : text) {
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                out.push_back(c);
        }
    }
    return out + "\"";
}

std::string flag(bool value) { return value ? "True" : "False"; }

std::string number(double value) {
    std::ostringstream s;
    s << value;
    return s.str();
}

ControlReference parseReference(const std::string& word) {
    ControlReference ref;
    std::string rest = word;
    std::size_t close = rest.rfind(')');
    std::size_t dot = rest.find('.', close == std::string::npos ? 0 : close);
    if (dot != std::string::npos) {
        ref.property = rest.substr(dot + 1);
        rest.erase(dot);
    }
    std::size_t open = rest.find('(');
    if (open != std::string::npos) {
        if (rest.back() != ')') throw ScriptError("bad control name " + word);
        std::string digits = rest.substr(open + 1, rest.size() - open - 2);
        if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos)
            throw ScriptError("bad control index in " + word);
        ref.index = std::stoi(digits);
        rest.erase(open);
    }
    if (rest.empty()) throw ScriptError("bad control name " + word);
    ref.name = rest;
    return ref;
}

void need(const std::vector<std::string>& words, std::size_t count, const char* usage) {
    if (words.size() < count) throw ScriptError(std::string("usage: ") + usage);
}

}  // namespace lw::script
