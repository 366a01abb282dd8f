#include "cases/answer_key.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

#include "store/file_bytes.h"
#include "store/record_line.h"
#include "text/currency_text.h"

namespace lw::cases {

namespace {

namespace fs = std::filesystem;

struct FigureSource {
    const char* prefix;  // the first field of the document's line
    const char* key;     // the field that holds the amount
    Figure figure;
};

// Where each figure stands in the saved lines: W-2 box 1 is Text1(2), stored as TXT2, and so on.
constexpr FigureSource kSources[] = {
    {"W-2", "TXT2", Figure::Wages},
    {"W-2", "TXT3", Figure::FederalWithheld},
    {"W-2", "TXT5", Figure::SocialSecurityWages},
    {"W-2", "TXT7", Figure::MedicareWages},
    {"W-2G", "TXT1", Figure::Gambling},
    {"W-2G", "TXT4", Figure::FederalWithheld},
    {"1099-INT", "TXT2", Figure::TaxableInterest},
    {"1099-INT", "TXT8", Figure::FederalWithheld},
    {"1099-DIV", "TXT1", Figure::OrdinaryDividends},
    {"1099-DIV", "TXT2", Figure::QualifiedDividends},
    {"1099-DIV", "TXT11", Figure::FederalWithheld},
    {"1099-NEC", "TXT5", Figure::Nonemployee},
    {"1099-NEC", "TXT6", Figure::FederalWithheld},
    {"1099-K", "TXT6", Figure::PaymentCardGross},
    {"1099-K", "TXT10", Figure::FederalWithheld},
    {"1099-R", "TXT1", Figure::PensionsGross},
    {"1099-R", "TXT2", Figure::PensionsTaxable},
    {"1099-R", "TXT6", Figure::FederalWithheld},
    {"CSA", "TXT6", Figure::PensionsGross},
    {"CSA", "TXT7", Figure::PensionsTaxable},
    {"CSA", "TXT8", Figure::FederalWithheld},
    {"SSA", "TXT4", Figure::SocialSecurityNet},
    {"SSA", "TXT13", Figure::FederalWithheld},
    {"RRB", "TXT6", Figure::SocialSecurityNet},
    {"RRB", "TXT11", Figure::FederalWithheld},
    {"1099-G", "TXT1", Figure::Unemployment},
    {"1099-G", "TXT6", Figure::FederalWithheld},
    {"1098", "TXT3", Figure::MortgageInterest},
    {"1098-E", "TXT3", Figure::StudentLoanInterest},
    {"1098-T", "TXT1", Figure::Tuition},
    {"1095-A", "TXT50", Figure::MarketplacePremium},
    {"1095-A", "TXT63", Figure::MarketplaceBenchmark},
    {"1095-A", "TXT76", Figure::MarketplaceAdvance},
    {"K11065", "TX30", Figure::PartnershipIncome},
    // A partner's share of interest (box 5) and dividends (box 6a) goes to the return with the others.
    {"K11065", "TX36", Figure::TaxableInterest},
    {"K11065", "TX37", Figure::OrdinaryDividends},
};

constexpr const char* kTitles[] = {
    "Wages (W-2 box 1)", "Federal income tax withheld", "Social security wages", "Medicare wages",
    "Taxable interest", "Ordinary dividends", "Qualified dividends", "Nonemployee compensation",
    "1099-K gross payments", "Gambling winnings", "Pensions and annuities, gross",
    "Pensions and annuities, taxable", "Social security benefits (net, box 5)", "Unemployment compensation",
    "Mortgage interest", "Student loan interest", "Tuition paid (1098-T box 1)",
    "Marketplace premiums (1095-A)", "Benchmark silver plan premiums (1095-A)",
    "Advance premium tax credit (1095-A)", "Partnership ordinary income (K-1 box 1)",
};

long long centsOf(const std::string& value, const std::string& file) {
    try {
        const auto raw = text::currencyFromText(value).raw();
        return raw / (text::Currency::kScale / 100);
    } catch (const std::exception&) {
        throw std::runtime_error(file + ": \"" + value + "\" is not an amount");
    }
}

std::string amount(long long cents) {
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%s%lld.%02lld", cents < 0 ? "-" : "", std::llabs(cents) / 100,
                  std::llabs(cents) % 100);
    return buffer;
}

std::string csvField(const std::string& text) {
    if (text.find_first_of(",\"") == std::string::npos) return text;
    std::string quoted = "\"";
    for (char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

}  // namespace

const char* figureTitle(Figure figure) { return kTitles[static_cast<int>(figure)]; }

CaseAnswers readCaseAnswers(const std::string& caseFolder, const std::string& extension) {
    CaseAnswers answers;
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(caseFolder))
        if (entry.is_regular_file() && entry.path().extension() == extension) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    for (const fs::path& path : files) {
        std::string bytes;
        if (!store::readFileBytes(path, bytes)) throw std::runtime_error("cannot read " + path.string());
        const std::vector<std::string> fields = store::splitRecordLine(store::firstRecordLine(bytes));
        if (fields.empty()) throw std::runtime_error(path.string() + " holds no document");
        ++answers.documents;
        for (std::size_t i = 2; i < fields.size(); ++i) {
            const auto field = store::parseRecordField(fields[i]);
            if (!field || field->value.empty()) continue;
            for (const FigureSource& source : kSources)
                if (fields[0] == source.prefix && field->key == source.key)
                    answers.cents[static_cast<int>(source.figure)] += centsOf(field->value, path.string());
        }
    }
    return answers;
}

std::string answersCsv(const std::vector<CaseAnswers>& cases) {
    std::string csv = "Case,Profile,Filing status,Documents";
    for (int f = 0; f < static_cast<int>(Figure::Count); ++f) csv += "," + csvField(kTitles[f]);
    csv += "\n";
    for (const CaseAnswers& c : cases) {
        csv += c.caseName + "," + csvField(c.profile) + "," + csvField(c.filingStatus) + "," +
               std::to_string(c.documents);
        for (long long cents : c.cents) csv += "," + amount(cents);
        csv += "\n";
    }
    return csv;
}

std::string answersMarkdown(const std::vector<CaseAnswers>& cases, int taxYear) {
    std::string md = "# Answer key, tax year " + std::to_string(taxYear) + "\n\n";
    md += "Each figure is the sum of the case's documents as saved. Figures that are zero are left out.\n";
    for (const CaseAnswers& c : cases) {
        md += "\n## " + c.caseName + ": " + c.profile + "\n\n";
        md += "Filing status: " + c.filingStatus + ". Documents: " + std::to_string(c.documents) + ".\n\n";
        md += "| Figure | Amount |\n|---|---:|\n";
        for (int f = 0; f < static_cast<int>(Figure::Count); ++f)
            if (c.cents[f] != 0) md += std::string("| ") + kTitles[f] + " | " + amount(c.cents[f]) + " |\n";
    }
    return md;
}

}  // namespace lw::cases
