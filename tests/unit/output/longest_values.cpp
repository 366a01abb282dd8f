#include "longest_values.h"

#include <fstream>
#include <sstream>

#include "face/text_measure.h"
#include "text/case.h"
#include "ui/qt_text.h"
#include "ui/qt_text_measure.h"

namespace lw::testing {

namespace {

const std::string kNewLine = "\r\n";

std::string lines(std::initializer_list<const char*> parts) {
    std::string block;
    for (const char* part : parts) block += (block.empty() ? "" : kNewLine) + part;
    return block;
}

// Blocks of five lines of forty capitals: a payer with a long name, an attention line, a street, a city
// with its ZIP code and a telephone number; a person at an address in care of another; a property.
const std::string kPayerBlock =
    lines({"NORTHWESTERN REGIONAL MEDICAL GROUP, LLC", "ATTN: ACCOUNTS PAYABLE AND TAX REPORTING",
           "12845 WEST RIVERSIDE BOULEVARD, STE 1400", "SOUTH SAN FRANCISCO, CA 94080-1234 (USA)",
           "TELEPHONE (650) 555-0198, EXTENSION 2047"});
const std::string kPersonBlock =
    lines({"MAXIMILIANO ALEJANDRO WASHINGTON-MCBRIDE", "C/O ROSEMARY WILHELMINA BARTHOLOMEW-KING",
           "APARTMENT 12B, 4500 MASSACHUSETTS AVE NW", "WASHINGTON, DC 20016-5512, UNITED STATES",
           "PHONE (202) 555-0143, FAX (202) 555-0199"});
const std::string kPropertyBlock =
    lines({"SINGLE-FAMILY RESIDENCE ON LOT 14, BLK 7", "RIVERSIDE ESTATES SUBDIVISION, UNIT 3B,",
           "APN 123-456-789-000, 4500 MASSACHUSETTS", "AVE NW, WASHINGTON, DC 20016-5512 (USA)",
           "RECORDED DOC NO. 2025-0012345, BOOK 9876"});

// A property's address, as its box on a lender's statement holds it.
const std::string kPropertyAddress =
    lines({"4500 MASSACHUSETTS AVE NW, APARTMENT 12B", "WASHINGTON, DC 20016-5512",
           "APN 123-456-789-000, LOT 14, BLOCK 7"});
// The account holders on a check, whose block keeps the size the check gives it: two names, a street, a
// city.
const std::string kCheckPayerBlock = lines({"ALEXANDRA K MONTGOMERY-REYES", "MAXIMILIANO WASHINGTON-MCBRIDE",
                                            "4500 MASSACHUSETTS AVE NW #12B", "WASHINGTON, DC 20016-5512"});
// A bank on a check: its name, street and city.
const std::string kBankBlock =
    lines({"RIVERSIDE COMMUNITY BANK", "12845 W RIVERSIDE BLVD, STE 100", "SOUTH SAN FRANCISCO, CA 94080"});

// One line of each. A person named on the line of a statement's recipient takes the forty capitals of
// a block's line; one of the people listed in a table, a long name of thirty.
const char* const kCompany = "NORTHWESTERN REGIONAL MEDICAL GROUP, LLC";
const char* const kPerson = "MAXIMILIANO ALEJANDRO WASHINGTON-MCBRIDE";
const char* const kListedPerson = "ALEXANDRA KATHERINE MONTGOMERY";
const char* const kStreet = "APARTMENT 12B, 4500 MASSACHUSETTS AVE NW";
const char* const kCity = "SOUTH SAN FRANCISCO, CA 94080-1234 (USA)";
const char* const kAccount = "AC-0012-3456-7890-1234";
const char* const kState = "CA";
const char* const kStateNumber = "12-3456789-01";
const char* const kStatePayer = "CA 123-4567-8";
const char* const kLocality = "CITY OF DETROIT";
const char* const kCountry = "UNITED KINGDOM";
const char* const kCusip = "912828ZT6";
const char* const kTelephone = "(650) 555-0198";
const char* const kMoney = "12345678.90";

// The tag of a field as its edit reads it: the part before the dot, in capitals.
std::string kindOf(const Control& field) {
    const std::string tag = field.tag.substr(0, field.tag.find("\xB7"));
    return text::toUpper(tag);
}

// Fields that carry no tag, by form and field: what each box of the paper form holds at its longest.
const std::map<std::string, std::string>& untagged() {
    static const std::map<std::string, std::string> table = {
        {"F3_DL txtLPic", "16"},
        {"F3_DL txtRPic", "16"},
        {"F4_CHK Text1(1)", "325070760"},
        {"F4_CHK Text1(2)", "00123456789"},
        {"TF_W2 Text1(11)", "0012345678-0098"},
        {"TF_W2 Text1(14)", kMoney},
        {"TF_W2 Text1(15)", "DD"},
        {"TF_W2 Text1(17)", "AA"},
        {"TF_W2 Text1(19)", "BB"},
        {"TF_W2 Text1(21)", "EE"},
        {"TF_W2 Text1(23)", "CASDI 1,234.56"},
        {"TF_W2 Text1(25)", "NJ FLI 123.45"},
        {"TF_W2 Text1(27)", "UNION 1,234.56"},
        {"TF_W2 Text1(29)", "CAFE125 1,234.56"},
        {"TF_W2 Text1(31)", kState},
        {"TF_W2 Text1(32)", kStateNumber},
        {"TF_W2 Text1(37)", kLocality},
        {"TF_W2 Text1(38)", kState},
        {"TF_W2 Text1(39)", kStateNumber},
        {"TF_W2 Text1(44)", kLocality},
        {"TF_W2G Text1(3)", "POKER TOURNAMENT"},
        {"TF_W2G Text1(5)", "TX-0012345678"},
        {"TF_W2G Text1(6)", "R07 BELMONT PARK"},
        {"TF_W2G Text1(8)", "CAGE 12 / 004567"},
        {"TF_W2G Text1(10)", kTelephone},
        {"TF_W2G Text1(12)", "WINDOW 12"},
        {"TF_W2G Text1(14)", "DL D123-4567-8901"},
        {"TF_W2G Text1(15)", "PASSPORT 123456789"},
        {"TF_W2G Text1(16)", kStatePayer},
        {"TF_W2G Text1(21)", kLocality},
        {"TF_1099R Text1(10)", "4G"},
        {"TF_1099R Text1(12)", "100.00 %"},
        {"TF_1099R Text1(17)", kStatePayer},
        {"TF_1099R Text1(20)", kStatePayer},
        {"TF_1099R Text1(22)", kAccount},
        {"TF_1099R Text1(24)", kLocality},
        {"TF_1099R Text1(27)", kLocality},
        {"TF_SSA1099 Text1(12)",
         lines({"BENEFITS FOR 2025 PAID BY CHECK OR DIRECT", "DEPOSIT, LESS BENEFITS REPAID TO SSA IN",
                "2025, WITH MEDICARE PART B PREMIUMS AND", "PRESCRIPTION DRUG PREMIUMS DEDUCTED"})},
        {"TF_SSA1099 Text1(14)", kPersonBlock.substr(kPersonBlock.find(kNewLine) + kNewLine.size())},
        {"TF_RRB1099 Text1(1)", "A 123-45-6789 01"},
        {"TF_RRB1099 Text1(25)", kCountry},
        {"TF_CSA1099R Text1(2)", "CSA 1234567"},
        {"TF_CSA1099R Text1(4)", "7-NONDISABILITY"},
        {"TF_CSA1099R Text1(12)", kStatePayer},
        {"TF_CSA1099R Text1(13)", kStatePayer},
        {"TF_CSF1099R Text1(2)", "CSF 1234567"},
        {"TF_CSF1099R Text1(4)", "4-DEATH BENEFIT"},
        {"TF_CSF1099R Text1(12)", kStatePayer},
        {"TF_CSF1099R Text1(13)", kStatePayer},
        {"TF_1099A Text1(4)", kAccount},
        {"TF_1099A Text1(8)", kPropertyBlock},
        {"TF_1099B Text1(4)", kAccount},
        {"TF_1099B Text1(5)", kCusip},
        {"TF_1099B Text1(6)", kState},
        {"TF_1099B Text1(7)", kStateNumber},
        {"TF_1099B Text1(9)", kState},
        {"TF_1099B Text1(10)", kStateNumber},
        {"TF_1099B Text1(12)", "A"},
        {"TF_1099B Text1(13)", "250 SH. MICROSOFT CORP"},
        {"TF_1099C Text1(4)", kAccount},
        {"TF_1099C Text1(8)", kPropertyBlock},
        {"TF_1099C Text1(9)", "G"},
        {"TF_1099DIV Text1(14)", kCountry},
        {"TF_1099DIV Text1(17)", kAccount},
        {"TF_1099DIV Text1(26)", kStateNumber},
        {"TF_1099DIV Text1(27)", kStateNumber},
        {"TF_1099DIV Text1(28)", kState},
        {"TF_1099DIV Text1(29)", kState},
        {"TF_1099G Text1(12)", kAccount},
        {"TF_1099G Text1(13)", kState},
        {"TF_1099G Text1(14)", kStateNumber},
        {"TF_1099G Text1(17)", kStateNumber},
        {"TF_1099G Text1(18)", kState},
        {"TF_1099INT Text1(1)", "123456789"},
        {"TF_1099INT Text1(11)", kCountry},
        {"TF_1099INT Text1(14)", kAccount},
        {"TF_1099INT Text1(17)", kCusip},
        {"TF_1099INT Text1(18)", kState},
        {"TF_1099INT Text1(19)", kState},
        {"TF_1099INT Text1(20)", kStateNumber},
        {"TF_1099INT Text1(21)", kStateNumber},
        {"TF_1099K Text1(2)", "ACME PAYMENT SERVICES LLC (800) 555-0147"},
        {"TF_1099K Text1(3)", kAccount},
        {"TF_1099K Text1(7)", "$12,345,678.90"},
        {"TF_1099K Text1(8)", "5999"},
        {"TF_1099K Text1(9)", "1,234,567"},
        {"TF_1099K Text1(24)", kStateNumber},
        {"TF_1099K Text1(25)", kState},
        {"TF_1099K Text1(27)", kStateNumber},
        {"TF_1099K Text1(28)", kState},
        {"TF_1099LTC Text1(7)", kPersonBlock},
        {"TF_1099LTC Text1(8)", kAccount},
        {"TF_1099MISC Text1(15)", kAccount},
        {"TF_1099MISC Text1(21)", kStatePayer},
        {"TF_1099MISC Text1(24)", kStatePayer},
        {"TF_1099NEC Text1(4)", kAccount},
        {"TF_1099NEC Text1(8)", kStatePayer},
        {"TF_1099NEC Text1(11)", kStatePayer},
        {"TF_1099Q Text1(4)", kAccount},
        {"TF_1099SA Text1(4)", kAccount},
        {"TF_1099SA Text1(7)", "5"},
        {"TF_1098 Text1(7)", kPropertyAddress},
        {"TF_1098 Text1(8)", kAccount},
        {"TF_1098 Text1(13)", lines({"RE TAX $4,321.09", "INS. $1,234.56", "PMI $987.65"})},
        {"TF_1098 Text1(14)", "12"},
        {"TF_1098E Text1(0)", kPayerBlock},
        {"TF_1098E Text1(5)", kAccount},
        {"TF_1098T Text1(9)", kAccount},
        {"TF_1095A Text1(1)", "POL-0012345678-2025"},
        {"TF_1095A Text1(6)", kPerson},
        {"TF_1095A Text1(11)", kStreet},
        {"TF_1095A Text1(12)", kCity},
        {"TF_1095A Text1(13)", kListedPerson},
        {"TF_1095A Text1(18)", kListedPerson},
        {"TF_1095A Text1(23)", kListedPerson},
        {"TF_1095A Text1(28)", kListedPerson},
        {"TF_1095A Text1(33)", kListedPerson},
        {"TF_1095B Text1(3)", kStreet},
        {"TF_1095B Text1(4)", kCity},
        {"TF_1095B Text1(5)", "G"},
        {"TF_1095B Text1(9)", kStreet},
        {"TF_1095B Text1(10)", kCity},
        {"TF_1095B Text1(11)", kCompany},
        {"TF_1095B Text1(13)", kTelephone},
        {"TF_1095B Text1(14)", kStreet},
        {"TF_1095B Text1(15)", kCity},
        {"TF_1095B Text1(16)", kListedPerson},
        {"TF_1095B Text1(19)", kListedPerson},
        {"TF_1095B Text1(22)", kListedPerson},
        {"TF_1095B Text1(25)", kListedPerson},
        {"TF_1095B Text1(28)", kListedPerson},
        {"TF_1095B Text1(31)", kListedPerson},
        {"TF_1095C Text1(4)", kStreet},
        {"TF_1095C Text1(5)", "12845 W RIVERSIDE BLVD, STE 1400"},
        {"TF_1095C Text1(6)", kTelephone},
        {"TF_1095C Text1(7)", kCity},
        {"TF_1095C Text1(8)", kCity},
        {"TF_1095C Text1(9)", "01"},
        {"TF_1095C Text1(49)", kListedPerson},
        {"TF_1095C Text1(52)", kListedPerson},
        {"TF_1095C Text1(55)", kListedPerson},
        {"TF_1095C Text1(58)", kListedPerson},
        {"TF_1095C Text1(61)", kListedPerson},
        {"TF_1095C Text1(64)", kListedPerson},
        {"TF_K11041 Text1(4)", kPayerBlock},
        {"TF_K11065 Text1(4)", "KANSAS CITY, MO 64999-0011"},
        {"TF_K11065 Text1(8)", "MONTGOMERY FAMILY HOLDINGS LLC"},
        {"TF_K11065 Text1(9)", "LIMITED LIABILITY COMPANY"},
        {"TF_K11120S Text1(4)", "KANSAS CITY, MO 64999-0011"},
    };
    return table;
}

// Amounts that a box is meant for when they are smaller than the default: monthly premiums and
// contributions; the yearly benefits of the federal statements, of which what is repaid or deducted is
// a part; the state tax a broker withholds.
std::string amountFor(const Form& form, const Control& field) {
    const std::string& name = form.name();
    const std::string key = field.key();
    if (name == "TF_1095A") return "12345.67";
    if (name == "TF_1095C") return "1234.56";
    if (name == "TF_SSA1099") return key == "Text1(2)" ? "123456.78" : "1234.56";
    if (name == "TF_RRB1099")
        return key == "Text1(4)" || key == "Text1(17)" || key == "Text1(19)" ? "123456.78" : "1234.56";
    if (name == "TF_1099B" && (key == "Text1(8)" || key == "Text1(11)")) return "123456.78";
    return kMoney;
}

}  // namespace

LongestValues::LongestValues(const std::string& k1HelpFile) {
    std::ifstream in(k1HelpFile, std::ios::binary);
    std::string line;
    std::string section;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty() || line[0] == ';') continue;
        if (line.front() == '[' && line.back() == ']') {
            section = line.substr(1, line.size() - 2);
            continue;
        }
        const std::size_t bar = line.find('|');
        if (!section.empty() && bar != std::string::npos && bar > 0)
            k1Codes_[section].push_back(line.substr(0, bar));
    }
}

std::string LongestValues::widestCode(const Control& field) const {
    const std::size_t dot = field.tag.find("\xB7");
    if (dot == std::string::npos) return {};
    const auto codes = k1Codes_.find(field.tag.substr(dot + 1));
    if (codes == k1Codes_.end()) return {};
    const face::TextFace face = face::designFace(field);
    face::TextMeasure& measure = ui::qtTextMeasure();
    std::string widest;
    for (const std::string& code : codes->second)
        if (measure.advance(face, code) > measure.advance(face, widest)) widest = code;
    return widest;
}

std::optional<std::string> LongestValues::of(const Form& form, const Control& field) {
    const std::string kind = kindOf(field);
    const std::string& name = form.name();
    // The rates of the configuration form are the program's own, for the year in force.
    if (kind == "COMPUTED" || kind == "OUT OF SCOPE" || kind == "K1" || name == "F1_Configure")
        return std::nullopt;
    if (kind == "ISSUER") return field.multiLine ? kPayerBlock : kCompany;
    if (kind == "TPNAME") {
        if (name == "F4_CHK") return field.index == 0 ? kCheckPayerBlock : kBankBlock;
        return field.multiLine ? kPersonBlock : kPerson;
    }
    if (kind == "MONEY" || kind == "SMONEY" || kind == "AMONEY") return amountFor(form, field);
    if (kind == "-MONEY") return "-" + amountFor(form, field);
    if (kind == "TIN") {
        // Every number differs, as the cards and the sheet require; one card in two is an ITIN.
        const int n = identifiers_++;
        const bool itin = name == "F2_SS_ITIN" && n % 2 == 1;
        std::ostringstream number;
        number << (itin ? "9127" : "1234") << 10000 + n;
        return number.str().substr(0, 9);
    }
    if (kind == "EIN") return "914234567";
    if (kind == "DATE" || kind == "DATEX") {
        if (name == "F5_TPInfo" || name == "F3_DL") return "12/31/1988";
        return "12/31/2025";
    }
    if (kind == "YEAR") return "2025";
    if (kind == "TAXYEAR1099G") return "2024";
    if (kind == "%") return "100.000000";
    if (kind == "#") return "12345678";
    if (kind == "PHONE") return kTelephone;
    if (kind == "CHECKBOX") return "X";
    if (kind == "K1HELP") return widestCode(field);
    if (kind == "1095C-14") return "1M";
    if (kind == "1095C-16") return "2H";
    if (kind == "1095C-17") return "94080";
    const auto known = untagged().find(name + " " + field.key());
    if (known != untagged().end()) return known->second;
    if (name == "F5_TPInfo") return field.index % 4 == 2 ? kListedPerson : "DAUGHTER, FULL-TIME STUDENT";
    return std::string();
}

}  // namespace lw::testing
