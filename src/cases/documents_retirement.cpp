// Documents of retirement: 1099-R, CSA 1099-R, SSA-1099 and RRB-1099.
#include "cases/case_documents.h"
#include "cases/fake_numbers.h"

namespace lw::cases {

using namespace pieces;

void writePension(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const Organisation plan = makeOrganisation(w.dice.pick(w.lists.pensions), w.lists, w.dice);
    const long long gross = amountIn(w.dice, rule.amount);
    startPayerDocument(w, "mnu1099R", ordinal, plan, {"Text1(0)", "Text1(3)", true});
    w.script.fill("Text1(1)", typedAmount(gross));
    w.script.fill("Text1(2)", typedAmount(gross));
    w.script.fill("Text1(6)", typedAmount(percentOf(gross, static_cast<int>(w.dice.between(0, 15)))));
    w.script.fill("Text1(10)", "7");
    w.script.saveInto(w.folder);
}

void writeFederalAnnuity(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const long long gross = amountIn(w.dice, rule.amount);
    // The contributions made while working come back tax free, a little each year.
    const long long recovered = percentOf(gross, static_cast<int>(w.dice.between(2, 9)));
    w.script.openForm("mnuCSA7");
    w.script.loadTaxpayer(whoseDocument(w.household, ordinal));
    w.script.fill("Text1(2)", "CSA" + w.dice.digits(7));
    w.script.fill("Text1(5)", typedAmount(recovered * 20));
    w.script.fill("Text1(6)", typedAmount(gross));
    w.script.fill("Text1(7)", typedAmount(gross - recovered));
    w.script.fill("Text1(8)", typedAmount(percentOf(gross, static_cast<int>(w.dice.between(5, 15)))));
    w.script.saveInto(w.folder);
}

void writeSocialSecurity(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const long long benefits = amountIn(w.dice, rule.amount);
    w.script.openForm("mnuSSA1099");
    w.script.loadTaxpayer(whoseDocument(w.household, ordinal));
    w.script.fill("Text1(2)", typedAmount(benefits));  // boxes 5 and the paid amount follow from it
    if (w.dice.chance(35)) w.script.fill("Text1(13)", typedAmount(percentOf(benefits, 7)));
    w.script.saveInto(w.folder);
}

void writeRailroad(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const long long benefits = amountIn(w.dice, rule.amount);
    const int whose = whoseDocument(w.household, ordinal);
    w.script.openForm("mnuRRB1099");
    w.script.loadTaxpayer(whose);
    // The board's claim number is a letter before the number of the person it pays: made of the
    // recipient's own number, it belongs to nobody either.
    w.script.fill("Text1(1)", "A" + typedDigits(personOf(w.household, whose).number) + " 10");
    w.script.fill("Text1(4)", typedAmount(benefits));  // box 5 follows from it
    if (w.dice.chance(35)) w.script.fill("Text1(11)", typedAmount(percentOf(benefits, 10)));
    w.script.saveInto(w.folder);
}

}  // namespace lw::cases
