#include "session_files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "session_texts.h"

namespace lw::fuzz {

namespace {

namespace fs = std::filesystem;

const std::string kDot = "\xB7";

std::string fileText(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

std::string lowered(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return text;
}

std::string lineEnd(SessionInput& in, bool hostile) {
    if (!hostile) return "\r\n";
    switch (in.pick(6)) {
        case 0:
            return "\n";
        case 1:
            return "\r";
        default:
            return "\r\n";
    }
}

// ---- the user INF store ----

enum class StoreValue { Folder, Year, Printer, Format, NameAddr, Number, Date, Dependent };

struct StoreKey {
    const char* key;
    StoreValue kind;
};

const StoreKey kStoreKeys[] = {
    {"TaxFormsFolder", StoreValue::Folder}, {"LastOpenFolder", StoreValue::Folder},
    {"LastSaveFolder", StoreValue::Folder}, {"LastTaxYear", StoreValue::Year},
    {"Printer", StoreValue::Printer},       {"FileNameFmt", StoreValue::Format},
    {"TP1NameAddr", StoreValue::NameAddr},  {"TP1SSN", StoreValue::Number},
    {"TP1DOB", StoreValue::Date},           {"TP2NameAddr", StoreValue::NameAddr},
    {"TP2SSN", StoreValue::Number},         {"TP2DOB", StoreValue::Date},
    {"TP1TIN", StoreValue::Number},         {"TP2TIN", StoreValue::Number},
    {"Dependent1", StoreValue::Dependent},  {"Dependent2", StoreValue::Dependent},
    {"Dependent3", StoreValue::Dependent},  {"Dependent4", StoreValue::Dependent},
    {"Dependent5", StoreValue::Dependent},  {"Dependent6", StoreValue::Dependent},
    {"Dependent7", StoreValue::Dependent},
};

// Every folder lies in the session's root: an existing one, one that is gone, a file in its place.
std::string folderValue(SessionInput& in, const std::string& root) {
    switch (in.pick(7)) {
        case 0:
            return root + "/gone";
        case 1:
            return root + "/a_file";
        case 2:
            return "";
        case 3:
            return root + "/" + safeName(in, 12);
        case 4:
            return root + "/VenturoForms";
        default:
            return root + "/forms";
    }
}

// Free text in a store never holds "/" nor makes a key of its own: a folder key could take it, and the
// program creates the forms folder that its store names.
std::string storeText(SessionInput& in, std::size_t maxLength) {
    std::string text = anyText(in, maxLength);
    for (char& c : text) {
        if (c == '/') c = '_';
        if (c == '=') c = ':';
    }
    return text;
}

std::string storeValue(SessionInput& in, StoreValue kind, const std::string& root, bool hostile) {
    if (hostile && kind != StoreValue::Folder && in.oneIn(10)) return storeText(in, 60);
    switch (kind) {
        case StoreValue::Folder:
            return folderValue(in, root);
        case StoreValue::Year: {
            static const char* const kYears[] = {"20XX", "2015", "", "19", "2024.5"};
            return in.oneIn(3) ? kYears[in.pick(std::size(kYears))] : std::to_string(2016 + in.pick(18));
        }
        case StoreValue::Printer: {
            static const char* const kPrinters[] = {"Office", "Back Room", "Gone Printer", ""};
            return kPrinters[in.pick(std::size(kPrinters))];
        }
        case StoreValue::Format: {
            static const char* const kFormats[] = {"0",   "1", "2",    "3", "4", "-1",
                                                   "2.5", "x", "1e30", "",  " 1"};
            return hostile ? kFormats[in.pick(std::size(kFormats))] : std::to_string(in.pick(4));
        }
        case StoreValue::NameAddr:
            return hostile && in.oneIn(12) ? std::string(1100, 'N') + nameBlock(in) : nameBlock(in);
        case StoreValue::Number:
            return taxpayerNumber(in);
        case StoreValue::Date:
            return dateText(in);
        case StoreValue::Dependent: {
            std::string value = nameBlock(in) + kDot + taxpayerNumber(in);
            if (hostile && in.oneIn(4)) value += kDot + anyText(in, 10);
            return value;
        }
    }
    return {};
}

// The guard behind the makers: whatever line a value's own line breaks start, a folder key of the store
// names a folder inside the session's root, or one that is gone there.
std::string keepFoldersInRoot(const std::string& text, const std::string& root) {
    std::string out;
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
        std::string line = text.substr(start, end - start);
        const std::size_t equals = line.find('=');
        if (equals != std::string::npos) {
            std::string key = lowered(line.substr(0, equals));
            key.erase(0, key.find_first_not_of(" \t"));
            key.erase(key.find_last_not_of(" \t") + 1);
            const std::string value = line.substr(equals + 1);
            const bool folderKey = key == "taxformsfolder" || key == "lastopenfolder" ||
                                   key == "lastsavefolder" || key == "folder";
            const bool inRoot = value.empty() || (value.compare(0, root.size() + 1, root + "/") == 0 &&
                                                  value.find("..") == std::string::npos);
            if (folderKey && !inRoot) line = line.substr(0, equals + 1) + root + "/gone";
        }
        out += line;
        if (end < text.size()) out.push_back(text[end]);
        start = end + 1;
    }
    return out;
}

}  // namespace

const ShippedData& shippedData() {
    static const ShippedData data = [] {
        ShippedData d;
        for (const std::string& line : linesOf(fileText(std::string(LW_DATA_DIR) + "/Forms.inf"))) {
            const std::string key = "RecordPrefix=";
            if (line.compare(0, key.size(), key) == 0) d.recordPrefixes.push_back(line.substr(key.size()));
        }
        d.k1Help = fileText(std::string(LW_DATA_DIR) + "/K1Help.inf");
        for (const std::string& line : linesOf(d.k1Help))
            if (line.size() > 2 && line.front() == '[' && line.back() == ']')
                d.k1Sections.push_back(line.substr(1, line.size() - 2));
        if (d.recordPrefixes.empty()) d.recordPrefixes.push_back("W-2");
        if (d.k1Sections.empty()) d.k1Sections.push_back("K1-1065-Box11");
        return d;
    }();
    return data;
}

std::optional<std::string> userStore(SessionInput& in, const std::string& section, const std::string& root) {
    const std::size_t kind = in.pick(4);
    if (kind == 0) return std::nullopt;
    const bool hostile = kind >= 2;
    std::string text;
    if (!hostile || !in.oneIn(8)) text += "[" + section + "]" + lineEnd(in, hostile);
    const std::size_t lines = in.pick(hostile ? 24 : 12) + 1;
    for (std::size_t i = 0; i < lines; ++i) {
        const std::size_t what = hostile ? in.pick(14) : 2 + in.pick(10);
        if (what == 0) {
            text += "[" + section + "]";
        } else if (what == 1) {
            static const char* const kOthers[] = {"[OTHER USER]", "[TaxForms]", "[]", "["};
            text += in.oneIn(3) ? "[" + lowered(section) + "]" : kOthers[in.pick(std::size(kOthers))];
        } else if (what == 12) {
            text += storeText(in, 80);
        } else if (what == 13) {
            text += "[TaxForms]" + lineEnd(in, hostile) + "Folder=" + folderValue(in, root);
        } else {
            const StoreKey& key = kStoreKeys[in.pick(std::size(kStoreKeys))];
            std::string name = key.key;
            if (hostile && in.oneIn(4)) name = lowered(name);
            text += name + (hostile && in.oneIn(20) ? "" : "=") + storeValue(in, key.kind, root, hostile);
        }
        text += lineEnd(in, hostile);
    }
    return keepFoldersInRoot(text, root);
}

std::optional<std::string> k1HelpFile(SessionInput& in) {
    const ShippedData& shipped = shippedData();
    switch (in.pick(6)) {
        case 0:
        case 1:
            return std::nullopt;
        case 2: {
            // The shipped file with a few slips of an editor's hand.
            std::string text = shipped.k1Help;
            for (std::size_t n = in.pick(6) + 1; n > 0 && !text.empty(); --n) {
                const std::size_t at = in.pick(text.size());
                switch (in.pick(4)) {
                    case 0:
                        text.erase(at, in.pick(40) + 1);
                        break;
                    case 1:
                        text.insert(at, anyText(in, 30));
                        break;
                    case 2: {
                        const std::size_t bar = text.find('|', at);
                        if (bar != std::string::npos) text.erase(bar, 1);
                        break;
                    }
                    default:
                        text.insert(at, "\r\n" + anyText(in, 20) + "\r\n");
                        break;
                }
            }
            return text;
        }
        case 3:
            return in.oneIn(2) ? std::string() : std::string("; nothing but a comment\r\n");
        default:
            break;
    }
    // A file of its own: the boxes' sections, with lines of every shape.
    std::string text;
    for (std::size_t sections = in.pick(6) + 1; sections > 0; --sections) {
        const std::string name =
            in.oneIn(8) ? anyText(in, 16) : shipped.k1Sections[in.pick(shipped.k1Sections.size())];
        text += "[" + name + "]\r\n";
        for (std::size_t lines = in.pick(40); lines > 0; --lines) {
            const std::string code =
                in.oneIn(6) ? anyText(in, 4) : std::string(1, static_cast<char>('A' + in.pick(26)));
            const std::string purpose = in.oneIn(5) ? std::string(in.pick(250), 'p') : anyText(in, 30);
            switch (in.pick(10)) {
                case 0:
                    text += code;
                    break;
                case 1:
                    text += code + "|" + purpose;
                    break;
                case 2:
                    text += code + "|" + purpose + "|" + anyText(in, 8) + "|" + anyText(in, 8);
                    break;
                case 3:
                    text += code + "|" + purpose + " {" + anyText(in, 20) + "}|\tX";
                    break;
                case 4:
                    text += code + "|" + purpose + "|" + anyText(in, 10);
                    break;
                case 5:
                    text += in.oneIn(2) ? "" : "; " + anyText(in, 20);
                    break;
                case 6:
                    text += anyText(in, 60);
                    break;
                default:
                    text += code + "|" + purpose + " {" + anyText(in, 20) + "}|";
                    break;
            }
            text += "\r\n";
        }
    }
    return text;
}

std::string dataFile(SessionInput& in) {
    const ShippedData& shipped = shippedData();
    switch (in.pick(16)) {
        case 0:
            return in.bytes(200);
        case 1:
            return "";
        default:
            break;
    }
    std::string prefix = shipped.recordPrefixes[in.pick(shipped.recordPrefixes.size())];
    switch (in.pick(10)) {
        case 0:
            prefix = "SS";
            break;
        case 1:
            prefix = "1099-MISC20";
            break;
        case 2:
            prefix = lowered(prefix);
            break;
        case 3:
            prefix = anyText(in, 10);
            break;
        default:
            break;
    }
    static const char* const kYears[] = {"2025", "", "20XX", "2019"};
    std::string line = prefix + kDot + (in.oneIn(6) ? anyText(in, 6) : kYears[in.pick(std::size(kYears))]);
    for (std::size_t fields = in.pick(16); fields > 0; --fields) {
        const std::string index = std::to_string(in.oneIn(8) ? in.pick(1000) : in.pick(100));
        std::string key;
        switch (in.pick(12)) {
            case 0:
                key = "TX" + std::to_string(2 + in.pick(8)) + index;
                break;
            case 1:
                key = "CHK" + index;
                break;
            case 2:
                key = "CBX" + index;
                break;
            case 3:
                key = "PIC" + std::to_string(1 + in.pick(2));
                break;
            case 4:
                key = "txt" + index;
                break;
            case 5:
                key = anyText(in, 8);
                break;
            default:
                key = "TXT" + index;
                break;
        }
        std::string value;
        switch (in.pick(5)) {
            case 0:
                value = nameBlock(in);
                break;
            case 1:
                value = dateText(in);
                break;
            case 2:
                value = taxpayerNumber(in);
                break;
            default:
                value = fieldText(in);
                break;
        }
        line += kDot + key + (in.oneIn(16) ? "" : "=") + value;
    }
    if (in.oneIn(12)) line += kDot;
    switch (in.pick(8)) {
        case 0:
            return line;
        case 1:
            return line + "\n" + anyText(in, 40);
        default:
            return line + "\r\n";
    }
}

bool writeFile(const std::string& path, const std::string& bytes) {
    std::error_code ec;
    fs::create_directories(fs::path(path).parent_path(), ec);
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
    return static_cast<bool>(out);
}

}  // namespace lw::fuzz
