// The taxpayer sheet and the papers of identity: the cards, a driver's license and a check.
#include "cases/case_documents.h"
#include "cases/fake_numbers.h"

namespace lw::cases {

using namespace pieces;

namespace {

std::string personBlock(const Household& h, const Person& person) {
    return person.fullName() + "\n" + h.street + "\n" + h.cityLine();
}

}  // namespace

void writeTaxpayerSheet(CaseWriting& w) {
    const Household& h = w.household;
    w.script.openForm("mnuIDFormsTP");
    w.script.fill("Text1(0)", personBlock(h, h.taxpayer));
    w.script.fill("Text1(1)", typedDigits(h.taxpayer.number));
    w.script.fill("Text1(2)", h.taxpayer.birthDate);
    w.script.fill("Text1(34)", typedDigits(h.telephone));
    if (h.hasSpouse) {
        w.script.fill("Text1(3)", personBlock(h, h.spouse));
        w.script.fill("Text1(4)", typedDigits(h.spouse.number));
        w.script.fill("Text1(5)", h.spouse.birthDate);
        w.script.fill("Text1(35)", typedDigits(h.telephone));
    }
    for (std::size_t row = 0; row < h.dependents.size() && row < 7; ++row) {
        const Person& child = h.dependents[row];
        const int first = 6 + static_cast<int>(row) * 4;
        auto field = [first](int offset) { return "Text1(" + std::to_string(first + offset) + ")"; };
        w.script.fill(field(0), child.first + " " + child.last);
        w.script.fill(field(1), typedDigits(child.number));
        w.script.fill(field(2), child.birthDate);
        w.script.fill(field(3), child.relation);
    }
    w.script.saveInto(w.folder);
}

void writeCards(CaseWriting& w, const DocumentRule&, int) {
    // Load TP makes a card for everyone on the sheet with a number.
    w.script.openForm("mnuIDFormsSSITIN");
    w.script.loadTaxpayer(1);
    w.script.saveInto(w.folder);
}

void writeLicense(CaseWriting& w, const DocumentRule&, int) {
    const Household& h = w.household;
    // The row of portraits counts from 0; a holder gets one of the portraits that fit them.
    auto portraitOf = [&](const Person& holder) {
        return "picDL(" +
               std::to_string(w.dice.pick(holder.female ? w.lists.portraitsFemale : w.lists.portraitsMale) -
                              1) +
               ")";
    };
    w.script.openForm("mnuIDFormsDL");
    w.script.loadTaxpayer(1);
    // The issue and expiration dates follow when the operator leaves a birth date.
    w.script.leave("Text1(1)");
    w.script.click(portraitOf(h.taxpayer) + " left");
    if (h.hasSpouse) {
        w.script.leave("Text1(5)");
        w.script.click(portraitOf(h.spouse) + " right");
    }
    w.script.saveInto(w.folder);
}

void writeCheck(CaseWriting& w, const DocumentRule&, int) {
    const Organisation bank = makeOrganisation(w.dice.pick(w.lists.banks), w.lists, w.dice);
    w.script.openForm("mnuIDFormsCHK");
    w.script.loadTaxpayer(1);
    w.script.fill("Text1(3)", bank.name + "\n" + bank.town.name + ", " + bank.town.state);
    // The routing and account numbers stand on the form as examples until they are typed over.
    w.script.replace("Text1(1)", routingNumber(w.dice));
    w.script.replace("Text1(2)", w.dice.digits(10));
    w.script.saveInto(w.folder);
}

}  // namespace lw::cases
