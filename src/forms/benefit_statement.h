#pragma once
// What the SSA-1099 and the RRB-1099 forms share: a computed field hands the focus on, an amount too
// large to count is an overflow, a computed amount below nought turns red and is reported, and until it
// is mended the statement may not be saved, printed or clipped. Each statement keeps its own boxes and
// sums in its own file.

#include <functional>
#include <string>

#include "forms/tax_form.h"

namespace lw {

class BenefitStatementForm : public TaxForm {
public:
    // statement is the statement's name in the reports ("SSA1099"); guideName the one the guide line
    // names ("SSA-1099"); computeLabel the source of the computation's reports.
    BenefitStatementForm(const ProgramParts& parts, const std::string& formName, std::string statement,
                         const std::string& guideName, std::string computeLabel);

    void onLoad() override;
    // A field of Text1 is edited as it is left; once it stands, the statement's own step follows.
    void onValidate(Control& ctl, bool& cancel) override;
    std::string outputRefusal() const override;

    // Set while a computed amount is reported below nought; the next pass that would compute clears it
    // instead, so that the message does not come again on the way to the field to be mended.
    bool computationFailed = false;
    // The field that last took the focus; the computation may move it on.
    int myIndex = 0;

protected:
    Control& field(int index) const { return at("Text1", index); }
    static bool isText1(const Control& ctl);
    static bool hasComputedTag(const Control& ctl);
    // The yearly Medicare Part B premium of the tax year in force, empty when the rates file has none.
    std::string partBPremiumOfYearInForce() const;

    // A computed field takes no typing: the focus goes on to the next field, past the last one in the
    // tab order.
    void passComputedField(Control& ctl);
    // The look of a field being left: white unless computed, black text.
    static void showAsLeft(Control& ctl);
    // Leaving a field that takes part computes, but for the one pass after a reported error.
    void computeUnlessJustReported(int index);
    virtual void compute(int index) = 0;
    // What follows once Text1(index), being left, stands; it runs under the validation's report.
    virtual void afterFieldStands(int index) = 0;
    // The source of the validation's reports.
    std::string validateLabel() const { return name() + ":Text1_Validate"; }
    // Runs the arithmetic; an amount too large to count is the same overflow whether typed or worked out,
    // reported under source (the computation's own when none is given).
    void countWithoutOverflow(const std::function<void()>& arithmetic, const std::string& source = "") const;
    // A computed amount below nought: its field turns red, the operator is told why, and the statement
    // stops.
    void reportShortfall(int redField, int number, const std::string& reason);

private:
    std::string statement_;
    std::string guideName_;
    std::string computeLabel_;
};

}  // namespace lw
