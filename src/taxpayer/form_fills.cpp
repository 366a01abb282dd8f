// The forms whose fields do not take the general fill: each writes fixed fields, and an empty source
// empties its target.
#include "taxpayer/load_tp.h"

#include "model/form.h"

namespace lw {

namespace {

void put(Form& form, int index, const std::string& value) { form.at("Text1", index).text = value; }

}  // namespace

// Both persons twice: as recipient and spouse, then again among the covered individuals.
void TPInfo_Process_1095A(Form& form, const TPInfoRec& A, const TPInfoRec& B) {
    put(form, 3, A.Name);
    put(form, 4, A.SSN);
    put(form, 5, A.DOB);
    put(form, 6, B.Name);
    put(form, 7, B.SSN);
    put(form, 8, B.DOB);
    put(form, 11, A.Street);
    put(form, 12, A.CityStateZip);
    put(form, 13, A.Name);
    put(form, 14, A.SSN);
    put(form, 15, A.DOB);
    put(form, 18, B.Name);
    put(form, 19, B.SSN);
    put(form, 20, B.DOB);
}

void TPInfo_Process_1095B(Form& form, const TPInfoRec& A) {
    put(form, 0, A.Name);
    put(form, 1, A.SSN);
    put(form, 2, A.DOB);
    put(form, 3, A.Street);
    put(form, 4, A.CityStateZip);
}

void TPInfo_Process_1095C(Form& form, const TPInfoRec& A) {
    put(form, 0, A.Name);
    put(form, 1, A.SSN);
    put(form, 4, A.Street);
    put(form, 7, A.CityStateZip);
}

void TPInfo_Process_DriverLicenses(Form& form, const TPInfoRec& A, const TPInfoRec& B) {
    put(form, 0, A.NameAddr);
    put(form, 1, A.DOB);
    put(form, 4, B.NameAddr);
    put(form, 5, B.DOB);
}

// The claim number of the lower statement is the number with the beneficiary's letter A.
void TPInfo_Process_SSA1099(Form& form, const TPInfoRec& A) {
    put(form, 0, A.Name);
    put(form, 1, A.SSN);
    put(form, 14, A.NameAddr);
    put(form, 15, A.SSN + "A");
}

}  // namespace lw
