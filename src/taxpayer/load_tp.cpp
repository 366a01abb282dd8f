// [Load TP 1] and [Load TP 2]: reads both taxpayers from the store and fills the form on the screen, by
// its own fill or the general one; afterwards the focus goes back where the operator left it.
#include "taxpayer/load_tp.h"

#include <vector>

#include "diagnostics/error_tail.h"
#include "fields/control_setup.h"
#include "model/open_document.h"
#include "model/ports.h"
#include "model/program_parts.h"
#include "model/taxpayer_memory.h"
#include "shell/catalogue_form.h"
#include "shell/startup.h"
#include "store/user_inf.h"
#include "text/pieces.h"

namespace lw {

namespace {

// The three keys of a person go into the record, an absent key as empty; the parts cut from the block
// are renewed only when there is a block, so a person the store no longer has keeps the name, street
// and city lines that the last Load TP found.
void readPerson(const ProgramParts& parts, const char* slot, TPInfoRec& rec) {
    const std::string prefix(slot);
    rec.nameAddr = readUserInf(parts, prefix + "NameAddr");
    rec.dob = readUserInf(parts, prefix + "DOB");
    rec.ssn = readUserInf(parts, prefix + "SSN");
    parseNameAddress(rec);
}

// The first index of a comma list of the catalogue, or none when the list is empty.
int firstIndexOf(const std::string& list) {
    const std::string first = text::trim(text::split(list, ",").front());
    return first.empty() ? -1 : std::stoi(first);
}

// The general fill: the block to the first name field, the number to the first number field.
void fillGeneral(Form& form, const CatalogueValues& catalogue, const TPInfoRec& A) {
    const int nameIndex = firstIndexOf(catalogue.nameAddrIndex);
    const int numberIndex = firstIndexOf(catalogue.ssnIndex);
    if (nameIndex >= 0) form.at("Text1", nameIndex).text = A.nameAddr;
    if (numberIndex >= 0) form.at("Text1", numberIndex).text = A.ssn;
}

}  // namespace

void readTaxpayers(const ProgramParts& parts, const std::string& who) {
    runGuarded("M6_TPInfo:TPInfo_Read", [&] {
        Form* form = parts.document.currentForm;
        if (!form) return;
        TaxpayerMemory& taxpayers = parts.taxpayers;
        readPerson(parts, "TP1", taxpayers.taxpayer1);
        readPerson(parts, "TP2", taxpayers.taxpayer2);
        const bool second = who == "TP 2";
        const TPInfoRec& A = second ? taxpayers.taxpayer2 : taxpayers.taxpayer1;
        const TPInfoRec& B = second ? taxpayers.taxpayer1 : taxpayers.taxpayer2;
        // A form that fills itself or goes on in its own way says so; any other has the common rules.
        auto* rules = dynamic_cast<CatalogueForm*>(form);
        if (!rules || !rules->fillTaxpayers(who, A, B)) fillGeneral(*form, parts.document.catalogue, A);
        if (rules)
            rules->afterTaxpayerFill();
        else
            refocusAfterTaxpayerFill(parts.document);
        parts.ui.refresh();
    });
}

}  // namespace lw
