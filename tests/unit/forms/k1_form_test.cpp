// The three Schedule K-1 forms as the program opens them: the keys that open the code list on each,
// Clear after a code picked from the list, the tab order and the amount that fails its edit.
#include "forms/k1_form.h"

#include <gtest/gtest.h>

#include <fstream>

#include "model/containers.h"
#include "model/keys.h"
#include "opened_form.h"
#include "shell/form_lifecycle.h"

namespace lw {
namespace {

struct K1Forms : testing::FormUnderTest<> {
    void SetUp() override {
        FormUnderTest::SetUp();
        test.program->g.edition.k1HelpInfFile = (test.root / "K1Help.inf").string();
        std::ofstream(test.program->g.edition.k1HelpInfFile, std::ios::binary)
            << "[K1-1065-Box11]\r\nA|Other portfolio income|\r\n"
               "[K1-1065-Box14]\r\nA|Net earnings from self-employment|\r\nC|Gross nonfarm income "
               "{words}|\tX\r\n"
               "[K1-1120S-Box13]\r\nA|Low-income housing credit|\r\n"
               "[K1-1041-Box9]\r\nA|Depreciation|\r\n[K1-1041-Box11]\r\nA|Excess deductions|\r\n";
    }
    void open(const char* name) {
        form = openCatalogueForm(name);
        ASSERT_NE(form, nullptr) << name;
    }
    Control& field(const char* name, int i) { return form->at(name, i); }
    // A key pressed in a field: the list it opens, if any, is cancelled.
    std::size_t listsAfterKey(Control& code, int keyCode, int keyAscii = 0) {
        desktop().setFocus(code);
        test.ui.k1Answers.push_back("cancel");
        desktop().pressKey(keyCode, 0, keyAscii);
        test.ui.k1Answers.clear();
        return test.ui.k1Lists.size();
    }
    const std::string& lastCaption() { return test.ui.k1Lists.back().front(); }
};

TEST_F(K1Forms, ThePartnershipOpensTheLeftListOnF1AloneAndTheRightOnAnyFunctionKey) {
    open("TF_K11065");
    EXPECT_EQ(listsAfterKey(field("Text2", 16), keys::kF1 + 1), 0u) << "F2 in the left column";
    EXPECT_EQ(listsAfterKey(field("Text2", 16), keys::kF1), 1u);
    EXPECT_EQ(lastCaption(), "Valid Entries for K1 1065 Box 11");
    EXPECT_EQ(listsAfterKey(field("Text4", 0), keys::kF12), 2u);
    EXPECT_EQ(lastCaption(), "Valid Entries for K1 1065 Box 14");
    EXPECT_EQ(listsAfterKey(field("Text4", 0), 'A', 'A'), 2u) << "a letter opens nothing";
    EXPECT_EQ(field("Text4", 0).text, "14") << "and types nothing into the locked code";
    EXPECT_EQ(listsAfterKey(field("Text2", 0), keys::kF1), 2u) << "a fixed row has no list";
}

TEST_F(K1Forms, TheSCorporationOpensBothListsOnF1Alone) {
    open("TF_K11120S");
    EXPECT_EQ(listsAfterKey(field("Text4", 0), keys::kF1 + 4), 0u);
    EXPECT_EQ(listsAfterKey(field("Text2", 12), keys::kF12), 0u);
    EXPECT_EQ(listsAfterKey(field("Text4", 0), keys::kF1), 1u);
    EXPECT_EQ(lastCaption(), "Valid Entries for K1 1120S Box 13");
    EXPECT_EQ(listsAfterKey(field("Text4", 0), 'B', 'B'), 1u);
}

TEST_F(K1Forms, TheEstateOpensTheListOnAPlainLetterToo) {
    open("TF_K11041");
    EXPECT_EQ(listsAfterKey(field("Text2", 11), 'A', 'A'), 1u);
    EXPECT_EQ(lastCaption(), "Valid Entries for K1 1041 Box 9");
    EXPECT_EQ(field("Text2", 11).text, "9") << "cancelled: the design box number stays";
    EXPECT_EQ(listsAfterKey(field("Text4", 1), keys::kF1 + 6), 2u);
    EXPECT_EQ(lastCaption(), "Valid Entries for K1 1041 Box 11");
    EXPECT_EQ(listsAfterKey(field("Text2", 0), 'A', 'A'), 2u) << "a fixed row has no list";
}

TEST_F(K1Forms, APickedCodeMovesOnToItsAmountOnTheSamePage) {
    open("TF_K11041");
    desktop().setFocus(field("Text4", 1));
    test.ui.k1Answers.push_back("A");
    desktop().pressKey('Q', 0, 'Q');
    EXPECT_EQ(field("Text4", 1).text, "A");
    EXPECT_EQ(desktop().focus(), &field("Text5", 1));
    EXPECT_EQ(tabOf(form->at("SSTab1")), 0);
}

TEST_F(K1Forms, ClearTakesBackTheBoxNumberAndTheMoneyCheckOfARowOverridden) {
    open("TF_K11065");
    desktop().setFocus(field("Text4", 0));
    test.ui.k1Answers.push_back("C");
    desktop().pressKey(keys::kF1, 0, 0);
    ASSERT_EQ(field("Text4", 0).text, "C");
    ASSERT_EQ(field("Text5", 0).tag, "");
    field("Text5", 0).text = "SEE STATEMENT";
    clearForm();
    EXPECT_EQ(field("Text4", 0).text, "14");
    EXPECT_EQ(field("Text5", 0).tag, "MONEY");
    EXPECT_EQ(field("Text5", 0).text, "");
    EXPECT_EQ(field("Text2", 3).text, "4a");
    EXPECT_EQ(field("Text4", 0).tag, "K1HELP\xB7K1-1065-Box14") << "the row stays coded";
}

TEST_F(K1Forms, TheTabOrderIsTheHeaderThenTheLeftColumnThenTheRightRowByRow) {
    for (const char* name : {"TF_K11065", "TF_K11120S", "TF_K11041"}) {
        open(name);
        std::vector<const Control*> expected;
        for (Control* c : form->arrayOf("Text1")) expected.push_back(c);
        for (const char* pair : {"23", "45"}) {
            const std::string code = std::string("Text") + pair[0], amount = std::string("Text") + pair[1];
            for (std::size_t i = 0; i < form->arrayOf(code).size(); ++i) {
                expected.push_back(&form->at(code, static_cast<int>(i)));
                expected.push_back(&form->at(amount, static_cast<int>(i)));
            }
        }
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_EQ(expected[i]->tabIndex, static_cast<int>(i)) << name << " " << expected[i]->key();
    }
}

TEST_F(K1Forms, AnAmountThatFailsItsEditKeepsTheFocusAndThePage) {
    open("TF_K11065");
    Control& amount = field("Text3", 13);
    desktop().setFocus(amount);
    amount.text = "12Q";
    desktop().tab(false);
    EXPECT_EQ(desktop().focus(), &amount);
    EXPECT_EQ(tabOf(form->at("SSTab1")), 0);
    EXPECT_NE(amount.backColor, kWhite) << "the failure colour of its type";
}

TEST_F(K1Forms, TheFocusOnACodedFieldHintsAtTheListAndOnAFixedOneAtItsTip) {
    open("TF_K11120S");
    desktop().setFocus(field("Text4", 16));
    EXPECT_EQ(form->at("labelMisc").caption, K1Form::kCodedHint);
    EXPECT_EQ(test.program->g.document.lastFieldKey, "Text4:16");
    EXPECT_EQ(tabOf(form->at("SSTab1")), 1);
    desktop().click(field("Text2", 0));
    EXPECT_EQ(form->at("labelMisc").caption, K1Form::kFixedTip);
    EXPECT_EQ(tabOf(form->at("SSTab1")), 0);
}

TEST_F(K1Forms, AKeyInTheCheckMarkAmountTogglesItBeforeTheKeyIsFiltered) {
    open("TF_K11065");
    Control& mark = field("Text5", 4);
    desktop().setFocus(mark);
    ASSERT_EQ(mark.text, "");
    int keyAscii = ' ';
    form->onKeyPress(mark, keyAscii);
    EXPECT_EQ(mark.text, "X");
    form->onKeyPress(mark, keyAscii);
    EXPECT_EQ(mark.text, "");
}

TEST_F(K1Forms, TypingInTheLockedCheckMarkOfTheSCorporationOnlyTogglesIt) {
    open("TF_K11120S");
    Control& mark = field("Text5", 5);
    desktop().setFocus(mark);
    desktop().typeCharacter('x');
    EXPECT_EQ(mark.text, "X");
    desktop().typeCharacter('x');
    EXPECT_EQ(mark.text, "");
}

TEST_F(K1Forms, TypingInThePartnershipsCheckMarkTogglesItAndTheKeyGoesOnToTheField) {
    open("TF_K11065");
    Control& mark = field("Text5", 4);
    desktop().setFocus(mark);
    desktop().typeCharacter('x');
    EXPECT_EQ(mark.text, "XX") << "the box is not locked: the key lands before the mark it made";
}

}  // namespace
}  // namespace lw
