#include "catalogue/catalogue_table.h"

#include <iterator>

#include "text/case.h"

namespace lw {

namespace {

// The papers that say who the taxpayer is, and a blank check.
std::vector<CatalogueEntry> identityDocuments() {
    return {
        {"F5_TPInfo",
         "TPINFO",
         "TPInfo",
         "mnuIDFormsTP",
         "Taxpayer Information",
         {{"Text1", 36}, {"Text2", 9}},
         0},
        {"F3_DL", "DL", "DL", "mnuIDFormsDL", "Driver's License", {{"Text1", 10}}, 0, kNoTaxYear},
        {"F2_SS_ITIN",
         "SS_ITIN",
         "SS_ITIN",
         "mnuIDFormsSSITIN",
         "Social Security/ITIN Card(s)",
         {{"Text1", 18}},
         0,
         kNoTaxYear},
        {"F4_CHK", "CHK", "CHK", "mnuIDFormsCHK", "Blank Check", {{"Text1", 4}}, 0, kNoTaxYear},
    };
}

// Wages and gambling winnings.
std::vector<CatalogueEntry> wageStatements() {
    return {
        {"TF_W2", "W2", "W2", "mnuW2", "W-2 (Wage and Tax Statement)", {{"Text1", 46}}, 3},
        {"TF_W2G", "W2G", "W2G", "mnuW2G", "W2-G (Certain Gambling Winnings)", {{"Text1", 22}}, 1},
    };
}

// The 1099 returns of income, proceeds and distributions.
std::vector<CatalogueEntry> informationReturns1099() {
    return {
        {"TF_1099A", "1099A", "1099A", "mnu1099A", "1099-A (Abandonment of Property)", {{"Text1", 9}}, 2},
        {"TF_1099B",
         "1099B",
         "1099B",
         "mnu1099B",
         "1099-B (Proceeds from Broker and Barter Exchange Transactions)",
         {{"Text1", 26}},
         12,
         kWholeOnPaper,
         {{{2, 3}, {6, 7}, {11, 12}}, {}}},
        {"TF_1099C", "1099C", "1099C", "mnu1099C", "1099-C (Cancellation of Debt)", {{"Text1", 11}}, 2},
        {"TF_1099DIV", "1099DIV", "1099DIV", "mnu1099Div", "1099-DIV (Dividend Income)", {{"Text1", 29}}, 2},
        {"TF_1099G", "1099G", "1099G", "mnu1099G", "", {{"Text1", 19}}, 2},
        {"TF_1099INT", "1099INT", "1099INT", "mnu1099Int", "1099-INT (Interest Income)", {{"Text1", 26}}, 2},
        {"TF_1099K",
         "1099K",
         "1099K",
         "mnu1099K",
         "1099-K (Payment Card and Third Party Network Transactions)",
         {{"Text1", 29}},
         5,
         0,
         {{{3, 4}, {5, 6}}, {}}},
        {"TF_1099LTC",
         "1099LTC",
         "1099LTC",
         "mnu1099LTC",
         "1099-LTC (Long Term Care)",
         {{"Text1", 10}},
         6,
         0,
         {{{1, 2}, {4, 5}}, {}}},
        {"TF_1099MISC",
         "1099MISC",
         "1099MISC",
         "mnu1099Misc",
         "1099-MISC (Miscellaneous Income)",
         {{"Text1", 24}},
         3},
        {"TF_1099NEC",
         "1099NEC",
         "1099NEC",
         "mnu1099NEC",
         "1099-NEC (Nonemployee Compensation)",
         {{"Text1", 13}},
         2},
        {"TF_1099Q",
         "1099Q",
         "1099Q",
         "mnu1099Q",
         "1099-Q (Qualified Education Programs)",
         {{"Text1", 9}},
         6,
         0,
         {{}, {1, 2, 3}}},
        {"TF_1099R",
         "1099R",
         "1099R",
         "mnu1099R",
         "1099-R (Distributons from Pensions, Annuities, etc.)",
         {{"Text1", 30}},
         5,
         kWholeOnPaper},
        {"TF_1099SA",
         "1099SA",
         "1099SA",
         "mnu1099SA",
         "1099-SA (Health Savings Accounts)",
         {{"Text1", 9}},
         4,
         0,
         {{}, {2, 3, 4}}},
    };
}

// Mortgage interest, student loan interest and tuition.
std::vector<CatalogueEntry> statements1098() {
    return {
        {"TF_1098", "1098", "1098", "mnu1098", "1098 (Mortgage Interest Statement)", {{"Text1", 15}}, 2},
        {"TF_1098E",
         "1098E",
         "1098E",
         "mnu1098E",
         "1098-E (Student Loan Interest)",
         {{"Text1", 6}},
         2,
         kWholeOnPaper},
        {"TF_1098T",
         "1098T",
         "1098T",
         "mnu1098T",
         "1098-T (Tuition Statement)",
         {{"Text1", 11}},
         4,
         kWholeOnPaper},
    };
}

// Social Security, railroad and federal retirement benefits.
std::vector<CatalogueEntry> benefitStatements() {
    return {
        {"TF_SSA1099",
         "SSA1099",
         "SSA1099",
         "mnuSSA1099",
         "SSA 1099 (Social Security Benefit Statement)",
         {{"Text1", 17}},
         0},
        {"TF_RRB1099",
         "RRB1099",
         "RRB1099",
         "mnuRRB1099",
         "RRB-1099 and RRB-1099-R (Railroad Retirement Statement)",
         {{"Text1", 27}},
         0},
        {"TF_CSA1099R",
         "CSA1099R",
         "CSA1099R",
         "mnuCSA7",
         "CSA-1099R (Federal Retirement Benefits)",
         {{"Text1", 14}},
         0},
        {"TF_CSF1099R",
         "CSF1099R",
         "CSF1099R",
         "mnuCSA4",
         "CSF-1099R (Federal Death Benefit)",
         {{"Text1", 14}},
         0},
    };
}

// A beneficiary's, partner's or shareholder's share of an entity's income.
std::vector<CatalogueEntry> scheduleK1s() {
    return {
        {"TF_K11041",
         "K11041",
         "K11041",
         "mnuK11041",
         "Schedule K-1 (Form 1041) Beneficiary's Share of Income, Deductions, Credits. etc.",
         {{"Text1", 8}, {"Text2", 15}, {"Text3", 15}, {"Text4", 19}, {"Text5", 19}},
         6,
         0,
         {{{4, 5}}, {}}},
        {"TF_K11065",
         "K11065",
         "K11065",
         "mnuK11065",
         "Schedule K-1 (Form 1065) Partner's Share of Income, Deductions, Credits. etc.",
         {{"Text1", 30}, {"Text2", 24}, {"Text3", 24}, {"Text4", 20}, {"Text5", 20}},
         17,
         0,
         {{{3, 4}, {5, 6}, {9, 10}, {13, 14}}, {}}},
        {"TF_K11120S",
         "K11120S",
         "K11120S",
         "mnuK11120S",
         "Schedule K-1 (Form 1120-S) Shareholder's Share of Income, Deductions, Credits. etc.",
         {{"Text1", 14}, {"Text2", 26}, {"Text3", 26}, {"Text4", 26}, {"Text5", 26}},
         4},
    };
}

// Health coverage and the offers of it.
std::vector<CatalogueEntry> healthCoverageForms() {
    return {
        {"TF_1095A", "1095A", "1095A", "mnu1095A", "1095-A (Parts I, II and III)", {{"Text1", 77}}, 2},
        {"TF_1095B", "1095B", "1095B", "mnu1095B", "Form 1095-B (Health Coverage)", {{"Text1", 34}}, 80},
        {"TF_1095C",
         "1095C",
         "1095C",
         "mnu1095C",
         "Form 1095-C (Employer-Provided Health Insurance Offer/Coverage)",
         {{"Text1", 80}},
         81},
    };
}

// The rates and the printer.
std::vector<CatalogueEntry> configurationForm() {
    return {
        {"F1_Configure",
         "CONFIGURE",
         "Configure",
         "mnuControlConfigure",
         "Configure Social Security/Medicare Withholding Rates, Printer",
         {},
         0},
    };
}

}  // namespace

const std::vector<CatalogueEntry>& catalogue() {
    // One table, its groups in this order: the forms are registered and looked up in it.
    static const std::vector<CatalogueEntry> table = [] {
        std::vector<CatalogueEntry> all;
        for (auto group : {identityDocuments, wageStatements, informationReturns1099, statements1098,
                           benefitStatements, scheduleK1s, healthCoverageForms, configurationForm}) {
            std::vector<CatalogueEntry> entries = group();
            all.insert(all.end(), std::make_move_iterator(entries.begin()),
                       std::make_move_iterator(entries.end()));
        }
        return all;
    }();
    return table;
}

const CatalogueEntry* findCatalogueEntry(std::string_view formName) {
    for (const CatalogueEntry& entry : catalogue())
        if (text::equalsNoCase(entry.form, formName)) return &entry;
    return nullptr;
}

std::string formKeyOf(std::string_view formName) {
    return formName.size() > 3 ? text::toUpper(formName.substr(3)) : std::string();
}

bool formKeyHasTaxYear(std::string_view formKey) {
    for (const CatalogueEntry& entry : catalogue())
        if (entry.formKey == formKey) return (entry.traits & kNoTaxYear) == 0;
    return true;
}

const CheckRules& checkRulesOf(std::string_view formName) {
    static const CheckRules toggleOnly;
    const CatalogueEntry* entry = findCatalogueEntry(formName);
    return entry ? entry->checks : toggleOnly;
}

bool formHasTrait(std::string_view formName, FormTrait trait) {
    const CatalogueEntry* entry = findCatalogueEntry(formName);
    return entry && (entry->traits & trait) != 0;
}

}  // namespace lw
