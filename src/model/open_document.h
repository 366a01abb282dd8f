#pragma once
// The document on the screen: its form, its file, its record, and what the catalogue says of its form.

#include <optional>
#include <string>
#include <vector>

#include "model/save_outcome.h"

namespace lw {

class Form;

// Values of the catalogue for the form on the screen, refreshed whenever a form opens.
struct CatalogueValues {
    std::string formTitle;
    std::string recordPrefix;
    std::string ssnIndex;
    std::string nameAddrIndex;
    std::string nameOnlyIndex;
    std::string dobIndex;
    std::string medicareClaimNoIndex;
    std::string medicareNoIndex;
    std::string einIndex;
    std::string otherInfo;
    int focusOnStartup = 0;
    int focusAfterTaxpayerButton = 0;
};

struct OpenDocument {
    Form* currentForm = nullptr;  // the form that the shared procedures work on
    std::string formKey;
    std::string currentFileName;
    std::string formRecord;
    // How the form for an existing file ended the last save that showed it.
    std::optional<SaveOutcome> lastSaveOutcome;
    std::string lastFieldKey;  // the field the taxpayer fill hands the focus back to
    CatalogueValues catalogue;
};

}  // namespace lw
