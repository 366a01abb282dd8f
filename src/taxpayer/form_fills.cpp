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
            {{3, kA, &TPInfoRec::Name},
             {4, kA, &TPInfoRec::SSN},
             {5, kA, &TPInfoRec::DOB},
             {6, kB, &TPInfoRec::Name},
             {7, kB, &TPInfoRec::SSN},
             {8, kB, &TPInfoRec::DOB},
             {11, kA, &TPInfoRec::Street},
             {12, kA, &TPInfoRec::CityStateZip},
             {13, kA, &TPInfoRec::Name},
             {14, kA, &TPInfoRec::SSN},
             {15, kA, &TPInfoRec::DOB},
             {18, kB, &TPInfoRec::Name},
             {19, kB, &TPInfoRec::SSN},
             {20, kB, &TPInfoRec::DOB}});
}

void fillTaxpayers1095B(Form& form, const TPInfoRec& A) {
    fillAll(form, A, A,
            {{0, kA, &TPInfoRec::Name},
             {1, kA, &TPInfoRec::SSN},
             {2, kA, &TPInfoRec::DOB},
             {3, kA, &TPInfoRec::Street},
             {4, kA, &TPInfoRec::CityStateZip}});
}

void fillTaxpayers1095C(Form& form, const TPInfoRec& A) {
    fillAll(form, A, A,
            {{0, kA, &TPInfoRec::Name},
             {1, kA, &TPInfoRec::SSN},
             {4, kA, &TPInfoRec::Street},
             {7, kA, &TPInfoRec::CityStateZip}});
}

void fillTaxpayersLicense(Form& form, const TPInfoRec& A, const TPInfoRec& B) {
    fillAll(form, A, B,
            {{0, kA, &TPInfoRec::NameAddr},
             {1, kA, &TPInfoRec::DOB},
             {4, kB, &TPInfoRec::NameAddr},
             {5, kB, &TPInfoRec::DOB}});
}

// The claim number of the lower statement is the number with the beneficiary's letter A.
void fillTaxpayersSsa1099(Form& form, const TPInfoRec& A) {
    fillAll(form, A, A,
            {{0, kA, &TPInfoRec::Name}, {1, kA, &TPInfoRec::SSN}, {14, kA, &TPInfoRec::NameAddr}});
    form.at("Text1", 15).text = A.SSN + "A";
}

}  // namespace lw
