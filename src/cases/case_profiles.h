#pragma once
// The kinds of household a class set is made of, read from CaseProfiles.inf: who is on the sheet and
// which documents come with them, with the ranges of their amounts.

#include <map>
#include <string>
#include <vector>

namespace lw::cases {

struct Range {
    long long lo = 0;
    long long hi = 0;
};

// The documents a case can hold, by the key its profile names them with.
enum class DocumentKind { W2, W2G, Interest, Dividends, Nonemployee, PaymentCard, Pension, FederalAnnuity,
    SocialSecurity, Railroad, Unemployment, Mortgage, StudentLoan, Tuition, Marketplace, PartnerK1, Cards,
    License, Check };

struct DocumentRule {
    DocumentKind kind;
    Range count;
    Range amount;   // whole dollars
    int workShare = 100;  // W2: the percent of full-time pay a job of the profile pays at the least
};

struct Profile {
    std::string name;
    std::string title;
    int spousePercent = 0;
    Range dependents;
    Range ages;
    Range childAges{0, 17};
    std::vector<DocumentRule> documents;  // in the order the file's keys are known, not as written
};

// The profile key of a kind ("W2", "INT", "1095A" ...).
const char* documentKey(DocumentKind kind);
const std::vector<DocumentKind>& everyDocumentKind();

// Every profile of the file, in the order they stand. Throws std::runtime_error with the file, the
// profile and the line when a value is not a range, a range runs backwards, or no profile is there.
std::vector<Profile> readProfiles(const std::string& file);

}  // namespace lw::cases
