#include "taxpayer/tin_cards.h"

#include <array>
#include <string>

#include "diagnostics/error_tail.h"
#include "model/edition_settings.h"
#include "model/form.h"
#include "shell/paths.h"
#include "store/inf_store.h"
#include "text/case.h"
#include "text/cp1252.h"
#include "text/pieces.h"

namespace lw {

namespace {

struct StoredPerson {
    std::string name;
    std::string number;
};

struct StoredCase {
    StoredPerson tp[2];
    std::array<std::string, 7> dependents;  // "NAME·NUMBER" as stored
};

// The name on a card is the first line of the person's block.
std::string firstLine(const std::string& block) {
    const std::size_t mark = block.find(text::kLineSeparator);
    return mark == std::string::npos ? block : block.substr(0, mark);
}

StoredCase readStoredCase(const std::string& userSection, const std::string& userInfFile) {
    StoredCase found;
    for (const std::string& entry : store::readInfSection(userSection, userInfFile, store::kInfValueBuffer)) {
        const std::size_t eq = entry.find('=');
        if (entry.empty() || eq == std::string::npos) continue;
        const std::string key = text::toLower(entry.substr(0, eq));
        const std::string value = entry.substr(eq + 1);
        if (key == "tp1nameaddr")
            found.tp[0].name = firstLine(value);
        else if (key == "tp2nameaddr")
            found.tp[1].name = firstLine(value);
        else if (key == "tp1ssn" || key == "tp1tin")
            found.tp[0].number = value;
        else if (key == "tp2ssn" || key == "tp2tin")
            found.tp[1].number = value;
        else if (key.size() == 10 && key.compare(0, 9, "dependent") == 0 && key[9] >= '1' && key[9] <= '7')
            found.dependents[static_cast<std::size_t>(key[9] - '1')] = value;
    }
    return found;
}

void fillCardFromTaxpayer(Form& form, int n, const StoredPerson& person) {
    form.at("Text1", n).text = person.number;
    form.at("Text1", n + 1).text = person.name;
}

// The button's taxpayer first; Load TP 2 with no second taxpayer still makes the first one's card.
void fillTaxpayerCards(Form& form, const StoredCase& found, int who) {
    const StoredPerson& first = found.tp[0];
    const StoredPerson& second = found.tp[1];
    if (who == 1 && !first.name.empty()) {
        fillCardFromTaxpayer(form, 0, first);
        if (!second.name.empty()) fillCardFromTaxpayer(form, 2, second);
    } else if (who == 2 && !second.name.empty()) {
        fillCardFromTaxpayer(form, 0, second);
        if (!first.name.empty()) fillCardFromTaxpayer(form, 2, first);
    } else if (who == 2) {
        fillCardFromTaxpayer(form, 0, first);
    }
}

// Persons with a name but no number get no card.
void fillDependentCards(Form& form, const StoredCase& found) {
    int n = form.at("Text1", 2).text.empty() ? 2 : 4;
    for (const std::string& stored : found.dependents) {
        if (stored.empty()) continue;
        const std::vector<std::string> pieces = text::split(stored, std::string(1, text::kFieldSeparator));
        if (pieces.size() < 2 || pieces[1].empty()) continue;
        form.at("Text1", n + 1).text = pieces[0];
        form.at("Text1", n).text = pieces[1];
        n += 2;
    }
}

}  // namespace

void fillTaxpayersCard(Form& form, int who, const std::string& userSection, const EditionSettings& edition) {
    runGuarded("M6_TPInfo:TPInfo_Process_TIN_Cards", [&] {
        const StoredCase found = readStoredCase(userSection, edition.userInfFile);
        for (Control* field : form.arrayOf("Text1")) field->text.clear();
        for (Control* image : form.arrayOf("Image1")) image->picture.clear();
        fillTaxpayerCards(form, found, who);
        fillDependentCards(form, found);
        for (int n = 0; n <= 16; n += 2) {
            const std::string& number = form.at("Text1", n).text;
            if (number.empty()) continue;
            if (number[0] == '9')
                form.at("Image1", n / 2).picture = joinPath(edition.picturesFolder, "ITIN.jpg");
            else if (number[0] >= '1' && number[0] <= '8')
                form.at("Image1", n / 2).picture = joinPath(edition.picturesFolder, "SSN.jpg");
        }
    });
}

}  // namespace lw
