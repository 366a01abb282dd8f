#include "store/record_line.h"

#include <cmath>

#include "text/case.h"
#include "text/cp1252.h"

namespace lw::store {

namespace {

constexpr char kSeparator = text::kFieldSeparator;

std::string replaceAllNoCase(std::string_view line, std::string_view from, std::string_view to) {
    std::string out;
    std::size_t start = 0;
    for (std::size_t at = text::findNoCase(line, from); at != std::string::npos;
         at = text::findNoCase(line, from, start)) {
        out.append(line.substr(start, at - start));
        out.append(to);
        start = at + from.size();
    }
    out.append(line.substr(start));
    return out;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string recordValue(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        if (c == '\n') continue;
        out.push_back(c == '\r' ? text::kLineSeparator : c);
    }
    return out;
}

std::string buildRecordLine(std::string_view prefix, std::string_view year,
                            const std::vector<RecordField>& fields) {
    std::string line(prefix);
    line.push_back(kSeparator);
    line.append(year);
    for (const RecordField& field : fields) {
        line.push_back(kSeparator);
        line.append(field.key);
        line.push_back('=');
        line.append(recordValue(field.value));
    }
    return line;
}

std::vector<std::string> splitRecordLine(std::string_view line) {
    std::vector<std::string> pieces;
    std::size_t start = 0;
    for (std::size_t at = line.find(kSeparator); at != std::string_view::npos;
         at = line.find(kSeparator, start)) {
        pieces.emplace_back(line.substr(start, at - start));
        start = at + 1;
    }
    pieces.emplace_back(line.substr(start));
    return pieces;
}

std::optional<std::string> recordKey(RecordSlot slot, std::string_view name, int index) {
    if (slot == RecordSlot::Check) {
        if (!text::equalsNoCase(name, "Check") || index < 0) return std::nullopt;
        return "CHK" + std::to_string(index);
    }
    if (text::equalsNoCase(name, "Text1")) {
        if (index < 0) return std::nullopt;
        return "TXT" + std::to_string(index);
    }
    if (name.size() > 4 && text::startsWithNoCase(name, "Text")) {
        if (index < 0) return std::nullopt;
        return "TX" + std::string(1, name[4]) + std::to_string(index);
    }
    return std::string(name);
}

std::string_view firstRecordLine(std::string_view bytes) {
    std::size_t end = bytes.find_first_of("\r\n");
    return end == std::string_view::npos ? bytes : bytes.substr(0, end);
}

std::string withCheckKeys(std::string_view line) { return replaceAllNoCase(line, "CBX", "CHK"); }

std::optional<std::string> rewrittenCardLine(std::string_view line) {
    static const std::string oldLead = std::string("SS") + kSeparator;
    if (line.substr(0, oldLead.size()) != oldLead) return std::nullopt;
    return replaceAllNoCase(line, oldLead, std::string("SS_ITIN") + kSeparator);
}

std::optional<std::string> rewrittenMiscLine(std::string_view line) {
    static const std::string oldLead = std::string("1099-MISC20") + kSeparator;
    if (line.substr(0, oldLead.size()) != oldLead) return std::nullopt;
    std::string out;
    std::size_t start = 0;
    for (std::size_t at = line.find(oldLead); at != std::string_view::npos; at = line.find(oldLead, start)) {
        out.append(line.substr(start, at - start));
        out.append("1099-MISC");
        out.push_back(kSeparator);
        start = at + oldLead.size();
    }
    out.append(line.substr(start));
    return out;
}

std::string catalogueKeyOf(std::string_view field0) {
    std::string key = text::toUpper(field0);
    if (key == "CSA" || key == "CSF") return key + "1099R";
    if (key == "RRB" || key == "SSA") return key + "1099";
    if (key == "1099-MISC20") return "1099-MISC";
    return key;
}

std::optional<RecordField> parseRecordField(std::string_view field) {
    std::string whole;
    whole.reserve(field.size());
    for (char c : field) {
        if (c == text::kLineSeparator) {
            whole.append("\r\n");
        } else {
            whole.push_back(c);
        }
    }
    std::size_t eq = whole.find('=');
    if (eq == std::string::npos) return std::nullopt;
    std::size_t next = whole.find('=', eq + 1);
    RecordField out;
    out.key = whole.substr(0, eq);
    out.value = whole.substr(eq + 1, next == std::string::npos ? std::string::npos : next - eq - 1);
    return out;
}

std::optional<int> recordKeyIndex(std::string_view key) {
    if (key.size() < 4) return std::nullopt;
    return classicInteger(key.substr(3, 2));
}

std::optional<int> classicInteger(std::string_view number) {
    // Longer texts are no index of this program; they would only overflow.
    if (number.size() > 9) return std::nullopt;
    while (!number.empty() && number.front() == ' ') number.remove_prefix(1);
    while (!number.empty() && number.back() == ' ') number.remove_suffix(1);
    bool negative = false;
    if (!number.empty() && (number.front() == '-' || number.front() == '+')) {
        negative = number.front() == '-';
        number.remove_prefix(1);
    }
    double value = 0;
    double scale = 0;
    bool digits = false;
    for (char c : number) {
        if (isDigit(c)) {
            digits = true;
            if (scale == 0) {
                value = value * 10 + (c - '0');
            } else {
                scale /= 10;
                value += (c - '0') * scale;
            }
        } else if (c == '.' && scale == 0) {
            scale = 1;
        } else {
            return std::nullopt;
        }
    }
    if (!digits) return std::nullopt;
    // Halves go to the even neighbour, as the classic conversion rounds.
    int rounded = static_cast<int>(std::nearbyint(value));
    return negative ? -rounded : rounded;
}

KeyTarget recordKeyTarget(std::string_view key) {
    KeyTarget out;
    std::string lead = text::toUpper(key.substr(0, 3));
    if (lead == "TXT") {
        out.target = RecordTarget::TextArray;
        out.array = 1;
    } else if (lead.size() == 3 && lead[0] == 'T' && lead[1] == 'X' && lead[2] >= '2' && lead[2] <= '9') {
        out.target = RecordTarget::TextArray;
        out.array = lead[2] - '0';
    } else if (lead == "CHK") {
        out.target = RecordTarget::Check;
    } else if (text::equalsNoCase(key, "PIC1")) {
        out.target = RecordTarget::Picture1;
    } else if (text::equalsNoCase(key, "PIC2")) {
        out.target = RecordTarget::Picture2;
    }
    return out;
}

}  // namespace lw::store
