// The forms whose fields do not take the general fill: each writes fixed fields from the person of the
// button (A) or the other (B), and an empty source empties its target.
#include <initializer_list>

#include "model/form.h"
#include "taxpayer/load_tp.h"

namespace lw {

namespace {

enum class Person { A, B };

struct Fill {
    int index;  // the Text1 field written
    Person from;
    std::string TPInfoRec::*part;
};

void fillAll(Form& form, const TPInfoRec& A, const TPInfoRec& B, std::initializer_list<Fill> fills) {
    for (const Fill& fill : fills)
        form.at("Text1", fill.index).text = (fill.from == Person::A ? A : B).*fill.part;
}

constexpr Person kA = Person::A;
constexpr Person kB = Person::B;

}  // namespace

// Both persons twice: as recipient and spouse, then again among the covered individuals.
void fillTaxpayers1095A(Form& form, const TPInfoRec& A, const TPInfoRec& B) {
    fillAll(form, A, B,
            {{3, kA, &TPInfoRec::name},
             {4, kA, &TPInfoRec::ssn},
             {5, kA, &TPInfoRec::dob},
             {6, kB, &TPInfoRec::name},
             {7, kB, &TPInfoRec::ssn},
             {8, kB, &TPInfoRec::dob},
             {11, kA, &TPInfoRec::street},
             {12, kA, &TPInfoRec::cityStateZip},
             {13, kA, &TPInfoRec::name},
             {14, kA, &TPInfoRec::ssn},
             {15, kA, &TPInfoRec::dob},
             {18, kB, &TPInfoRec::name},
             {19, kB, &TPInfoRec::ssn},
             {20, kB, &TPInfoRec::dob}});
}

void fillTaxpayers1095B(Form& form, const TPInfoRec& A) {
    fillAll(form, A, A,
            {{0, kA, &TPInfoRec::name},
             {1, kA, &TPInfoRec::ssn},
             {2, kA, &TPInfoRec::dob},
             {3, kA, &TPInfoRec::street},
             {4, kA, &TPInfoRec::cityStateZip}});
}

void fillTaxpayers1095C(Form& form, const TPInfoRec& A) {
    fillAll(form, A, A,
            {{0, kA, &TPInfoRec::name},
             {1, kA, &TPInfoRec::ssn},
             {4, kA, &TPInfoRec::street},
             {7, kA, &TPInfoRec::cityStateZip}});
}

void fillTaxpayersLicense(Form& form, const TPInfoRec& A, const TPInfoRec& B) {
    fillAll(form, A, B,
            {{0, kA, &TPInfoRec::nameAddr},
             {1, kA, &TPInfoRec::dob},
             {4, kB, &TPInfoRec::nameAddr},
             {5, kB, &TPInfoRec::dob}});
}

// The claim number of the lower statement is the number with the beneficiary's letter A.
void fillTaxpayersSsa1099(Form& form, const TPInfoRec& A) {
    fillAll(form, A, A,
            {{0, kA, &TPInfoRec::name}, {1, kA, &TPInfoRec::ssn}, {14, kA, &TPInfoRec::nameAddr}});
    form.at("Text1", 15).text = A.ssn + "A";
}

}  // namespace lw
