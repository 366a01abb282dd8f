#include "fields/edit_ctl.h"

#include "diagnostics/error_tail.h"
#include "fields/edit_date.h"
#include "fields/edit_failure.h"
#include "model/app_error.h"
#include "model/form.h"
#include "model/open_document.h"
#include "text/case.h"
#include "text/number.h"

namespace lw {

namespace {

// An amount field may also hold that the amount is unknown: U and UNK are spelt out, other text stands.
bool editUnknownAmount(Control& ctl, const EditContext& context) {
    if (text::isNumeric(ctl.text)) return editMoney(ctl, context);
    if (ctl.text == "U" || ctl.text == "UNK") ctl.text = "UNKNOWN";
    return true;
}

std::string formTaxYear(const Form& form) {
    return form.at("TaxYear", 0).caption + form.at("TaxYear", 1).caption;
}

bool editByTag(Control& ctl, const EditContext& context) {
    const std::string tag = text::toUpper(ctl.tag);
    if (tag == "%" || tag == "#.#") return editNumericDecimalOk(ctl, context);
    if (tag == "#") return editNumeric(ctl, context);
    if (tag == "TIN") return editSsnOrItin(ctl, context);
    if (tag == "EIN") return editEin(ctl, context);
    if (tag == "MONEY" || tag == "SMONEY") return editMoney(ctl, context);
    if (tag == "AMONEY") return editUnknownAmount(ctl, context);
    if (tag == "-MONEY") return editMoneyNegativeOk(ctl, context);
    if (tag == "DATE") return editDate(ctl, context, "");
    if (tag == "DATEX") {
        const Form* form = context.document.currentForm;
        if (!form) throw AppError(err::kObjectRequired, "Object required");
        return editDate(ctl, context, formTaxYear(*form));
    }
    if (tag == "YEAR") return editYear(ctl, context);
    if (tag == "VERIFICATION") return editVerificationCode(ctl, context);
    if (tag == "TPNAME") return editNameBlock(ctl);
    if (tag == "PHONE") return editPhone(ctl);
    ctl.text = text::toUpper(ctl.text);
    return true;
}

}  // namespace

bool editField(Control& ctl, const EditContext& context) {
    bool result = true;
    runGuarded("M7_Edits:EditCtl", [&] {
        // A form without a status line may use the edits too.
        try {
            clearStatusLine(context.document);
        } catch (const ProgramEnded&) {
            throw;
        } catch (...) {
        }
        if (!ctl.text.empty() && !editByTag(ctl, context)) result = false;
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
