#pragma once
// The longest value an operator gives each field of the forms: a block of five lines of forty capitals
// for a name and address, the widest amount the box is meant for, whole identifiers and dates, the
// longest code of a K-1 row. What a field holds is told by its tag, and by its place for the fields
// that carry none.

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "model/form.h"

namespace lw::testing {

class LongestValues {
public:
    // The codes of the K-1 boxes, read from the shipped list.
    explicit LongestValues(const std::string& k1HelpFile);

    // The value as the operator types it; nothing for a field the program fills itself. A field of a
    // kind the table does not know gives an empty text, which the test reports.
    std::optional<std::string> of(const Form& form, const Control& field);
    // The code of the K-1 box named after the tag's dot that is widest in the field's face.
    std::string widestCode(const Control& field) const;

private:
    std::map<std::string, std::vector<std::string>> k1Codes_;
    int identifiers_ = 0;  // numbers given so far: each is new, as the cards and the sheet require
};

}  // namespace lw::testing
