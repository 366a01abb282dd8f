#pragma once
// A typed field's look: its alignment, tip and fixed colours once when the form is set up, and its
// focus colour and selection each time it takes the focus. The field's Tag decides, and its form's
// FieldRules where the type leaves a choice.

#include "model/control.h"

namespace lw {

// setUp true: the one-time set-up of resetFormLook; false: the field has just taken the focus.
void setUpControl(Control& ctl, bool setUp);
void setUpAlignment(Control& ctl);
void setUpBackColor(Control& ctl);

// Hands the focus back to the field named by LastFieldKey after the taxpayer fill.
void refocusAfterTaxpayerFill();

// The colour of a failed field of each type: the legend's colour of that index.
Color legendColor(int index);

constexpr Color kOutOfScopeColor = 0x00E0E0E0;
constexpr const char* kMoneyTip = "Money: Dollar sign/commas optional";

// What a form says of the one-time set-up of its typed fields. A form that is none has the common rules.
class FieldRules {
public:
    virtual ~FieldRules() = default;
    // The alignment of a field whose type gives none: left.
    virtual int untypedFieldAlignment() const { return 0; }
    // The tip of a money field: the common one says the dollar sign and commas may be left out.
    virtual void giveMoneyTip(Control& field) const { field.toolTipText = kMoneyTip; }
};

}  // namespace lw
