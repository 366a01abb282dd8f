#pragma once
// What the logic knows of a form beyond its fields: read from the catalogue file each time a form opens.

#include <optional>
#include <string>

namespace lw {

struct OpenDocument;

// One value of the catalogue file. The section is the text behind the first "_" with every "-" removed,
// except SS_ITIN, which stands as it is: TF_W2, W2 and a record prefix such as 1099-MISC all lead home.
std::string readFormInfo(const std::string& section, const std::string& key, const std::string& formsInfFile);
// The first field index of a comma list of the catalogue (SSNIndex, NameAddrIndex ...); nothing for an
// empty list or one that starts with no number.
std::optional<int> firstFieldIndex(const std::string& list);
// Fills the document's catalogue values for its current form. The two focus values keep those of the form
// opened before when the file has no number for them.
void loadFormInfo(OpenDocument& document, const std::string& formsInfFile);

}  // namespace lw
