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

void parseNameAddress(TPInfoRec& Rec) {
    runGuarded("M6_TPInfo:TPInfo_Parse_NameAddr", [&] {
        if (Rec.NameAddr.empty()) return;
        const std::vector<std::string> lines =
            text::split(Rec.NameAddr, std::string(1, text::kLineSeparator));
        const std::size_t n = lines.size() - 1;
        Rec.Name = lines[0];
        // A block that lacks a line has no such part: nothing of an earlier person stays in it.
        Rec.Street = n == 0 ? "" : n == 1 ? lines[1] : joined(lines, 1, n - 1, " ");
        Rec.CityStateZip = n >= 2 ? lines[n] : "";
        Rec.NameAddr = joined(lines, 0, n, "\r\n");
        Rec.Address = Rec.Street;
        if (!Rec.CityStateZip.empty()) Rec.Address += "\r\n" + Rec.CityStateZip;
    });
}

}  // namespace lw
