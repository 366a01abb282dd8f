#pragma once
// How a code gets into a coded box of a K-1: the list of the box's valid codes, the code put in the field,
// the focus moved on to its amount, and the amount's money check switched off for codes that take words.

#include <string>
#include <vector>

#include "forms/k1_help_form.h"
#include "model/form.h"

namespace lw {

// The design Text of a K-1's code fields (Text2, Text4) and the design Tag of their amounts (Text3,
// Text5), by index, as the form loaded: Clear puts them back and the code list takes back an override.
struct K1DesignValues {
    std::vector<std::string> text2;
    std::vector<std::string> tag3;
    std::vector<std::string> text4;
    std::vector<std::string> tag5;
};

// Called from a K-1 code field (Text2 or Text4) whose Tag reads "K1HELP·<section>": shows the section's
// list, read from the code list file infFile, and, on a choice, writes the code into the field and moves
// on to the row's amount (Text3 or Text5 of the same Index), whose money check comes back from the kept
// design first. Cancel leaves the field, the amount and its Tag as they were. members carries the section
// to the list and its answer back; it outlives the list.
void openK1CodeList(Form& form, Control& field, const K1DesignValues& kept, const std::string& infFile,
                    K1HelpMembers& members);

// The design values of a K-1 form as it stands, read as it loads.
K1DesignValues keptDesignValues(const Form& form);
// Puts back the kept design values: the box numbers of the code fields and the amounts' money checks,
// so that no code or override chosen from the list outlives Clear.
void restoreK1DesignValues(Form& form, const K1DesignValues& kept);

}  // namespace lw
