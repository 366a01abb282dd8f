#include "cases/case_profiles.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "store/inf_store.h"
#include "text/case.h"
#include "text/pieces.h"

namespace lw::cases {

namespace {

struct KindKey {
    DocumentKind kind;
    const char* key;
};

constexpr KindKey kKinds[] = {
    {DocumentKind::W2, "W2"},
    {DocumentKind::W2G, "W2G"},
    {DocumentKind::Interest, "INT"},
    {DocumentKind::Dividends, "DIV"},
    {DocumentKind::Nonemployee, "NEC"},
    {DocumentKind::PaymentCard, "K"},
    {DocumentKind::Pension, "R"},
    {DocumentKind::FederalAnnuity, "CSA"},
    {DocumentKind::SocialSecurity, "SSA"},
    {DocumentKind::Railroad, "RRB"},
    {DocumentKind::Unemployment, "G"},
    {DocumentKind::Mortgage, "1098"},
    {DocumentKind::StudentLoan, "1098E"},
    {DocumentKind::Tuition, "1098T"},
    {DocumentKind::Marketplace, "1095A"},
    {DocumentKind::PartnerK1, "K1"},
    {DocumentKind::Cards, "CARDS"},
    {DocumentKind::License, "DL"},
    {DocumentKind::Check, "CHECK"},
};

// More of one document than any household holds: a count above it is a slip of the trainer's hand,
// which would otherwise fill the disk with documents.
constexpr long long kMostOfADocument = 20;

// The section names of an INF file, in the order they stand.
std::vector<std::string> sectionNames(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + file);
    std::vector<std::string> names;
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        line = text::trim(line);
        if (line.size() > 2 && line.front() == '[' && line.back() == ']')
            names.push_back(line.substr(1, line.size() - 2));
    }
    return names;
}

Range parseRange(const std::string& value, const std::string& where) {
    const std::vector<std::string> ends = text::split(value, "-");
    auto number = [&](const std::string& piece) {
        const std::string digits = text::trim(piece);
        if (digits.empty() || digits.size() > 12 ||
            digits.find_first_not_of("0123456789") != std::string::npos)
            throw std::runtime_error(where + ": \"" + value + "\" is not a number or a range lo-hi");
        return std::stoll(digits);
    };
    if (ends.size() == 1) return {number(ends[0]), number(ends[0])};
    if (ends.size() != 2) throw std::runtime_error(where + ": \"" + value + "\" is not a range lo-hi");
    Range range{number(ends[0]), number(ends[1])};
    if (range.hi < range.lo) throw std::runtime_error(where + ": the range \"" + value + "\" runs backwards");
    return range;
}

std::string valueOf(const std::string& section, const std::string& key, const std::string& file) {
    return store::readInfValue(section, key, "", file);
}

}  // namespace

const char* documentKey(DocumentKind kind) {
    for (const KindKey& entry : kKinds)
        if (entry.kind == kind) return entry.key;
    return "";
}

const std::vector<DocumentKind>& everyDocumentKind() {
    static const std::vector<DocumentKind> kinds = [] {
        std::vector<DocumentKind> all;
        for (const KindKey& entry : kKinds) all.push_back(entry.kind);
        return all;
    }();
    return kinds;
}

std::vector<Profile> readProfiles(const std::string& file) {
    std::vector<Profile> profiles;
    for (const std::string& section : sectionNames(file)) {
        const std::string where = file + " [" + section + "]";
        Profile profile;
        profile.name = section;
        profile.title = valueOf(section, "Title", file);
        if (profile.title.empty()) profile.title = section;
        auto rangeOf = [&](const char* key, Range fallback) {
            const std::string value = valueOf(section, key, file);
            return value.empty() ? fallback : parseRange(value, where + " " + key);
        };
        const Range spouse = rangeOf("Spouse", {0, 0});
        profile.spousePercent = static_cast<int>(std::min<long long>(spouse.lo, 100));
        profile.dependents = rangeOf("Dependents", {0, 0});
        profile.dependents.hi = std::min<long long>(profile.dependents.hi, 7);
        profile.dependents.lo = std::min(profile.dependents.lo, profile.dependents.hi);
        profile.ages = rangeOf("Ages", {25, 60});
        profile.childAges = rangeOf("ChildAges", {0, 17});
        for (const KindKey& entry : kKinds) {
            const std::string count = valueOf(section, entry.key, file);
            if (count.empty()) continue;
            DocumentRule rule{entry.kind, parseRange(count, where + " " + entry.key), {0, 0}};
            if (rule.count.hi > kMostOfADocument)
                throw std::runtime_error(where + " " + entry.key + ": \"" + count + "\" asks for more than " +
                                         std::to_string(kMostOfADocument) + " of a document");
            const std::string amountKey = std::string(entry.key) + ".Amount";
            const std::string wagesKey = std::string(entry.key) + ".Wages";
            std::string amount = valueOf(section, amountKey, file);
            if (amount.empty()) amount = valueOf(section, wagesKey, file);
            if (!amount.empty()) rule.amount = parseRange(amount, where + " " + amountKey);
            const std::string shareKey = std::string(entry.key) + ".WorkShare";
            if (const std::string share = valueOf(section, shareKey, file); !share.empty())
                rule.workShare = static_cast<int>(
                    std::clamp<long long>(parseRange(share, where + " " + shareKey).lo, 1, 100));
            profile.documents.push_back(rule);
        }
        profiles.push_back(profile);
    }
    if (profiles.empty()) throw std::runtime_error(file + " holds no profile");
    return profiles;
}

}  // namespace lw::cases
