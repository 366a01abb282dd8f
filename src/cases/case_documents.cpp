#include "cases/case_documents.h"
#include "cases/operator_script.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace lw::cases {

namespace pieces {

int whoseDocument(const Household& household, int ordinal) {
    return household.hasSpouse && ordinal % 2 == 1 ? 2 : 1;
}

const Person& personOf(const Household& household, int which) {
    return which == 2 ? household.spouse : household.taxpayer;
}

long long amountIn(Dice& dice, const Range& dollars) { return dice.centsBetween(dollars.lo, dollars.hi); }

long long percentOf(long long cents, int percent) { return cents * percent / 100; }

bool taxesWages(const std::string& state) {
    static const char* const none[] = {"AK", "FL", "NV", "NH", "SD", "TN", "TX", "WA", "WY"};
    return std::none_of(std::begin(none), std::end(none), [&](const char* s) { return state == s; });
}

std::string dateIn(int year, int month, int day) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%02d/%02d/%04d", month, day, year);
    return buffer;
}

void startPayerDocument(CaseWriting& w, const char* menuItem, int ordinal, const Organisation& payer,
                        PayerFields fields) {
    w.script.openForm(menuItem);
    w.script.loadTaxpayer(whoseDocument(w.household, ordinal));
    w.script.fill(fields.block, payer.block(fields.telephone));
    w.script.fill(fields.number, typedDigits(payer.ein));
}

}  // namespace pieces

long long mostDocuments(DocumentKind kind, const Household& household) {
    switch (kind) {
        case DocumentKind::SocialSecurity:
        case DocumentKind::Railroad:
            return household.hasSpouse ? 2 : 1;
        case DocumentKind::Cards:
        case DocumentKind::License:
        case DocumentKind::Check:
        case DocumentKind::Marketplace:
            return 1;
        default:
            return std::numeric_limits<long long>::max();
    }
}

void writeDocument(CaseWriting& writing, const DocumentRule& rule, int ordinal) {
    static const struct {
        DocumentKind kind;
        DocumentWriter writer;
    } writers[] = {
        {DocumentKind::W2, writeW2},
        {DocumentKind::W2G, writeW2G},
        {DocumentKind::Interest, writeInterest},
        {DocumentKind::Dividends, writeDividends},
        {DocumentKind::Nonemployee, writeNonemployee},
        {DocumentKind::PaymentCard, writePaymentCard},
        {DocumentKind::Pension, writePension},
        {DocumentKind::FederalAnnuity, writeFederalAnnuity},
        {DocumentKind::SocialSecurity, writeSocialSecurity},
        {DocumentKind::Railroad, writeRailroad},
        {DocumentKind::Unemployment, writeUnemployment},
        {DocumentKind::Mortgage, writeMortgage},
        {DocumentKind::StudentLoan, writeStudentLoan},
        {DocumentKind::Tuition, writeTuition},
        {DocumentKind::Marketplace, writeMarketplace},
        {DocumentKind::PartnerK1, writePartnerK1},
        {DocumentKind::Cards, writeCards},
        {DocumentKind::License, writeLicense},
        {DocumentKind::Check, writeCheck},
    };
    for (const auto& entry : writers)
        if (entry.kind == rule.kind) return entry.writer(writing, rule, ordinal);
}

}  // namespace lw::cases
