#include "forms/benefit_statement.h"

#include <stdexcept>
#include <utility>

#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "fields/edit_ctl.h"
#include "forms/benefit_amounts.h"
#include "model/app_error.h"
#include "model/desktop.h"
#include "model/edition_settings.h"
#include "text/case.h"

namespace lw {

namespace {
constexpr int kOverflow = 6;
}  // namespace

BenefitStatementForm::BenefitStatementForm(const ProgramParts& parts, const std::string& formName,
                                           std::string statement, const std::string& guideName,
                                           std::string computeLabel)
    : TaxForm(formName, parts),
      statement_(std::move(statement)),
      guideName_(guideName),
      computeLabel_(std::move(computeLabel)) {
    sizesBorder_ = false;
}

void BenefitStatementForm::onLoad() {
    TaxForm::onLoad();
    at("Label6").caption = "As you move through the fields on the " + guideName_ +
                           " related to Social Security Payments Received, Deductions, etc., computations "
                           "will be performed. If an error is detected a message will be displayed.";
}

void BenefitStatementForm::onValidate(Control& ctl, bool& cancel) {
    if (!isText1(ctl)) return;
    runGuarded(validateLabel(), [&] {
        if (!editField(ctl, editContextOf(parts()))) {
            cancel = true;
            return;
        }
        afterFieldStands(ctl.index);
    });
}

std::string BenefitStatementForm::outputRefusal() const {
    if (!computationFailed) return "";
    return "Error On " + statement_ + " Form, Correct Before Saving, Printing or Clipping";
}

bool BenefitStatementForm::isText1(const Control& ctl) {
    return ctl.index != kNoIndex && text::equalsNoCase(ctl.name, "Text1");
}

bool BenefitStatementForm::hasComputedTag(const Control& ctl) {
    return text::equalsNoCase(ctl.tag, "COMPUTED");
}

std::string BenefitStatementForm::partBPremiumOfYearInForce() const {
    return partBPremiumOfYear(parts().taxYear, parts().edition.ssmcInfFile);
}

void BenefitStatementForm::passComputedField(Control& ctl) {
    if (!hasComputedTag(ctl)) return;
    if (Control* next = find("Text1", ctl.index + 1))
        setFocus(*next);
    else if (Control* following = desktop()->nextInTabOrder(ctl, false))
        setFocus(*following);
}

void BenefitStatementForm::showAsLeft(Control& ctl) {
    if (!hasComputedTag(ctl)) ctl.backColor = kWhite;
    ctl.foreColor = kBlack;
}

void BenefitStatementForm::computeUnlessJustReported(int index) {
    if (computationFailed)
        computationFailed = false;
    else
        compute(index);
}

void BenefitStatementForm::countWithoutOverflow(const std::function<void()>& arithmetic,
                                                const std::string& source) const {
    try {
        arithmetic();
    } catch (const std::overflow_error&) {
        throw AppError(kOverflow, "Overflow", source.empty() ? computeLabel_ : source);
    }
}

void BenefitStatementForm::reportShortfall(int redField, int number, const std::string& reason) {
    field(redField).foreColor = kRed;
    showMessageBox(parts().desktop, {computeLabel_, benefitErrorMessage(reason), number});
    computationFailed = true;
}

}  // namespace lw
