#include "people/tp_record.h"

#include <vector>

#include "diagnostics/error_tail.h"
#include "text/cp1252.h"
#include "text/pieces.h"

namespace lw {

namespace {

std::string joined(const std::vector<std::string>& lines, std::size_t from, std::size_t to,
                   const char* glue) {
    std::string out;
    for (std::size_t i = from; i <= to; ++i) {
        if (i > from) out += glue;
        out += lines[i];
    }
    return out;
}

}  // namespace

void parseNameAddress(TPInfoRec& rec) {
    runGuarded("M6_TPInfo:TPInfo_Parse_NameAddr", [&] {
        if (rec.nameAddr.empty()) return;
        const std::vector<std::string> lines =
            text::split(rec.nameAddr, std::string(1, text::kLineSeparator));
        const std::size_t n = lines.size() - 1;
        rec.name = lines[0];
        // A block that lacks a line has no such part: nothing of an earlier person stays in it.
        rec.street = n == 0 ? "" : n == 1 ? lines[1] : joined(lines, 1, n - 1, " ");
        rec.cityStateZip = n >= 2 ? lines[n] : "";
        rec.nameAddr = joined(lines, 0, n, "\r\n");
        rec.address = rec.street;
        if (!rec.cityStateZip.empty()) rec.address += "\r\n" + rec.cityStateZip;
    });
}

}  // namespace lw
