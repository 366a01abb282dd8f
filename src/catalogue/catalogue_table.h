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

struct CatalogueEntry {
    const char* form;     // the form's name, e.g. FormW2
    const char* formKey;  // the name from its fourth character on, upper-cased
    const char* section;  // its section of Forms.inf
    const char* menuItem;
    const char* caption;
    std::vector<TextArray> textArrays;
    int checkCount;
    bool hasTaxYear = true;  // the form shows the tax year in TaxYear(0) and TaxYear(1)
};

const std::vector<CatalogueEntry>& catalogue();
const CatalogueEntry* findCatalogueEntry(std::string_view formName);
// The name from its fourth character on, upper-cased: TF_W2 gives W2, F1_Configure gives CONFIGURE.
std::string formKeyOf(std::string_view formName);
// Whether the form of this key shows the tax year; a form outside the catalogue does.
bool formKeyHasTaxYear(std::string_view formKey);

}  // namespace lw
