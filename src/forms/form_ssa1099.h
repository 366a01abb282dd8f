// FormSsa1099, the Social Security Benefit Statement: as the operator moves through it, box 5, the amount
// paid by check, the total additions and the benefits of the year are worked out from the amounts typed,
// and the claim number follows the Social Security number. An amount below zero is reported and keeps
// the statement from being saved, printed or clipped until it is put right.
#pragma once

#include "forms/benefit_amounts.h"
#include "forms/benefit_statement.h"

namespace lw {

class FormSsa1099 : public BenefitStatementForm {
public:
    explicit FormSsa1099(const ProgramParts& parts);

    void onActivate() override;
    void afterYearChange() override;
    void refillAfterClear() override;
    void onGotFocus(Control& ctl) override;
    void onLostFocus(Control& ctl) override;
    // A clip takes the statement down to its last label.
    void beforeClip() override { height = 8500; }
    bool cutToDocument() override;
    bool fillTaxpayers(const std::string& who, const TPInfoRec& a, const TPInfoRec& b) override;
    // A file of the statement puts every key but Text2 to Text9 into Text1, and shows a negative amount
    // of its three computed boxes in red.
    bool readRecordField(const std::string& recordPrefix, const store::RecordField& field,
                         int index) override;

    // The Part B premium of the year in force, over whatever the field held, then a computation.
    void onActivateForm();
    // Works the dependent boxes out from the amounts on the form; fieldIndex is the field being left.
    void computeSocialSecurityBenefits(int fieldIndex);
    // Every typed field back to white; the computed ones keep their own colour.
    void ResetBackColor();

    static constexpr int kBox3 = 2;
    static constexpr int kNetBenefits = 4;  // box 5
    static constexpr int kPaidByCheck = 5;
    static constexpr int kPartBPremium = 6;
    static constexpr int kBenefitsForYear = 8;
    static constexpr int kSocialSecurityNumber = 1;
    static constexpr int kName = 0;
    static constexpr int kAddress = 14;      // box 7
    static constexpr int kClaimNumber = 15;  // box 8

protected:
    void compute(int index) override { computeSocialSecurityBenefits(index); }
    // The claim number follows the number; leaving an amount computes.
    void afterFieldStands(int index) override;

private:
    bool isComputed(int index) const;
    void onText1GotFocus(int fieldIndex);

    SsaAmounts amount_{};
};

// Makes TF_SSA1099 known by name, in place of the standard tax form.
void registerSSA1099Form();

}  // namespace lw
