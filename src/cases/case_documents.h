#pragma once
// The documents of a case, each written as the operator's steps that fill it on its form and save it.

#include <string>

#include "cases/case_lists.h"
#include "cases/case_profiles.h"
#include "cases/dice.h"
#include "cases/household.h"
#include "cases/operator_script.h"

namespace lw::cases {

// What every document of one case is made with.
struct CaseWriting {
    const Household& household;
    const CaseLists& lists;
    Dice& dice;
    OperatorScript& script;
    std::string folder;           // where the documents are saved
    long long socialSecurityMax;  // the year's wage base, whole dollars
};

// The taxpayer sheet: everyone of the household, saved, so that Load TP fills the documents after it.
void writeTaxpayerSheet(CaseWriting& writing);
// One document of a kind; `ordinal` counts the documents of that kind from 0 (the second W-2 of a
// couple is the spouse's).
void writeDocument(CaseWriting& writing, const DocumentRule& rule, int ordinal);

// How many documents of a kind one household can hold: Social Security and the railroad board send each
// person on the sheet one statement a year; the cards, the license, the check and the marketplace's
// statement (which covers everyone) come once a case. Any other kind, as many as the profile asks.
long long mostDocuments(DocumentKind kind, const Household& household);

// The pieces the document writers share.
namespace pieces {
// 1 for the taxpayer, 2 for the spouse: alternates when a spouse is on the sheet.
int whoseDocument(const Household& household, int ordinal);
const Person& personOf(const Household& household, int which);
long long amountIn(Dice& dice, const Range& dollars);
// A share of an amount in percent, in cents.
long long percentOf(long long cents, int percent);
// States that tax no wages leave their state boxes empty.
bool taxesWages(const std::string& state);
std::string dateIn(int year, int month, int day);

// Where a payer's name block and number go on its form, and whether the block ends in its telephone.
struct PayerFields {
    const char* block;
    const char* number;
    bool telephone;
};
// Opens the form, lets Load TP fill the part of the person whose document it is, and fills the payer's
// block and number.
void startPayerDocument(CaseWriting& w, const char* menuItem, int ordinal, const Organisation& payer,
                        PayerFields fields);
}  // namespace pieces

// The writer of each kind, one file per family of documents.
using DocumentWriter = void (*)(CaseWriting&, const DocumentRule&, int ordinal);
void writeW2(CaseWriting&, const DocumentRule&, int);
void writeW2G(CaseWriting&, const DocumentRule&, int);
void writeNonemployee(CaseWriting&, const DocumentRule&, int);
void writePaymentCard(CaseWriting&, const DocumentRule&, int);
void writeUnemployment(CaseWriting&, const DocumentRule&, int);
void writeInterest(CaseWriting&, const DocumentRule&, int);
void writeDividends(CaseWriting&, const DocumentRule&, int);
void writePartnerK1(CaseWriting&, const DocumentRule&, int);
void writePension(CaseWriting&, const DocumentRule&, int);
void writeFederalAnnuity(CaseWriting&, const DocumentRule&, int);
void writeSocialSecurity(CaseWriting&, const DocumentRule&, int);
void writeRailroad(CaseWriting&, const DocumentRule&, int);
void writeMortgage(CaseWriting&, const DocumentRule&, int);
void writeStudentLoan(CaseWriting&, const DocumentRule&, int);
void writeTuition(CaseWriting&, const DocumentRule&, int);
void writeMarketplace(CaseWriting&, const DocumentRule&, int);
void writeCards(CaseWriting&, const DocumentRule&, int);
void writeLicense(CaseWriting&, const DocumentRule&, int);
void writeCheck(CaseWriting&, const DocumentRule&, int);

}  // namespace lw::cases
