// Fuzz target of the data line grammar: any bytes may be a line read from a file. Besides not failing,
// the pieces must join back to the line, and a line built from fields must give them back.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "store/record_line.h"
#include "text/case.h"

namespace {

void check(bool holds) {
    if (!holds) std::abort();
}

std::string without(std::string_view text, std::string_view bytes) {
    std::string out;
    for (char c : text)
        if (bytes.find(c) == std::string_view::npos) out.push_back(c);
    return out;
}

// What a value is after a write and a read: the stored line marks come back as CR LF.
std::string readBack(const std::string& value) {
    std::string stored = lw::store::recordValue(value);
    std::string out;
    for (char c : stored) {
        if (c == '\xBB') {
            out += "\r\n";
        } else {
            out.push_back(c);
        }
    }
    return out;
}

void takeApart(std::string_view line) {
    using namespace lw::store;
    std::vector<std::string> pieces = splitRecordLine(line);
    std::string joined;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (i > 0) joined.push_back('\xB7');
        joined += pieces[i];
    }
    check(joined == line);
    for (const std::string& piece : pieces) {
        if (auto field = parseRecordField(piece)) {
            check(field->key.find('=') == std::string::npos);
            check(field->value.find('=') == std::string::npos);
            recordKeyIndex(field->key);
            recordKeyTarget(field->key);
        }
    }
    if (!pieces.empty()) catalogueKeyOf(pieces[0]);

    const std::string checked = withCheckKeys(line);
    check(lw::text::findNoCase(checked, "CBX") == std::string::npos);
    check(checked.size() == line.size());
    if (auto cards = rewrittenCardLine(line)) check(cards->rfind("SS_ITIN\xB7", 0) == 0);
    if (auto misc = rewrittenMiscLine(line)) check(misc->rfind("1099-MISC\xB7", 0) == 0);
    std::string_view first = firstRecordLine(line);
    check(first.find_first_of("\r\n") == std::string_view::npos);
    classicInteger(line.substr(0, 9));
}

// Fields cut from the input at NUL bytes, keys and values cleaned of what the grammar reserves.
void buildAndRead(std::string_view input) {
    using namespace lw::store;
    std::vector<RecordField> fields;
    std::size_t start = 0;
    while (start <= input.size() && fields.size() < 64) {
        std::size_t end = input.find('\0', start);
        std::string_view piece =
            input.substr(start, end == std::string_view::npos ? std::string_view::npos : end - start);
        std::size_t cut = piece.size() / 2;
        fields.push_back(
            {without(piece.substr(0, cut), "\xB7=\r\n\xBB"), without(piece.substr(cut), "\xB7=")});
        if (end == std::string_view::npos) break;
        start = end + 1;
    }
    const std::string line = buildRecordLine("W-2", "2025", fields);
    check(line.find_first_of("\r\n") == std::string::npos);
    std::vector<std::string> pieces = splitRecordLine(line);
    check(pieces.size() == fields.size() + 2);
    check(pieces[0] == "W-2" && pieces[1] == "2025");
    for (std::size_t i = 0; i < fields.size(); ++i) {
        auto field = parseRecordField(pieces[i + 2]);
        check(field.has_value());
        check(field->key == fields[i].key);
        check(field->value == readBack(fields[i].value));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view input(reinterpret_cast<const char*>(data), size);
    takeApart(input);
    buildAndRead(input);
    return 0;
}
