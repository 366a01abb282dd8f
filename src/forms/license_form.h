// LicenseForm, two training driver's licenses: a name gives a license its number, a birth date its issue and
// expiration dates, and a click on one of the sixteen portraits puts it on the first license (left
// button) or the second (any other button).
#pragma once

#include "documents/record.h"
#include "forms/tax_form.h"

namespace lw {

class LicenseForm : public TaxForm, public ChosenPictures {
public:
    explicit LicenseForm(const ProgramParts& parts);

    void onLoad() override;
    void onValidate(Control& ctl, bool& cancel) override;
    void onClick(Control& ctl, MouseButton button) override;
    // Clear takes the portraits away, so their numbers go too.
    void refillAfterClear() override;
    // On the screen the portraits to choose from show below the licenses, and the form grows to them.
    void giveOwnLook() override;
    // The second license's holder stands in the file name by last name.
    OtherInFileName otherInFileName() const override { return OtherInFileName::LastName; }
    // On paper the two licenses alone: no portraits to choose from, and no second portrait unless the
    // second license has a holder.
    bool cutToDocument() override;
    // Load TP fills both licenses, then gives them their numbers and expiry dates.
    bool fillTaxpayers(const std::string& who, const TPInfoRec& a, const TPInfoRec& b) override;

    int& chosenPicture(int which) override {
        return which == 1 ? license1PictureIndex : license2PictureIndex;
    }

    // The portrait of each license, 1 to 16, or 0 for none.
    int license1PictureIndex = 0;
    int license2PictureIndex = 0;

private:
    void fillAfterLeaving(Control& ctl, bool& cancel);
};

void registerLicenseForm();

}  // namespace lw
