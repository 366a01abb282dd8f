#include "fields/box_dollar_sign.h"

namespace lw {

bool takesBoxDollarSign(const Control& field) { return field.isTextBox() && field.tag == "SMONEY"; }

}  // namespace lw
