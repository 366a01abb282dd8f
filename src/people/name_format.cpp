#include "people/name_format.h"

#include <vector>

#include "diagnostics/error_tail.h"
#include "text/case.h"
#include "text/cp1252.h"
#include "text/pieces.h"

namespace lw {

namespace {

// The last, empty entry stands for a lone trailing blank.
const char* const kSuffixList = "JR,SR,II,III,IV,V,2ND,3RD,4TH,5TH,";

bool endsWith(const std::string& s, const std::string& end) {
    return s.size() >= end.size() && s.compare(s.size() - end.size(), end.size(), end) == 0;
}

// Every occurrence, wherever it stands and in any case, as the classic text-compare Replace does.
std::string removeEveryNoCase(const std::string& s, const std::string& what) {
    std::string out;
    std::size_t from = 0;
    for (std::size_t at = text::findNoCase(s, what); at != std::string::npos;
         at = text::findNoCase(s, what, from)) {
        out += s.substr(from, at - from);
        from = at + what.size();
    }
    return out + s.substr(from);
}

}  // namespace

TPNameParts taxpayerNameParts(const std::string& Name) {
    TPNameParts parts;
    if (Name.empty()) return parts;
    std::string line = Name.substr(0, Name.find("\r\n"));
    while (!line.empty() && line.back() == '.') line.pop_back();

    std::string suffix;
    for (const std::string& entry : text::split(kSuffixList, ",")) {
        const std::string candidate = " " + entry;
        if (!endsWith(line, candidate)) continue;
        suffix = candidate;
        // A name with a trailing blank and no other suffix thereby loses all its blanks.
        line = removeEveryNoCase(line, candidate);
        break;
    }
    while (line.find("  ") != std::string::npos) line = text::replaceAll(line, "  ", " ");

    const std::vector<std::string> words = text::split(line, " ");
    parts.line = line + suffix;
    if (words.size() == 1) {
        parts.last = words[0] + suffix;
        parts.firstLast = parts.last;
        parts.lastFirst = parts.last;
    } else if (words.size() > 1) {
        parts.first = words.front();
        parts.last = words.back() + suffix;
        parts.firstLast = parts.first + " " + parts.last;
        parts.lastFirst = parts.last + "," + parts.first;
    }
    return parts;
}

std::string formatTaxpayerName(const std::string& Name, const std::string& fileNameFormat) {
    return runGuardedOr<std::string>("M3_Ledgerwick:Format_TPName", std::string(), [&] {
        if (Name.empty()) return std::string();
        const TPNameParts parts = taxpayerNameParts(Name);
        const bool firstBeforeLast = fileNameFormat.find("<FIRST>_<LAST>") != std::string::npos;
        return parts.line + text::kFieldSeparator + (firstBeforeLast ? parts.firstLast : parts.lastFirst);
    });
}

}  // namespace lw
