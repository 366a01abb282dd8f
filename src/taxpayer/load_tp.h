#pragma once
// [Load TP 1] and [Load TP 2]: the people of the store copied into the form on the screen.

#include <string>

#include "people/tp_record.h"

namespace lw {

class Form;
struct ProgramParts;

// who is "TP 1" or "TP 2", the end of the pressed button's caption. Every fill reads the store afresh
// into the two taxpayers' records, which keep the parts of a block the store has lost, and fills the
// document's current form.
void readTaxpayers(const ProgramParts& parts, const std::string& who);

// The fills of the forms that do not take the general one; A is the person of the button, B the other.
void fillTaxpayers1095A(Form& form, const TPInfoRec& A, const TPInfoRec& B);
void fillTaxpayers1095B(Form& form, const TPInfoRec& A);
void fillTaxpayers1095C(Form& form, const TPInfoRec& A);
void fillTaxpayersLicense(Form& form, const TPInfoRec& A, const TPInfoRec& B);
void fillTaxpayersSsa1099(Form& form, const TPInfoRec& A);

}  // namespace lw
