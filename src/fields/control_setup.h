#pragma once
// A typed field's look: its alignment, tip and fixed colours once when the form is set up, and its
// focus colour and selection each time it takes the focus. The field's Tag decides, and its form's
// FieldRules where the type leaves a choice.

#include <array>

#include "model/control.h"

namespace lw {

struct OpenDocument;

// The colours of the edition's legend, by index: each type of field takes one on focus.
using LegendColors = std::array<Color, 10>;

// setUp true: the one-time set-up of resetFormLook; false: the field has just taken the focus. A field of
// the Text1 to Text5 arrays is noted as the document's last field, and its tip shown on the status line of
// the document's current form.
void setUpControl(Control& ctl, bool setUp, OpenDocument& document, const LegendColors& legend);
void setUpAlignment(Control& ctl, const LegendColors& legend);
void setUpBackColor(Control& ctl, const LegendColors& legend);

// Hands the focus back to the document's last field, on its current form, after the taxpayer fill.
void refocusAfterTaxpayerFill(const OpenDocument& document);

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
