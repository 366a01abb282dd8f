#pragma once
// What leaving a typed field does: editField picks the edit by the field's Tag, the edit rewrites the Text
// to its normal form, and the outcome is painted. A true result lets the focus leave.
// Every edit catches its own failures: the field takes the failure colour of its type with red text,
// the status line labelMisc of the document's current form tells why, and the focus is asked back to the
// field.

#include <cstdint>
#include <string>

#include "fields/edit_context.h"
#include "model/control.h"

namespace lw {

// The dispatcher that onText1Validate calls: Cancel = !editField(ctl, context). An empty field always
// stands.
bool editField(Control& ctl, const EditContext& context);

// Amounts: "$1,234.50"; SMONEY has no dollar sign; a negative amount shows in parentheses.
bool editMoney(Control& ctl, const EditContext& context);
bool editMoneyNegativeOk(Control& ctl, const EditContext& context);

// Whole numbers grouped by thousands; numbers whose decimals stay as typed; a year of this century.
bool editNumeric(Control& ctl, const EditContext& context);
bool editNumericDecimalOk(Control& ctl, const EditContext& context);
bool editYear(Control& ctl, const EditContext& context);

// Identifiers typed short are filled with X: 914 gives 91-4XXXXXX, 123 gives 123-XX-XXXX.
bool editEin(Control& ctl, const EditContext& context);
bool editSsnOrItin(Control& ctl, const EditContext& context);
// Sixteen characters grouped by four: XXXX-XXXX-XXXX-XXXX.
bool editVerificationCode(Control& ctl, const EditContext& context);
// The name and address block: leading blank lines go, the name line is normalized, all upper case.
bool editNameBlock(Control& ctl);
// Seven digits get the area code 999; ten digits are shown as (212) 555-1212. Never fails.
bool editPhone(Control& ctl);

// Looks for the text of Text1(fieldIndex) of the document's current form among Text1(0) to Text1(n-1), n
// being the number of items of the comma list; the items' values are not used. 99 for no duplicate, else
// the index found; a duplicate is selected for overtyping and the operator told in a box on the desktop.
std::int32_t checkDuplicateNumbers(const std::string& indexList, int fieldIndex, const OpenDocument& document,
                                   Desktop& desktop);

// Places of textGiven where wanted starts, overlapping ones included; blind to case unless caseSensitive.
std::int16_t countCharacters(const std::string& textGiven, const std::string& wanted, bool caseSensitive);

}  // namespace lw
