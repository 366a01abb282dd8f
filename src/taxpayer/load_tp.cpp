// [Load TP 1] and [Load TP 2]: reads both taxpayers from the store and fills the form on the screen by
// its record prefix; afterwards the focus goes back where the operator left it.
#include "taxpayer/load_tp.h"

#include <vector>

#include "diagnostics/error_tail.h"
#include "fields/control_setup.h"
#include "model/containers.h"
#include "model/program.h"
#include "shell/startup.h"
#include "taxpayer/tin_cards.h"
#include "text/case.h"
#include "text/pieces.h"

namespace lw {

namespace {

Globals& g() { return program().g; }

// The three keys of a person go into the record, an absent key as empty; the parts cut from the block
// are renewed only when there is a block, so a person the store no longer has keeps the name, street
// and city lines that the last Load TP found.
void readPerson(const char* slot, TPInfoRec& rec) {
    const std::string prefix(slot);
    rec.NameAddr = readUserInf(prefix + "NameAddr");
    rec.DOB = readUserInf(prefix + "DOB");
    rec.SSN = readUserInf(prefix + "SSN");
    parseNameAddress(rec);
}

// The first index of a comma list of the catalogue, or none when the list is empty.
int firstIndexOf(const std::string& list) {
    const std::string first = text::trim(text::split(list, ",").front());
    return first.empty() ? -1 : std::stoi(first);
}

// The general fill: the block to the first name field, the number to the first number field.
void fillGeneral(Form& form, const TPInfoRec& A) {
    const int nameIndex = firstIndexOf(g().document.catalogue.nameAddrIndex);
    const int numberIndex = firstIndexOf(g().document.catalogue.ssnIndex);
    if (nameIndex >= 0) form.at("Text1", nameIndex).text = A.NameAddr;
    if (numberIndex >= 0) form.at("Text1", numberIndex).text = A.SSN;
}

// The check is drawn to both persons of the button's household, at the address of the first.
void fillCheck(Form& form, const TPInfoRec& A, const TPInfoRec& B) {
    Control& payer = form.at("Text1", 0);
    payer.fontSize = 9;
    payer.text = A.Name + "\r\n" + B.Name + "\r\n" + A.Address;
}

// Numbers and expiry of the licenses just filled: a license runs out on the birthday five years on.
void stampLicenses(Form& form) {
    const DateTime now = program().platform.now();
    auto text = [&](int index) -> std::string& { return form.at("Text1", index).text; };
    const std::string inFiveYears = std::to_string(now.year + 5);
    text(2) = now.toStampText();
    text(3) = text(1).substr(0, 6) + inFiveYears;
    if (!text(4).empty()) text(6) = program().platform.now().toStampText();
    if (!text(5).empty()) text(7) = text(5).substr(0, 6) + inFiveYears;
}

void fillByPrefix(Form& form, const std::string& prefix, const std::string& Who, const TPInfoRec& A,
                  const TPInfoRec& B) {
    if (prefix == "ss_itin") return fillTaxpayersCard(form, Who == "TP 2" ? 2 : 1);
    if (prefix == "dl" || prefix == "drvlic") {
        fillTaxpayersLicense(form, A, B);
        return stampLicenses(form);
    }
    if (prefix == "chk" || prefix == "check") return fillCheck(form, A, B);
    if (prefix == "1095-a") return fillTaxpayers1095A(form, A, B);
    if (prefix == "tpinfo") return;
    if (prefix == "1095b") return fillTaxpayers1095B(form, A);
    if (prefix == "1095c") return fillTaxpayers1095C(form, A);
    if (prefix == "ssa") return fillTaxpayersSsa1099(form, A);
    fillGeneral(form, A);
}

// The filled fields of a K-1 may stand on the half that is not on show: that half is shown for a second,
// then the operator's half comes back.
void showOtherHalfAWhile(Form& form, const std::string& prefix) {
    Control& tabs = form.at("SSTab1");
    const int noted = tabOf(tabs);
    if (prefix == "K11065") {
        if (noted == 1) setTab(tabs, 0);
        program().ui.refresh();
        if (tabOf(tabs) == noted) return;
    } else {
        setTab(tabs, noted == 0 ? 1 : 0);
        program().ui.refresh();
    }
    program().platform.sleep(1000);
    setTab(tabs, noted);
}

}  // namespace

void readTaxpayers(const std::string& Who) {
    runGuarded("M6_TPInfo:TPInfo_Read", [&] {
        Form* form = g().document.currentForm;
        if (!form) return;
        readPerson("TP1", g().taxpayers.taxpayer1);
        readPerson("TP2", g().taxpayers.taxpayer2);
        const bool second = Who == "TP 2";
        const TPInfoRec& A = second ? g().taxpayers.taxpayer2 : g().taxpayers.taxpayer1;
        const TPInfoRec& B = second ? g().taxpayers.taxpayer1 : g().taxpayers.taxpayer2;
        fillByPrefix(*form, text::toLower(g().document.catalogue.recordPrefix), Who, A, B);

        const std::string prefix = text::toUpper(g().document.catalogue.recordPrefix);
        if (prefix == "RRB") {
            // The lower statement repeats the payee's number; the focus stays where it is.
            form->at("Text1", 15).text = form->at("Text1", 2).text;
            form->at("Text1", 16).text = form->at("Text1", 3).text;
        } else {
            if (prefix == "K11041" || prefix == "K11120S" || prefix == "K11065")
                showOtherHalfAWhile(*form, prefix);
            refocusAfterTaxpayerFill();
        }
        program().ui.refresh();
    });
}

}  // namespace lw
