// Documents of what a household paid: 1098, 1098-E, 1098-T and the marketplace's 1095-A.
#include <algorithm>

#include "cases/case_documents.h"
#include "cases/fake_numbers.h"

namespace lw::cases {

using namespace pieces;

void writeMortgage(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const Household& h = w.household;
    const Organisation lender = makeOrganisation(w.dice.pick(w.lists.lenders), w.lists, w.dice);
    const long long interest = amountIn(w.dice, rule.amount);
    startPayerDocument(w, "mnu1098", ordinal, lender, {"Text1(0)", "Text1(1)", true});
    w.script.fill("Text1(8)", w.dice.digits(10));
    w.script.fill("Text1(3)", typedAmount(interest));
    // At five to seven percent, the principal outstanding is some fifteen to twenty times the interest.
    w.script.fill("Text1(10)", typedAmount(interest * w.dice.between(14, 20)));
    w.script.fill("Text1(11)", dateIn(h.taxYear - static_cast<int>(w.dice.between(1, 12)),
                                       static_cast<int>(w.dice.between(1, 12)), static_cast<int>(w.dice.between(1, 28))));
    w.script.fill("Text1(14)", "1");
    w.script.saveInto(w.folder);
}

void writeStudentLoan(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const Organisation servicer = makeOrganisation(w.dice.pick(w.lists.servicers), w.lists, w.dice);
    startPayerDocument(w, "mnu1098E", ordinal, servicer, {"Text1(0)", "Text1(1)", true});
    w.script.fill("Text1(5)", w.dice.digits(10));
    w.script.fill("Text1(3)", typedAmount(amountIn(w.dice, rule.amount)));
    w.script.saveInto(w.folder);
}

void writeTuition(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const Organisation school = makeOrganisation(w.dice.pick(w.lists.schools), w.lists, w.dice);
    const long long paid = amountIn(w.dice, rule.amount);
    startPayerDocument(w, "mnu1098T", ordinal, school, {"Text1(0)", "Text1(3)", true});
    w.script.fill("Text1(1)", typedAmount(paid));
    if (w.dice.chance(40)) w.script.fill("Text1(7)", typedAmount(percentOf(paid, static_cast<int>(w.dice.between(10, 60)))));
    w.script.saveInto(w.folder);
}

void writeMarketplace(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const Household& h = w.household;
    const long long premium = amountIn(w.dice, rule.amount);
    const long long benchmark = premium + percentOf(premium, static_cast<int>(w.dice.between(-10, 15)));
    // The credit paid in advance never exceeds the premium it pays towards.
    const long long advance =
        std::min(premium, percentOf(benchmark, static_cast<int>(w.dice.between(40, 90))));
    w.script.openForm("mnu1095A");
    w.script.loadTaxpayer(1);
    w.script.fill("Text1(0)", std::string(h.town.state == "CA" ? "06" : "17") + "-" + w.dice.digits(7));
    w.script.fill("Text1(1)", w.dice.digits(9));
    w.script.fill("Text1(2)", w.dice.pick(w.lists.insurers));
    w.script.fill("Text1(9)", dateIn(h.taxYear, 1, 1));
    w.script.fill("Text1(10)", dateIn(h.taxYear, 12, 31));
    // Everyone of the household is covered the whole year: rows 16 to 20 hold up to five of them. Load TP
    // has put the taxpayers in the first rows; the children follow.
    std::vector<const Person*> covered;
    for (const Person& child : h.dependents) covered.push_back(&child);
    const std::size_t first = h.hasSpouse ? 2 : 1;
    for (std::size_t row = 0; row < first + covered.size() && row < 5; ++row) {
        const int start = 13 + static_cast<int>(row) * 5;
        auto field = [start](int offset) { return "Text1(" + std::to_string(start + offset) + ")"; };
        if (row >= first) {
            const Person& person = *covered[row - first];
            w.script.fill(field(0), person.first + " " + person.last);
            w.script.fill(field(1), typedDigits(person.number));
            w.script.fill(field(2), person.birthDate);
        }
        w.script.fill(field(3), dateIn(h.taxYear, 1, 1));
        w.script.fill(field(4), dateIn(h.taxYear, 12, 31));
    }
    for (int month = 0; month < 12; ++month) {
        w.script.fill("Text1(" + std::to_string(38 + month) + ")", typedAmount(premium));
        w.script.fill("Text1(" + std::to_string(51 + month) + ")", typedAmount(benchmark));
        w.script.fill("Text1(" + std::to_string(64 + month) + ")", typedAmount(advance));
    }
    w.script.saveInto(w.folder);
    (void)ordinal;
}

}  // namespace lw::cases
