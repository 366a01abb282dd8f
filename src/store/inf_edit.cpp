#include "store/inf_edit.h"

#include "store/inf_lines.h"

namespace lw::store {

namespace {

bool endsWithLineEnd(std::string_view text) {
    return !text.empty() && (text.back() == '\n' || text.back() == '\r');
}

// Puts `lines` (already carrying their line ends) at `at`, starting a new line first when `at`
// is the end of a last line that has no line end.
std::string insertedAt(std::string_view text, std::size_t at, std::string_view lines, std::string_view eol) {
    std::string out;
    out.reserve(text.size() + lines.size() + eol.size());
    out.append(text.substr(0, at));
    if (at > 0 && !endsWithLineEnd(text.substr(0, at))) out.append(eol);
    out.append(lines);
    out.append(text.substr(at));
    return out;
}

}  // namespace

std::string infOneLine(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        if (c == '\r' || c == '\n' || c == '\0') c = ' ';
    }
    return out;
}

std::string infWithValue(std::string_view text, std::string_view section, std::string_view key,
                         std::string_view value) {
    std::string_view eol = infLineEndOf(text);
    std::string entry = std::string(key) + "=" + std::string(value) + std::string(eol);

    InfLineReader reader(text);
    InfLine line;
    bool inSection = false;
    bool sectionSeen = false;
    std::size_t sectionTail = 0;  // where a missing key goes: after the section's last non-blank line
    while (reader.next(line)) {
        if (line.kind == InfLineKind::sectionName) {
            if (inSection) break;  // end of the first matching section; later namesakes are not looked at
            if (sameInfName(line.name, section)) {
                inSection = true;
                sectionSeen = true;
                sectionTail = line.end;
            }
            continue;
        }
        if (!inSection) continue;
        if (line.kind != InfLineKind::Blank) sectionTail = line.end;
        if (line.kind == InfLineKind::Entry && line.hasEquals && sameInfName(line.name, key)) {
            std::string out;
            out.reserve(text.size() + value.size());
            out.append(text.substr(0, line.equalsAt + 1));
            out.append(value);
            out.append(text.substr(line.textEnd));
            return out;
        }
    }
    if (sectionSeen) return insertedAt(text, sectionTail, entry, eol);
    std::string block = "[" + std::string(section) + "]" + std::string(eol) + entry;
    return insertedAt(text, text.size(), block, eol);
}

}  // namespace lw::store
