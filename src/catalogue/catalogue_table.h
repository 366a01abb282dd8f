#pragma once
// The forms the program knows: each with its catalogue section, menu item, window title and fields.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lw {

struct TextArray {
    const char* name;
    int count;
};

// Facts about a form that its drawing does not tell, as bits of CatalogueEntry::traits.
enum FormTrait : unsigned {
    kNoTaxYear = 1,     // the form shows no tax year (no TaxYear(0) and TaxYear(1))
    kWholeOnPaper = 2,  // clipped and printed whole, not cut at its border; its copy header turns white
};

// How the check boxes of a form answer a click: most toggle, some come in pairs where marking one clears
// the other, and one group may admit one mark at most.
struct CheckRules {
    std::vector<std::pair<int, int>> pairs;
    std::vector<int> exclusiveGroup;  // the indexes of the one group whose boxes exclude each other
};

struct CatalogueEntry {
    const char* form;     // the form's name, e.g. FormW2
    const char* formKey;  // the name from its fourth character on, upper-cased
    const char* section;  // its section of Forms.inf
    const char* menuItem;
    const char* caption;
    std::vector<TextArray> textArrays;
    int checkCount;
    unsigned traits = 0;  // FormTrait bits
    CheckRules checks = {};
};

const std::vector<CatalogueEntry>& catalogue();
const CatalogueEntry* findCatalogueEntry(std::string_view formName);
// The name from its fourth character on, upper-cased: TF_W2 gives W2, F1_Configure gives CONFIGURE.
std::string formKeyOf(std::string_view formName);
// Whether the form of this key shows the tax year; a form outside the catalogue does.
bool formKeyHasTaxYear(std::string_view formKey);
// Whether the form of this name has the trait; a form outside the catalogue has none.
bool formHasTrait(std::string_view formName, FormTrait trait);
// The check rules of the form of this name; a form outside the catalogue only toggles.
const CheckRules& checkRulesOf(std::string_view formName);

}  // namespace lw
