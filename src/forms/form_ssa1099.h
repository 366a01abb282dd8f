// FormSsa1099, the Social Security Benefit Statement: as the operator moves through it, box 5, the amount
// paid by check, the total additions and the benefits of the year are worked out from the amounts typed,
// and the claim number follows the Social Security number. An amount below zero is reported and keeps
// the statement from being saved, printed or clipped until it is put right.
#pragma once

#include "forms/benefit_amounts.h"
#include "forms/tax_form.h"

namespace lw {

class FormSsa1099 : public TaxForm {
public:
    FormSsa1099();

    void onLoad() override;
    void onActivate() override;
    void afterYearChange() override;
    void refillAfterClear() override;
    void onGotFocus(Control& ctl) override;
    void onLostFocus(Control& ctl) override;
    void onValidate(Control& ctl, bool& Cancel) override;
    // While a computed amount is below zero the statement may not be saved, printed or clipped.
    std::string outputRefusal() const override;
    // A file of the statement puts every key but Text2 to Text9 into Text1, and shows a negative amount
    // of its three computed boxes in red.
    // A clip takes the statement down to its last label.
    void beforeClip() override { height = 8500; }
    bool cutToDocument() override;
    bool fillTaxpayers(const std::string& who, const TPInfoRec& a, const TPInfoRec& b) override;
    bool readRecordField(const std::string& recordPrefix, const store::RecordField& field,
                         int index) override;

    // The Part B premium of the year in force, over whatever the field held, then a computation.
    void onActivateForm();
    // Works the dependent boxes out from the amounts on the form; Index is the field being left.
    void ComputeSSA(int Index);
    // Every typed field back to white; the computed ones keep their own colour.
    void ResetBackColor();

    // The field that last took the focus; the computation moves it on past a computed field.
    int myIndex = 0;

    static constexpr int kBox3 = 2;
    static constexpr int kNetBenefits = 4;  // box 5
    static constexpr int kPaidByCheck = 5;
    static constexpr int kPartBPremium = 6;
    static constexpr int kBenefitsForYear = 8;
    static constexpr int kSocialSecurityNumber = 1;
    static constexpr int kName = 0;
    static constexpr int kAddress = 14;      // box 7
    static constexpr int kClaimNumber = 15;  // box 8

private:
    Control& field(int index) const { return at("Text1", index); }
    bool isComputed(int index) const;
    void onText1GotFocus(int Index);
    void onText1Validate(int Index, bool& Cancel);

    SsaAmounts amount_{};
};

// Makes TF_SSA1099 known by name, in place of the standard tax form.
void registerSSA1099Form();

}  // namespace lw
