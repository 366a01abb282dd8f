#include "forms/form_ssa1099.h"

#include <memory>
#include <stdexcept>

#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "fields/control_setup.h"
#include "fields/edit_ctl.h"
#include "model/app_error.h"
#include "model/desktop.h"
#include "shell/form_registry.h"
#include "text/case.h"

namespace lw {

namespace {

constexpr const char* kComputeLabel = "TF_SSA1099:ComputeSSA";
constexpr int kOverflow = 6;

// The fields whose amounts take part, as read and as written back.
constexpr int kAmountFields[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 16};

// Leaving one of these fields computes; 17 names no field and stays in the list all the same.
bool leavingComputes(int index) { return (index >= 2 && index <= 11) || index == 13 || index == 17; }

bool isText1(const Control& ctl) { return ctl.index != kNoIndex && text::equalsNoCase(ctl.name, "Text1"); }

bool hasComputedTag(const Control& ctl) { return text::equalsNoCase(ctl.tag, "COMPUTED"); }

}  // namespace

FormSsa1099::FormSsa1099() : TaxForm("TF_SSA1099") {}

void FormSsa1099::onLoad() {
    TaxForm::onLoad();
    at("Label6").caption =
        "As you move through the fields on the SSA-1099 related to Social Security Payments Received, "
        "Deductions, etc., computations will be performed. If an error is detected a message will be "
        "displayed.";
}

void FormSsa1099::onActivate() { onActivateForm(); }

void FormSsa1099::afterYearChange() { onActivateForm(); }

void FormSsa1099::refillAfterClear() { field(kPartBPremium).text = partBPremiumOfYearInForce(); }

void FormSsa1099::onActivateForm() {
    runGuarded("TF_SSA1099:Form_Activate", [&] {
        field(kPartBPremium).text = partBPremiumOfYearInForce();
        ComputeSSA(kPartBPremium);
    });
}

bool FormSsa1099::isComputed(int index) const {
    const Control* ctl = find("Text1", index);
    return ctl && hasComputedTag(*ctl);
}

void FormSsa1099::ResetBackColor() {
    for (const auto& owned : controls()) {
        if (owned->isTextBox() && !hasComputedTag(*owned)) owned->backColor = kWhite;
    }
}

void FormSsa1099::onGotFocus(Control& ctl) {
    if (isText1(ctl)) onText1GotFocus(ctl.index);
}

void FormSsa1099::onText1GotFocus(int Index) {
    ResetBackColor();
    Control& ctl = field(Index);
    setUpControl(ctl, false);
    // The address box starts with the name, ready for the address lines.
    if (Index == kAddress && ctl.text.empty()) {
        ctl.text = field(kName).text + "\r\n";
        ctl.setSelStart(static_cast<int>(ctl.text.size()));
    }
    if (hasComputedTag(ctl)) {
        // A computed field is passed on to the next one; past the last field the tab order goes on.
        if (Control* next = find("Text1", Index + 1))
            setFocus(*next);
        else if (Control* following = desktop()->nextInTabOrder(ctl, false))
            setFocus(*following);
    }
    myIndex = Index;
}

void FormSsa1099::onLostFocus(Control& ctl) {
    if (!isText1(ctl)) return;
    // After a reported error the field being left stays as it is.
    if (ssaError) return;
    if (!hasComputedTag(ctl)) ctl.backColor = kWhite;
    ctl.foreColor = kBlack;
}

void FormSsa1099::onValidate(Control& ctl, bool& Cancel) {
    if (isText1(ctl)) onText1Validate(ctl.index, Cancel);
}

void FormSsa1099::onText1Validate(int Index, bool& Cancel) {
    runGuarded("TF_SSA1099:Text1_Validate", [&] {
        if (!editField(field(Index))) {
            Cancel = true;
            return;
        }
        const std::string& number = field(kSocialSecurityNumber).text;
        if (!number.empty()) field(kClaimNumber).text = number + "A";
        if (!leavingComputes(Index)) return;
        // One pass after a reported error computes nothing, so that the message does not come again
        // on the way to the field to be mended.
        if (ssaError)
            ssaError = false;
        else
            ComputeSSA(Index);
    });
}

void FormSsa1099::ComputeSSA(int Index) {
    runGuarded(kComputeLabel, [&] {
        if (field(kBox3).text.empty()) return;
        amount_ = SsaAmounts{};
        // An amount too large to count is the same overflow whether it is typed or worked out.
        try {
            for (int i : kAmountFields) amount_[static_cast<std::size_t>(i)] = amountOfText(field(i).text);
            workOutSsaAmounts(amount_);
        } catch (const std::overflow_error&) {
            throw AppError(kOverflow, "Overflow", kComputeLabel);
        }
        for (int i : kAmountFields) {
            const text::Currency amount = amount_[static_cast<std::size_t>(i)];
            field(i).text = amount != text::Currency{} ? benefitAmountText(amount) : "";
        }
        for (int i : {kNetBenefits, kPaidByCheck, kBenefitsForYear}) field(i).foreColor = kBlack;

        const SsaShortfall shortfall = firstSsaShortfall(amount_);
        if (shortfall == SsaShortfall::None) {
            myIndex = isComputed(Index + 1) ? Index + 2 : Index + 1;
            ssaError = false;
            return;
        }
        int red = kNetBenefits;
        int number = 801;
        if (shortfall == SsaShortfall::PaidByCheck) {
            red = kPaidByCheck;
            number = 802;
        } else if (shortfall == SsaShortfall::BenefitsForYear) {
            red = kBenefitsForYear;
            number = 803;
        }
        field(red).foreColor = kRed;
        const std::string reason = ssaShortfallReason(shortfall, at("RTB3").caption);
        showMessageBox({kComputeLabel, benefitErrorMessage(reason), number});
        ssaError = true;
    });
}

void registerSSA1099Form() {
    registerForm("TF_SSA1099", [] { return std::make_unique<FormSsa1099>(); });
}

}  // namespace lw
