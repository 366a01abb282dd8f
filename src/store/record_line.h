#pragma once
// The one-line data file of a form as text: how a line is made from keys and values, and how it is taken
// apart again. No form is involved here; the documents layer walks the controls.
//
// A line is: field 0 (the record prefix), "·", field 1 (the tax year, may be empty), then "·" and
// key=value for each filled control. "·" is the byte 0xB7; a line break inside a value is "»" (0xBB).

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lw::store {

struct RecordField {
    std::string key;
    std::string value;
};

// A value as it is stored: line feeds dropped, each carriage return becomes "»".
std::string recordValue(std::string_view text);

// prefix "·" year, then "·" key "=" value for each field, with no separator after the last one.
// Values go through recordValue; nothing else is escaped, so a value holding "·" splits on reading.
std::string buildRecordLine(std::string_view prefix, std::string_view year,
                            const std::vector<RecordField>& fields);

// The pieces between the separators, empty ones kept; an empty line is one empty piece.
std::vector<std::string> splitRecordLine(std::string_view line);

// What a control is when it is stored.
enum class RecordSlot { TextBox, Check };

// The key of a control: Text1(i) is TXT<i>, Text2(i) to Text9(i) are TX<d><i>, another text box is its
// bare name, a Check(i) label is CHK<i>; the tests of the names are blind to case. Nothing for a control
// that has no key: an array name without an index, or a label that is not a Check.
std::optional<std::string> recordKey(RecordSlot slot, std::string_view name, int index);

// The first line of a file's bytes: up to the first CR or LF; everything behind it is ignored.
std::string_view firstRecordLine(std::string_view bytes);

// "CBX", the check key of an older release, becomes "CHK" wherever it stands, in any case.
std::string withCheckKeys(std::string_view line);

// A line that starts with exactly "SS·" is from an older release: every "SS·", in any case, becomes
// "SS_ITIN·", values included. Nothing for any other line.
std::optional<std::string> rewrittenCardLine(std::string_view line);

// A line that starts with exactly "1099-MISC20·": every "1099-MISC20·" becomes "1099-MISC·". Nothing
// for any other line.
std::optional<std::string> rewrittenMiscLine(std::string_view line);

// The catalogue section that field 0 leads to, in capitals: CSA and CSF add "1099R", RRB and SSA add
// "1099", 1099-MISC20 is 1099-MISC, any other stands as it is.
std::string catalogueKeyOf(std::string_view field0);

// A field of the line read back: "»" becomes CR LF, the key is what stands before the first "=" and
// the value what stands between it and the next "=" (a value is cut at its own first "="). Nothing
// when the field has no "=".
std::optional<RecordField> parseRecordField(std::string_view field);

// The index of a key: the integer of the two characters from the fourth on, and only those, so
// TXT45 is 45 and CHK647 is 64. Nothing when they are no integer.
std::optional<int> recordKeyIndex(std::string_view key);
// A short text as the classic integer conversion reads it: blanks around, a sign, digits with one
// point, halves rounded to even. Nothing for anything else, or for more than nine characters.
std::optional<int> classicInteger(std::string_view text);

// Where the value of a key goes, by the key's first characters, blind to case.
enum class RecordTarget { TextArray, Check, Picture1, Picture2, Other };
struct KeyTarget {
    RecordTarget target = RecordTarget::Other;
    int array = 0;  // TextArray: 1 for TXT, 2 to 9 for TX2 to TX9
};
KeyTarget recordKeyTarget(std::string_view key);

}  // namespace lw::store
