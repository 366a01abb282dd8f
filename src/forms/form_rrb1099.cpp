#include "forms/form_rrb1099.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "diagnostics/error_tail.h"
#include "diagnostics/message_box.h"
#include "fields/control_setup.h"
#include "fields/edit_ctl.h"
#include "model/app_error.h"
#include "model/desktop.h"
#include "model/program.h"
#include "shell/form_registry.h"
#include "text/case.h"
#include "text/pieces.h"

namespace lw {

namespace {

constexpr const char* kComputeLabel = "TF_RRB1099:ComputeRRB";
constexpr int kOverflow = 6;

bool isText1(const Control& ctl) { return ctl.index != kNoIndex && text::equalsNoCase(ctl.name, "Text1"); }

bool hasComputedTag(const Control& ctl) { return text::equalsNoCase(ctl.tag, "COMPUTED"); }

// A field index of a catalogue list; anything else is a fault of the catalogue.
int fieldIndexOf(const std::string& item) {
    const std::string digits = text::trim(item);
    if (digits.empty() || digits.size() > 3 || digits.find_first_not_of("0123456789") != std::string::npos)
        throw AppError(err::kSubscriptOutOfRange, "Subscript out of range");
    return std::stoi(digits);
}

}  // namespace

FormRrb1099::FormRrb1099() : TaxForm("TF_RRB1099") {}

void FormRrb1099::onLoad() {
    TaxForm::onLoad();
    // Filled once: the form computes nothing here, and a later change of year leaves the field alone.
    field(kPremium).text = partBPremiumOfYearInForce();
    at("Label6").caption =
        "As you move through the fields on the RRB-1099 related to Social Security Payments Received, "
        "Deductions, etc., computations will be performed. If an error is detected a message will be "
        "displayed.";
}

void FormRrb1099::onGotFocus(Control& ctl) {
    if (!isText1(ctl)) return;
    setUpControl(ctl, false);
    if (hasComputedTag(ctl)) {
        if (Control* next = find("Text1", ctl.index + 1))
            setFocus(*next);
        else if (Control* following = desktop()->nextInTabOrder(ctl, false))
            setFocus(*following);
    }
    myIndex = ctl.index;
}

void FormRrb1099::onLostFocus(Control& ctl) {
    if (!isText1(ctl)) return;
    if (!hasComputedTag(ctl)) ctl.backColor = kWhite;
    ctl.foreColor = kBlack;
}

void FormRrb1099::onValidate(Control& ctl, bool& Cancel) {
    if (isText1(ctl)) onText1Validate(ctl.index, Cancel);
}

void FormRrb1099::onText1Validate(int Index, bool& Cancel) {
    runGuarded("TF_RRB1099:Text1_Validate", [&] {
        if (!editField(field(Index))) {
            Cancel = true;
            return;
        }
        if (Index >= 4 && Index <= 12) {
            if (rrbError)
                rrbError = false;
            else
                ComputeRRB(Index);
            if (myIndex < 13) {
                // The computed values go on the screen now, and the operator's own move of the focus
                // goes on when this event ends; the copies below wait for a field of the identity.
                program().ui.refresh();
                return;
            }
        } else if (Index >= 18 && Index <= 20) {
            totalGrossPaid();
        }
        copyIdentity();
        // The field being left holds the focus until the event ends: asking for it again would only
        // undo the operator's move.
        Control& last = field(myIndex);
        if (&last != &field(Index)) setFocus(last);
    });
}

void FormRrb1099::totalGrossPaid() {
    grossPaid_ = text::Currency{};
    try {
        for (int i : {18, 19, 20}) grossPaid_ += amountOfText(field(i).text);
    } catch (const std::overflow_error&) {
        throw AppError(kOverflow, "Overflow", "TF_RRB1099:Text1_Validate");
    }
    // Shown even at nought, as $.00.
    field(kTotalGrossPaid).text = benefitAmountText(grossPaid_);
}

void FormRrb1099::copyIdentity() {
    const Globals& g = program().g;
    for (const std::string* list :
         {&g.document.catalogue.ssnIndex, &g.document.catalogue.nameAddrIndex,
          &g.document.catalogue.medicareClaimNoIndex, &g.document.catalogue.einIndex}) {
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

void FormRrb1099::ComputeRRB(int /*Index*/) {
    runGuarded(kComputeLabel, [&] {
        if (field(kGross).text.empty()) return;
        amount_ = RrbAmounts{};
        RrbShortfall shortfall = RrbShortfall::None;
        // An amount too large to count is the same overflow whether it is typed or worked out.
        try {
            for (int i = 4; i <= 12; ++i) amount_[static_cast<std::size_t>(i)] = amountOfText(field(i).text);
            workOutRrbAmounts(amount_);
            shortfall = firstRrbShortfall(amount_);
        } catch (const std::overflow_error&) {
            throw AppError(kOverflow, "Overflow", kComputeLabel);
        }
        // A nought leaves the field's text as it was: a net amount that falls to nought goes on
        // showing its last figure.
        for (int i = 4; i <= 12; ++i) {
            const text::Currency amount = amount_[static_cast<std::size_t>(i)];
            if (amount != text::Currency{}) field(i).text = benefitAmountText(amount);
        }
        field(kNet).foreColor = kBlack;
        // No step here ever clears the flag: only the skipped pass of a later validation does.
        if (shortfall == RrbShortfall::None) return;
        field(kNet).foreColor = kRed;
        showMessageBox({kComputeLabel, benefitErrorMessage(rrbShortfallReason(shortfall)), 801});
        rrbError = true;
    });
}

void registerRRB1099Form() {
    registerForm("TF_RRB1099", [] { return std::make_unique<FormRrb1099>(); });
}

}  // namespace lw
