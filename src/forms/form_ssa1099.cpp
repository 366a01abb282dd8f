#include "forms/form_ssa1099.h"

#include <memory>

#include "diagnostics/error_tail.h"
#include "fields/control_setup.h"
#include "model/edition_settings.h"
#include "shell/form_registry.h"
#include "taxpayer/load_tp.h"

namespace lw {

namespace {

constexpr const char* kComputeLabel = "TF_SSA1099:ComputeSSA";

// The fields whose amounts take part, as read and as written back.
constexpr int kAmountFields[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 16};

// Leaving one of these fields computes; 17 names no field and stays in the list all the same.
bool leavingComputes(int index) { return (index >= 2 && index <= 11) || index == 13 || index == 17; }

}  // namespace

FormSsa1099::FormSsa1099(const ProgramParts& parts)
    : BenefitStatementForm(parts, "TF_SSA1099", "SSA1099", "SSA-1099", kComputeLabel) {}

void FormSsa1099::onActivate() { onActivateForm(); }

void FormSsa1099::afterYearChange() { onActivateForm(); }

void FormSsa1099::refillAfterClear() { field(kPartBPremium).text = partBPremiumOfYearInForce(); }

void FormSsa1099::onActivateForm() {
    runGuarded("TF_SSA1099:Form_Activate", [&] {
        field(kPartBPremium).text = partBPremiumOfYearInForce();
        computeSocialSecurityBenefits(kPartBPremium);
    });
}

bool FormSsa1099::readRecordField(const std::string& recordPrefix, const store::RecordField& record,
                                  int index) {
    // A line under another spelling of the prefix is read the common way.
    if (recordPrefix != "SSA") return false;
    const store::KeyTarget where = store::recordKeyTarget(record.key);
    if (where.target == store::RecordTarget::TextArray && where.array > 1) return false;
    Control& box = field(index);
    box.text = record.value;
    const bool computedBox = index == kNetBenefits || index == kPaidByCheck || index == kBenefitsForYear;
    if (computedBox && !record.value.empty() && record.value[0] == '-') box.foreColor = kRed;
    return true;
}

bool FormSsa1099::cutToDocument() {
    const Control& last = at("Label1", 33);
    height = last.top + last.height;
    return true;
}

bool FormSsa1099::fillTaxpayers(const std::string&, const TPInfoRec& a, const TPInfoRec&) {
    fillTaxpayersSsa1099(*this, a);
    return true;
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

void FormSsa1099::onText1GotFocus(int fieldIndex) {
    ResetBackColor();
    Control& ctl = field(fieldIndex);
    setUpControl(ctl, false, parts().document, parts().edition.legendColors);
    // The address box starts with the name, ready for the address lines.
    if (fieldIndex == kAddress && ctl.text.empty()) {
        ctl.text = field(kName).text + "\r\n";
        ctl.setSelStart(static_cast<int>(ctl.text.size()));
    }
    passComputedField(ctl);
    myIndex = fieldIndex;
}

void FormSsa1099::onLostFocus(Control& ctl) {
    if (!isText1(ctl)) return;
    // After a reported error the field being left stays as it is.
    if (!computationFailed) showAsLeft(ctl);
}

void FormSsa1099::afterFieldStands(int index) {
    const std::string& number = field(kSocialSecurityNumber).text;
    if (!number.empty()) field(kClaimNumber).text = number + "A";
    if (leavingComputes(index)) computeUnlessJustReported(index);
}

void FormSsa1099::computeSocialSecurityBenefits(int fieldIndex) {
    runGuarded(kComputeLabel, [&] {
        if (field(kBox3).text.empty()) return;
        amount_ = SsaAmounts{};
        countWithoutOverflow([&] {
            for (int i : kAmountFields) amount_[static_cast<std::size_t>(i)] = amountOfText(field(i).text);
            workOutSsaAmounts(amount_);
        });
        for (int i : kAmountFields) {
            const text::Currency amount = amount_[static_cast<std::size_t>(i)];
            field(i).text = amount != text::Currency{} ? benefitAmountText(amount) : "";
        }
        for (int i : {kNetBenefits, kPaidByCheck, kBenefitsForYear}) field(i).foreColor = kBlack;

        const SsaShortfall shortfall = firstSsaShortfall(amount_);
        if (shortfall == SsaShortfall::None) {
            myIndex = isComputed(fieldIndex + 1) ? fieldIndex + 2 : fieldIndex + 1;
            computationFailed = false;
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
        reportShortfall(red, number, ssaShortfallReason(shortfall, at("RTB3").caption));
    });
}

void registerSSA1099Form() {
    registerForm("TF_SSA1099",
                 [](const ProgramParts& parts) { return std::make_unique<FormSsa1099>(parts); });
}

}  // namespace lw
