#include "fields/edit_ctl.h"

#include "diagnostics/error_tail.h"
#include "fields/edit_date.h"
#include "fields/edit_failure.h"
#include "model/app_error.h"
#include "model/program.h"
#include "text/case.h"
#include "text/number.h"

namespace lw {

namespace {

// An amount field may also hold that the amount is unknown: U and UNK are spelt out, other text stands.
bool editUnknownAmount(Control& ctl) {
    if (text::isNumeric(ctl.text)) return editMoney(ctl);
    if (ctl.text == "U" || ctl.text == "UNK") ctl.text = "UNKNOWN";
    return true;
}

std::string formTaxYear() {
    const Form& form = *program().g.document.currentForm;
    return form.at("TaxYear", 0).caption + form.at("TaxYear", 1).caption;
}

bool editByTag(Control& ctl) {
    const std::string tag = text::toUpper(ctl.tag);
    if (tag == "%" || tag == "#.#") return editNumericDecimalOk(ctl);
    if (tag == "#") return editNumeric(ctl);
    if (tag == "TIN") return editSsnOrItin(ctl);
    if (tag == "EIN") return editEin(ctl);
    if (tag == "MONEY" || tag == "SMONEY") return editMoney(ctl);
    if (tag == "AMONEY") return editUnknownAmount(ctl);
    if (tag == "-MONEY") return editMoneyNegativeOk(ctl);
    if (tag == "DATE") return editDate(ctl, program().g.taxYear, "");
    if (tag == "DATEX") {
        if (!program().g.document.currentForm) throw AppError(err::kObjectRequired, "Object required");
        return editDate(ctl, program().g.taxYear, formTaxYear());
    }
    if (tag == "YEAR") return editYear(ctl);
    if (tag == "VERIFICATION") return editVerificationCode(ctl);
    if (tag == "TPNAME") return editNameBlock(ctl);
    if (tag == "PHONE") return editPhone(ctl);
    ctl.text = text::toUpper(ctl.text);
    return true;
}

}  // namespace

bool editField(Control& ctl) {
    bool result = true;
    runGuarded("M7_Edits:EditCtl", [&] {
        // A form without a status line may use the edits too.
        try {
            clearStatusLine();
        } catch (const ProgramEnded&) {
            throw;
        } catch (...) {
        }
        if (!ctl.text.empty() && !editByTag(ctl)) result = false;
        if (result) {
            ctl.backColor = kWhite;
            ctl.foreColor = kBlack;
        } else {
            ctl.foreColor = kRed;
        }
    });
    return result;
}

}  // namespace lw
