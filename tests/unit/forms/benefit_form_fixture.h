#pragma once
// The SSA-1099 or the RRB-1099 opened from its menu item on 10 June 2025, whose Part B premium of the
// year, 2220.00, stands in one of its boxes.

#include <string>
#include <utility>

#include "model/keys.h"
#include "opened_form.h"

namespace lw::testing {

template <class FormType>
class BenefitForm : public OpenedForm<FormType> {
protected:
    BenefitForm(std::string menuItem, std::string formName, int premiumBox)
        : OpenedForm<FormType>(std::move(menuItem), std::move(formName)), premiumBox_(premiumBox) {}

    Control& box(int i) { return this->field(i); }
    // The premium of the year takes part in the sums: most tests start without it.
    void withoutPremium() {
        this->desktop().setFocus(box(premiumBox_));
        this->desktop().pressKey(keys::kDelete, 0, 0);
        ASSERT_EQ(box(premiumBox_).text, "");
    }

private:
    int premiumBox_;
};

}  // namespace lw::testing
