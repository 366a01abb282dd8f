// Documents of savings and investments: 1099-INT, 1099-DIV and the partner's Schedule K-1.
#include "cases/case_documents.h"
#include "cases/fake_numbers.h"

namespace lw::cases {

using namespace pieces;

void writeInterest(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const Organisation bank = makeOrganisation(w.dice.pick(w.lists.banks), w.lists, w.dice);
    startPayerDocument(w, "mnu1099Int", ordinal, bank, {"Text1(0)", "Text1(4)", true});
    w.script.fill("Text1(14)", w.dice.digits(10));
    w.script.fill("Text1(2)", typedAmount(amountIn(w.dice, rule.amount)));
    w.script.saveInto(w.folder);
}

void writeDividends(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const Organisation fund = makeOrganisation(w.dice.pick(w.lists.funds), w.lists, w.dice);
    const long long ordinary = amountIn(w.dice, rule.amount);
    startPayerDocument(w, "mnu1099Div", ordinal, fund, {"Text1(0)", "Text1(5)", true});
    w.script.fill("Text1(17)", w.dice.digits(9));
    w.script.fill("Text1(1)", typedAmount(ordinary));
    w.script.fill("Text1(2)", typedAmount(percentOf(ordinary, static_cast<int>(w.dice.between(55, 95)))));
    if (w.dice.chance(50)) w.script.fill("Text1(3)", typedAmount(percentOf(ordinary, static_cast<int>(w.dice.between(5, 40)))));
    if (w.dice.chance(30)) w.script.fill("Text1(13)", typedAmount(percentOf(ordinary, 2)));
    w.script.saveInto(w.folder);
}

void writePartnerK1(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const Organisation partnership = makeOrganisation(w.dice.pick(w.lists.partnerships), w.lists, w.dice);
    const long long ordinary = amountIn(w.dice, rule.amount);
    const std::string share = std::to_string(w.dice.between(1, 24)) + "." + w.dice.digits(2);
    startPayerDocument(w, "mnuK11065", ordinal, partnership, {"Text1(3)", "Text1(2)", false});
    for (int column : {10, 11, 12, 13, 14, 15}) w.script.fill("Text1(" + std::to_string(column) + ")", share);
    w.script.fill("Text3(0)", typedAmount(ordinary));
    w.script.fill("Text3(6)", typedAmount(percentOf(ordinary, static_cast<int>(w.dice.between(1, 6)))));
    w.script.fill("Text3(7)", typedAmount(percentOf(ordinary, static_cast<int>(w.dice.between(1, 8)))));
    w.script.saveInto(w.folder);
}

}  // namespace lw::cases
