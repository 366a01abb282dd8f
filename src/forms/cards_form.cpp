#include "forms/cards_form.h"

#include "fields/edit_ctl.h"
#include "fields/key_press.h"
#include "model/keys.h"
#include "model/program.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"
#include "shell/paths.h"
#include "text/case.h"
#include "text/masks.h"
#include "text/pieces.h"

namespace lw {

namespace {

constexpr const char* kNumberFields = "0,2,4,6,8,10,12,14,16";

bool isNumberField(const Control& ctl) { return text::equalsNoCase(ctl.tag, "TIN"); }

}  // namespace

CardsForm::CardsForm() : TaxForm("F2_SS_ITIN") {}

void CardsForm::onLoad() {
    initCatalogueForm(*this);
    Control& status = at("labelMisc");
    status.foreColor = kRed;
    status.caption =
        "Press Load TP1 or Load TP2 button to create SS/ITIN cards for all persons entered on the TPInfo "
        "form";
}

void CardsForm::refuse(int& keyAscii, const std::string& message) {
    CardMessage = message;
    Control& status = at("labelMisc");
    status.foreColor = kRed;
    status.caption = message;
    keyAscii = 0;
}

void CardsForm::showCard(int Index, const char* pictureName) {
    at("Image1", Index / 2).picture = fileNamedNoCase(program().g.edition.picturesFolder, pictureName);
}

void CardsForm::clearCard(int Index) { at("Image1", Index / 2).picture.clear(); }

void CardsForm::onKeyPress(Control& ctl, int& keyAscii) {
    if (!isFieldArray(ctl)) return;
    at("labelMisc").caption.clear();
    if (keyAscii == keys::kEnter) sendTabKey(*this);
    if (!isNumberField(ctl)) {
        if (keyAscii >= 'a' && keyAscii <= 'z') keyAscii -= 32;
        return;
    }
    const int Index = ctl.index;
    const std::size_t length = ctl.text.size();
    if (keyAscii == keys::kBackspace) {
        if (length == 1) clearCard(Index);
        setFocus(ctl);
    } else if (keyAscii == 'X' || keyAscii == 'x') {
        return refuse(keyAscii, "Appropriate number of 'X's' will appended");
    } else if (keyAscii == '-') {
        if (length != 3 && length != 6) return refuse(keyAscii, "HYPHEN ONLY allowed in 4th or 7th position");
    } else if (keyAscii < '0' || keyAscii > '9') {
        return refuse(keyAscii, "Only 0 through 9 and HYPHEN (-) are allowed");
    }
    // The first key of a number decides the card at once.
    if (!ctl.text.empty()) return;
    if (keyAscii == '-') return refuse(keyAscii, "SSN/ITIN can't start with HYPHEN (-)");
    if (keyAscii == '0') return refuse(keyAscii, "SSN/ITIN can't start with ZERO");
    showCard(Index, keyAscii == '9' ? "ITIN.JPG" : "SSN.JPG");
    setFocus(ctl);
}

void CardsForm::onValidate(Control& ctl, bool& Cancel) {
    if (!isFieldArray(ctl)) return;
    at("labelMisc").caption.clear();
    const int Index = ctl.index;
    if (isNumberField(ctl)) {
        showCard(Index, !ctl.text.empty() && ctl.text[0] == '9' ? "ITIN.jpg" : "SSN.jpg");
        std::string digits = text::replaceAll(ctl.text, "-", "");
        if (digits.empty()) {
            clearCard(Index);
        } else if (digits.size() < 3) {
            // A short number stands as typed; the message is kept and not shown.
            CardMessage = "SSN/ITIN must start with 3 or more Numbers";
            return;
        } else {
            if (digits.size() < 9) digits.append(9 - digits.size(), 'X');
            ctl.text = text::formatText(digits, "@@@-@@-@@@@");
        }
    }
    if (Index % 2 == 0 && checkDuplicateNumbers(kNumberFields, Index) != 99) Cancel = true;
}

void registerCardsForm() {
    registerForm("F2_SS_ITIN", [] { return std::make_unique<CardsForm>(); });
}

}  // namespace lw
