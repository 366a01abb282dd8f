// Documents of work and its substitutes: W-2, W-2G, 1099-NEC, 1099-K and 1099-G.
#include "cases/case_documents.h"
#include "cases/fake_numbers.h"

namespace lw::cases {

using namespace pieces;

void writeW2(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const Household& h = w.household;
    // The employer is one whose occupation pays within the profile's range, where there is one; a
    // profile of part-time work (a student's) counts a job from the share of its full-time pay it asks.
    const auto lowest = [&](const Employer& e) { return e.lowestPay * rule.workShare / 100; };
    std::vector<Employer> fitting;
    for (const Employer& e : w.lists.employers)
        if (lowest(e) <= rule.amount.hi && e.highestPay >= rule.amount.lo) fitting.push_back(e);
    const Employer& employer = w.dice.pick(fitting.empty() ? w.lists.employers : fitting);
    const Range pay{std::max(rule.amount.lo, lowest(employer)), std::min(rule.amount.hi, employer.highestPay)};
    Organisation company = makeOrganisation(employer.name, w.lists, w.dice);
    // Most people work near home.
    if (w.dice.chance(85)) company.moveTo(h.town);
    const long long gross = amountIn(w.dice, pay.hi >= pay.lo ? pay : rule.amount);
    // Some employees put part of their pay into a 401(k): it leaves box 1 but not boxes 3 and 5.
    const long long deferral = w.dice.chance(45) ? percentOf(gross, static_cast<int>(w.dice.between(3, 10))) : 0;
    const long long wages = gross - deferral;
    const long long base = w.socialSecurityMax * 100;

    startPayerDocument(w, "mnuW2", ordinal, company, {"Text1(4)", "Text1(1)", false});
    w.script.fill("Text1(11)", w.dice.digits(6));
    w.script.fill("Text1(2)", typedAmount(wages));
    w.script.fill("Text1(3)", typedAmount(percentOf(wages, static_cast<int>(w.dice.between(6, 14)))));
    w.script.fill("Text1(5)", typedAmount(std::min(gross, base)));  // box 4 follows from it
    w.script.fill("Text1(7)", typedAmount(gross));                  // box 6 follows from it
    if (deferral > 0) {
        w.script.fill("Text1(15)", "D");
        w.script.fill("Text1(16)", typedAmount(deferral));
        w.script.click("Check(1)");
    }
    if (taxesWages(company.town.state)) {
        w.script.fill("Text1(31)", company.town.state);
        w.script.fill("Text1(32)", w.dice.digits(8));
        w.script.fill("Text1(33)", typedAmount(wages));
        w.script.fill("Text1(34)", typedAmount(percentOf(wages, static_cast<int>(w.dice.between(2, 5)))));
    }
    w.script.saveInto(w.folder);
}

void writeW2G(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const Organisation casino = makeOrganisation(w.dice.pick(w.lists.casinos), w.lists, w.dice);
    const long long winnings = amountIn(w.dice, rule.amount);
    startPayerDocument(w, "mnuW2G", ordinal, casino, {"Text1(0)", "Text1(9)", false});
    w.script.fill("Text1(10)", casino.telephone);
    w.script.fill("Text1(1)", typedAmount(winnings));
    w.script.fill("Text1(2)", dateIn(w.household.taxYear, static_cast<int>(w.dice.between(1, 12)),
                                      static_cast<int>(w.dice.between(1, 28))));
    w.script.fill("Text1(3)", w.dice.chance(50) ? "SLOT MACHINE" : "HORSE RACE");
    // Slot winnings of this size have 24% taken out only when the winner gives no number; most have none.
    w.script.fill("Text1(4)", typedAmount(w.dice.chance(40) ? percentOf(winnings, 24) : 0));
    w.script.saveInto(w.folder);
}

void writeNonemployee(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    Organisation client = makeOrganisation(w.dice.pick(w.lists.clients), w.lists, w.dice);
    if (w.dice.chance(70)) client.moveTo(w.household.town);
    startPayerDocument(w, "mnu1099NEC", ordinal, client, {"Text1(0)", "Text1(1)", true});
    w.script.fill("Text1(5)", typedAmount(amountIn(w.dice, rule.amount)));
    w.script.saveInto(w.folder);
}

void writePaymentCard(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const Organisation platform = makeOrganisation(w.dice.pick(w.lists.platforms), w.lists, w.dice);
    const long long gross = amountIn(w.dice, rule.amount);
    startPayerDocument(w, "mnu1099K", ordinal, platform, {"Text1(0)", "Text1(4)", true});
    w.script.fill("Text1(6)", typedAmount(gross));
    w.script.fill("Text1(9)", std::to_string(w.dice.between(120, 2400)));
    // The twelve months add up to box 1a to the cent; December takes what the others leave.
    long long left = gross;
    for (int month = 0; month < 12; ++month) {
        const long long share = month == 11 ? left : std::min(left, gross / 12 + w.dice.between(-gross / 60, gross / 60));
        left -= share;
        w.script.fill("Text1(" + std::to_string(11 + month) + ")", typedAmount(share));
    }
    w.script.saveInto(w.folder);
}

void writeUnemployment(CaseWriting& w, const DocumentRule& rule, int ordinal) {
    const Household& h = w.household;
    Organisation agency = makeOrganisation("STATE OF " + h.town.state + " UNEMPLOYMENT INSURANCE", w.lists, w.dice);
    agency.moveTo(h.town);
    const long long paid = amountIn(w.dice, rule.amount);
    startPayerDocument(w, "mnu1099G", ordinal, agency, {"Text1(0)", "Text1(3)", true});
    w.script.fill("Text1(1)", typedAmount(paid));
    if (w.dice.chance(50)) w.script.fill("Text1(6)", typedAmount(percentOf(paid, 10)));
    w.script.saveInto(w.folder);
}

}  // namespace lw::cases
