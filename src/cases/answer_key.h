#pragma once
// The answer key of a class set: for each case, the figures a student carries to the return, added up
// from what the saved documents hold.

#include <map>
#include <string>
#include <vector>

namespace lw::cases {

// The figures of the key, in the order of its columns.
enum class Figure { Wages, FederalWithheld, SocialSecurityWages, MedicareWages, TaxableInterest,
    OrdinaryDividends, QualifiedDividends, Nonemployee, PaymentCardGross, Gambling, PensionsGross,
    PensionsTaxable, SocialSecurityNet, Unemployment, MortgageInterest, StudentLoanInterest, Tuition,
    MarketplacePremium, MarketplaceBenchmark, MarketplaceAdvance, PartnershipIncome, Count };

const char* figureTitle(Figure figure);

struct CaseAnswers {
    std::string caseName;     // case-01
    std::string profile;      // the profile's name
    std::string filingStatus;
    long long cents[static_cast<int>(Figure::Count)] = {};
    int documents = 0;
};

// Reads every saved document of a case folder (the record lines of the edition's extension) and adds
// up their figures. A line the key cannot read throws std::runtime_error naming the file.
CaseAnswers readCaseAnswers(const std::string& caseFolder, const std::string& extension);

// answers.csv: a header line and one line per case, amounts with two decimals and no separators.
std::string answersCsv(const std::vector<CaseAnswers>& cases);
// answers.md: the same as a table per case, to print for the trainer.
std::string answersMarkdown(const std::vector<CaseAnswers>& cases, int taxYear);

}  // namespace lw::cases
