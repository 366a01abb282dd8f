// FormRrb1099, the two railroad retirement statements on one screen: the upper RRB-1099 works its net
// amount out and reports a shortfall, the lower RRB-1099-R totals its gross payments, and the payer's
// and recipient's identity typed above is copied below.
#pragma once

#include "forms/benefit_amounts.h"
#include "forms/benefit_statement.h"

namespace lw {

class FormRrb1099 : public BenefitStatementForm {
public:
    explicit FormRrb1099(const ProgramParts& parts);

    void onLoad() override;
    void onGotFocus(Control& ctl) override;
    void onLostFocus(Control& ctl) override;
    // The year stands on both statements.
    void showYearDigits(const std::string& digits) override;
    // A clip takes both statements, down to the last label of the lower one.
    void beforeClip() override { height = 9560; }
    bool cutToDocument() override;
    // After Load TP the lower statement repeats the payee's number; the focus stays where it is.
    void afterTaxpayerFill() override;

    // Works the net amount of the upper statement out; fieldIndex is the field being left.
    void computeRailroadBenefits(int fieldIndex);

    static constexpr int kGross = 4;     // box 3
    static constexpr int kNet = 6;       // box 5
    static constexpr int kPremium = 12;  // box 11
    static constexpr int kTotalGrossPaid = 21;

protected:
    void compute(int index) override { computeRailroadBenefits(index); }
    // Leaving an amount of the upper statement computes, one of the lower sums it; then the identity
    // is copied below.
    void afterFieldStands(int index) override;

private:
    // Sums boxes 4, 5 and 6 of the lower statement into its box 7.
    void totalGrossPaid();
    // The identity fields of the upper statement to their places on the lower one.
    void copyIdentity();

    RrbAmounts amount_{};
    text::Currency grossPaid_{};
};

// Makes TF_RRB1099 known by name, in place of the standard tax form.
void registerRRB1099Form();

}  // namespace lw
