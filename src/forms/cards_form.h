// CardsForm, the identity cards of a case: nine Social Security or ITIN cards. A number field takes
// only digits and hyphens in their places and is padded with "X" when left; the first digit decides
// which card it is. Names are upper-cased as typed and kept as they are.
#pragma once

#include <string>

#include "forms/tax_form.h"

namespace lw {

class CardsForm : public TaxForm {
public:
    explicit CardsForm(const ProgramParts& parts);

    void onLoad() override;
    void onKeyPress(Control& ctl, int& keyAscii) override;
    void onValidate(Control& ctl, bool& cancel) override;
    // The labels take the panel's grey, but for the three that carry the cards' own colour.
    void giveOwnLook() override;
    // Numbers in Tahoma 14 bold, names in Tahoma 11 bold.
    void styleTextBox(Control& box) override;
    // A field whose type aligns nothing stands centred on its card.
    int untypedFieldAlignment() const override { return 2; }
    // The cards are named after the first two people on them, as typed.
    std::optional<std::string> ownFileName() const override;
    // Every card needs both its number and its name, and at least one card must be filled.
    void checkBeforeRecord() const override;
    // Each card read with a number shows the card of its kind.
    void afterFileRead() override;
    // On paper no card moves: the empty ones are hidden and the form is cut to the rows and columns
    // still in use; after a clip every card shows again.
    bool cutToDocument() override;
    bool putBackAfterClip() override;
    // Load TP makes a card for every person of the store with a number, the button's person first.
    bool fillTaxpayers(const std::string& who, const TPInfoRec& a, const TPInfoRec& b) override;

    // The last message of the key and leave rules, shown or not.
    std::string cardMessage;

private:
    void refuse(int& keyAscii, const std::string& message);
    void showCard(int index, const char* pictureName);
    void clearCard(int index);
};

void registerCardsForm();

}  // namespace lw
