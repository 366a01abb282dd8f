// F3_DL, two training driver's licenses: a name gives a license its number, a birth date its issue and
// expiration dates, and a click on one of the sixteen portraits puts it on the first license (left
// button) or the second (any other button).
#pragma once

#include "documents/record.h"
#include "forms/tax_form.h"

namespace lw {

class F3_DL : public TaxForm, public ChosenPictures {
public:
    F3_DL();

    void onLoad() override;
    void onValidate(Control& ctl, bool& Cancel) override;
    void onClick(Control& ctl, MouseButton button) override;
    // Clear takes the portraits away, so their numbers go too.
    void refillAfterClear() override;

    int& chosenPicture(int which) override { return which == 1 ? p_iDL1PicIndex : p_iDL2PicIndex; }

    // The portrait of each license, 1 to 16, or 0 for none.
    int p_iDL1PicIndex = 0;
    int p_iDL2PicIndex = 0;

private:
    void fillAfterLeaving(Control& ctl, bool& Cancel);
};

void registerLicenseForm();

}  // namespace lw
