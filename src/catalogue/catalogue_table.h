#pragma once
// The forms the program knows: each with its catalogue section, menu item, window title and fields.

#include <string>
#include <string_view>
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

struct CatalogueEntry {
    const char* form;     // the form's name, e.g. FormW2
    const char* formKey;  // the name from its fourth character on, upper-cased
    const char* section;  // its section of Forms.inf
    const char* menuItem;
    const char* caption;
    std::vector<TextArray> textArrays;
    int checkCount;
    unsigned traits = 0;  // FormTrait bits
};

const std::vector<CatalogueEntry>& catalogue();
const CatalogueEntry* findCatalogueEntry(std::string_view formName);
// The name from its fourth character on, upper-cased: TF_W2 gives W2, F1_Configure gives CONFIGURE.
std::string formKeyOf(std::string_view formName);
// Whether the form of this key shows the tax year; a form outside the catalogue does.
bool formKeyHasTaxYear(std::string_view formKey);
// Whether the form of this name has the trait; a form outside the catalogue has none.
bool formHasTrait(std::string_view formName, FormTrait trait);

}  // namespace lw
