#include "forms/cards_form.h"

#include "fields/edit_ctl.h"
#include "fields/key_press.h"
#include "model/app_error.h"
#include "model/edition_settings.h"
#include "model/keys.h"
#include "model/ports.h"
#include "model/process_state.h"
#include "shell/form_lifecycle.h"
#include "shell/form_registry.h"
#include "shell/paths.h"
#include "taxpayer/tin_cards.h"
#include "text/case.h"
#include "text/masks.h"
#include "text/pieces.h"

namespace lw {

namespace {

constexpr const char* kNumberFields = "0,2,4,6,8,10,12,14,16";

bool isNumberField(const Control& ctl) { return text::equalsNoCase(ctl.tag, "TIN"); }

}  // namespace

CardsForm::CardsForm(const ProgramParts& parts) : TaxForm("F2_SS_ITIN", parts) {}

void CardsForm::onLoad() {
    initCatalogueForm(*this);
    Control& status = at("labelMisc");
    status.foreColor = kRed;
    status.caption =
        "Press Load TP1 or Load TP2 button to create SS/ITIN cards for all persons entered on the TPInfo "
        "form";
}

void CardsForm::refuse(int& keyAscii, const std::string& message) {
    cardMessage = message;
    Control& status = at("labelMisc");
    status.foreColor = kRed;
    status.caption = message;
    keyAscii = 0;
}

void CardsForm::showCard(int fieldIndex, const char* pictureName) {
    at("Image1", fieldIndex / 2).picture = fileNamedNoCase(parts().edition.picturesFolder, pictureName);
}

void CardsForm::clearCard(int fieldIndex) { at("Image1", fieldIndex / 2).picture.clear(); }

void CardsForm::onKeyPress(Control& ctl, int& keyAscii) {
    if (!isFieldArray(ctl)) return;
    at("labelMisc").caption.clear();
    if (keyAscii == keys::kEnter) sendTabKey(*this);
    if (!isNumberField(ctl)) {
        if (keyAscii >= 'a' && keyAscii <= 'z') keyAscii -= 32;
        return;
    }
    const int fieldIndex = ctl.index;
    const std::size_t length = ctl.text.size();
    if (keyAscii == keys::kBackspace) {
        if (length == 1) clearCard(fieldIndex);
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
    showCard(fieldIndex, keyAscii == '9' ? "ITIN.JPG" : "SSN.JPG");
    setFocus(ctl);
}

void CardsForm::onValidate(Control& ctl, bool& cancel) {
    if (!isFieldArray(ctl)) return;
    at("labelMisc").caption.clear();
    const int fieldIndex = ctl.index;
    if (isNumberField(ctl)) {
        showCard(fieldIndex, !ctl.text.empty() && ctl.text[0] == '9' ? "ITIN.jpg" : "SSN.jpg");
        std::string digits = text::replaceAll(ctl.text, "-", "");
        if (digits.empty()) {
            clearCard(fieldIndex);
        } else if (digits.size() < 3) {
            // A short number stands as typed; the message is kept and not shown.
            cardMessage = "SSN/ITIN must start with 3 or more Numbers";
            return;
        } else {
            if (digits.size() < 9) digits.append(9 - digits.size(), 'X');
            ctl.text = text::formatText(digits, "@@@-@@-@@@@");
        }
    }
    if (fieldIndex % 2 == 0 &&
        checkDuplicateNumbers(kNumberFields, fieldIndex, parts().document, parts().desktop) != 99)
        cancel = true;
}

void CardsForm::giveOwnLook() {
    for (const auto& owned : controls()) {
        Control& c = *owned;
        const bool isLabel = c.kind == ControlKind::Label || c.kind == ControlKind::CheckLabel;
        if (isLabel && c.name != "label3" && c.name != "label4" && c.name != "label5")
            c.backColor = kButtonFace;
    }
}

void CardsForm::styleTextBox(Control& box) {
    if (box.index % 2 == 0)
        setTextFont(box, "Tahoma", 14, true);
    else
        setTextFont(box, "Tahoma", 11, true);
}

std::optional<std::string> CardsForm::ownFileName() const {
    std::string name = "SS_ITIN_" + at("Text1", 1).text;
    if (const std::string& second = at("Text1", 3).text; !second.empty()) name += "_" + second;
    return name + "_000";
}

// The nine cards pair a number Text1(n) with a name Text1(n+1); the first bad pair stops the check.
void CardsForm::checkBeforeRecord() const {
    constexpr const char* kBuildLabel = "M4_FileCode:Build_Record";
    bool anyFilled = false;
    for (int n = 0; n <= 16; n += 2) {
        const Control* number = find("Text1", n);
        const Control* name = find("Text1", n + 1);
        const bool hasNumber = number && !number->text.empty();
        const bool hasName = name && !name->text.empty();
        if (hasNumber && !hasName)
            throw AppError(801, "One or more SS or ITIN cards has a Number without a Name", kBuildLabel);
        if (hasName && !hasNumber)
            throw AppError(802, "One or more SS or ITIN cards has a Name without a Number", kBuildLabel);
        anyFilled = anyFilled || hasNumber;
    }
    if (!anyFilled) throw AppError(803, "All SS/ITIN cards are blank, They WILL NOT be saved.", kBuildLabel);
}

// An ITIN starts with 9.
void CardsForm::afterFileRead() {
    for (const auto& owned : controls()) {
        const Control& c = *owned;
        if (!c.isTextBox() || c.index < 0 || !text::equalsNoCase(c.tag, "TIN") || c.text.empty()) continue;
        at("Image1", c.index / 2).picture =
            joinPath(parts().edition.picturesFolder, c.text[0] == '9' ? "ITIN.jpg" : "SSN.jpg");
    }
}

bool CardsForm::cutToDocument() {
    auto card = [&](int n) -> Control& { return at("Frame1", n); };
    const int t0 = card(0).top, t3 = card(3).top, t6 = card(6).top;
    const int l0 = card(0).left, l1 = card(1).left, l2 = card(2).left;
    const int h = card(0).height, w = card(1).width;
    int hidden = 0;
    for (int n = 0; n <= 16; n += 2) {
        if (!at("Text1", n).text.empty()) continue;
        card(n / 2).visible = false;
        ++hidden;
    }
    if (hidden == 0) return true;
    auto anyShown = [&](int a, int b, int c) {
        return card(a).visible || card(b).visible || card(c).visible;
    };
    height = anyShown(6, 7, 8) ? t6 + h : anyShown(3, 4, 5) ? t3 + h : t0 + h;
    width = anyShown(2, 5, 8) ? l2 + w : anyShown(1, 4, 7) ? l1 + w : l0 + w;
    parts().ui.refresh();
    return true;
}

bool CardsForm::putBackAfterClip() {
    for (Control* card : arrayOf("Frame1")) card->visible = true;
    return true;
}

bool CardsForm::fillTaxpayers(const std::string& who, const TPInfoRec&, const TPInfoRec&) {
    fillTaxpayersCard(*this, who == "TP 2" ? 2 : 1, parts().process.userNameUpper, parts().edition);
    return true;
}

void registerCardsForm() {
    registerForm("F2_SS_ITIN", [](const ProgramParts& parts) { return std::make_unique<CardsForm>(parts); });
}

}  // namespace lw
