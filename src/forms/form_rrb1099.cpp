#include "forms/form_rrb1099.h"

#include <memory>
#include <string>
#include <vector>

#include "diagnostics/error_tail.h"
#include "fields/control_setup.h"
#include "model/app_error.h"
#include "model/edition_settings.h"
#include "model/open_document.h"
#include "model/ports.h"
#include "shell/form_registry.h"
#include "text/pieces.h"

namespace lw {

namespace {

constexpr const char* kComputeLabel = "TF_RRB1099:ComputeRRB";

// A field index of a catalogue list; anything else is a fault of the catalogue.
int fieldIndexOf(const std::string& item) {
    const std::string digits = text::trim(item);
    if (digits.empty() || digits.size() > 3 || digits.find_first_not_of("0123456789") != std::string::npos)
        throw AppError(err::kSubscriptOutOfRange, "Subscript out of range");
    return std::stoi(digits);
}

}  // namespace

FormRrb1099::FormRrb1099(const ProgramParts& parts)
    : BenefitStatementForm(parts, "TF_RRB1099", "RRB1099", "RRB-1099", kComputeLabel) {}

void FormRrb1099::onLoad() {
    BenefitStatementForm::onLoad();
    // Filled once: the form computes nothing here, and a later change of year leaves the field alone.
    field(kPremium).text = partBPremiumOfYearInForce();
}

void FormRrb1099::showYearDigits(const std::string& digits) {
    TaxForm::showYearDigits(digits);
    at("TaxYear", 3).caption = digits;
}

bool FormRrb1099::cutToDocument() {
    const Control& last = at("LabelForm", 3);
    height = last.top + last.height;
    return true;
}

void FormRrb1099::afterTaxpayerFill() {
    field(15).text = field(2).text;
    field(16).text = field(3).text;
}

void FormRrb1099::onGotFocus(Control& ctl) {
    if (!isText1(ctl)) return;
    setUpControl(ctl, false, parts().document, parts().edition.legendColors);
    passComputedField(ctl);
    myIndex = ctl.index;
}

void FormRrb1099::onLostFocus(Control& ctl) {
    if (isText1(ctl)) showAsLeft(ctl);
}

void FormRrb1099::afterFieldStands(int index) {
    if (index >= 4 && index <= 12) {
        computeUnlessJustReported(index);
        if (myIndex < 13) {
            // The computed values go on the screen now, and the operator's own move of the focus goes
            // on when this event ends; the copies below wait for a field of the identity.
            parts().ui.refresh();
            return;
        }
    } else if (index >= 18 && index <= 20) {
        totalGrossPaid();
    }
    copyIdentity();
    // The field being left holds the focus until the event ends: asking for it again would only undo
    // the operator's move.
    Control& last = field(myIndex);
    if (&last != &field(index)) setFocus(last);
}

void FormRrb1099::totalGrossPaid() {
    grossPaid_ = text::Currency{};
    countWithoutOverflow(
        [&] {
            for (int i : {18, 19, 20}) grossPaid_ += amountOfText(field(i).text);
        },
        validateLabel());
    // Shown even at nought, as $.00.
    field(kTotalGrossPaid).text = benefitAmountText(grossPaid_);
}

void FormRrb1099::copyIdentity() {
    const CatalogueValues& catalogue = parts().document.catalogue;
    for (const std::string* list : {&catalogue.ssnIndex, &catalogue.nameAddrIndex,
                                    &catalogue.medicareClaimNoIndex, &catalogue.einIndex}) {
        // A form whose catalogue names no such pair has nothing to copy.
        if (list->empty()) continue;
        const std::vector<std::string> items = text::split(*list, ",");
        if (items.size() < 2) throw AppError(err::kSubscriptOutOfRange, "Subscript out of range");
        Control* from = find("Text1", fieldIndexOf(items[0]));
        Control* to = find("Text1", fieldIndexOf(items[1]));
        if (!from || !to)
            throw AppError(err::kControlArrayElementMissing, "Control array element doesn't exist");
        to->text = from->text;
    }
}

void FormRrb1099::computeRailroadBenefits(int /*Index*/) {
    runGuarded(kComputeLabel, [&] {
        if (field(kGross).text.empty()) return;
        amount_ = RrbAmounts{};
        RrbShortfall shortfall = RrbShortfall::None;
        countWithoutOverflow([&] {
            for (int i = 4; i <= 12; ++i) amount_[static_cast<std::size_t>(i)] = amountOfText(field(i).text);
            workOutRrbAmounts(amount_);
            shortfall = firstRrbShortfall(amount_);
        });
        // A nought leaves the field's text as it was: a net amount that falls to nought goes on
        // showing its last figure.
        for (int i = 4; i <= 12; ++i) {
            const text::Currency amount = amount_[static_cast<std::size_t>(i)];
            if (amount != text::Currency{}) field(i).text = benefitAmountText(amount);
        }
        field(kNet).foreColor = kBlack;
        // No step here ever clears the flag: only the skipped pass of a later validation does.
        if (shortfall == RrbShortfall::None) return;
        reportShortfall(kNet, 801, rrbShortfallReason(shortfall));
    });
}

void registerRRB1099Form() {
    registerForm("TF_RRB1099",
                 [](const ProgramParts& parts) { return std::make_unique<FormRrb1099>(parts); });
}

}  // namespace lw
