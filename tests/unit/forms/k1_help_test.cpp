#include "forms/k1_help.h"

#include <gtest/gtest.h>

#include <fstream>

#include "forms/k1_help_form.h"
#include "shell/form_lifecycle.h"
#include "test_program.h"

namespace lw {
namespace {

const std::string kDot = "\xB7";

// A small K-1 of three left rows and two right rows, with a code list of its own. Text2(1) is a fixed
// row that prints its box number; the others are coded.
struct K1Help : ::testing::Test {
    testing::TestProgram test;
    Form* form = nullptr;
    K1DesignValues kept;
    std::string infFile;
    K1HelpMembers members;

    void SetUp() override {
        test.start();
        writeList(
            "[K1-1065-Box11]\r\n"
            "A|Other portfolio income {Schedule E}|\r\n"
            "C|Section 1256 contracts {Form 6781}|\r\n"
            "ZZ|Other income {statement from the partnership}|\tX\r\n"
            "[K1-1065-Box20]\r\n"
            "Z|Section 199A information {statement}|\tX\r\n"
            "A|Investment income {Form 4952}|\r\n");
        auto owned = std::make_unique<Form>("TF_K11065");
        owned->add(ControlKind::Label, "labelMisc");
        for (int i = 0; i < 3; ++i) {
            Control& code = owned->add(ControlKind::TextBox, "Text2", i);
            code.tag = "K1HELP" + kDot + "K1-1065-Box11";
            Control& amount = owned->add(ControlKind::TextBox, "Text3", i);
            amount.tag = i == 2 ? "-MONEY" : "MONEY";
        }
        Control& fixed = owned->at("Text2", 1);
        fixed.text = "9b";
        fixed.tag = "K1";
        for (int i = 0; i < 2; ++i) {
            owned->add(ControlKind::TextBox, "Text4", i).tag = "K1HELP" + kDot + "K1-1065-Box20";
            owned->add(ControlKind::TextBox, "Text5", i).tag = "MONEY";
        }
        form = &desktop().load(std::move(owned));
        kept = keptDesignValues(*form);
        g().document.currentForm = form;
        g().document.formKey = "K11065";
    }
    Desktop& desktop() { return test.program->desktop; }
    Globals& g() { return test.program->g; }
    Control& field(const char* name, int i) { return form->at(name, i); }
    void writeList(const std::string& content) {
        infFile = (test.root / "K1Help.inf").string();
        std::ofstream(infFile, std::ios::binary) << content;
    }
    // The list called from a code field that has the focus, answered with a code or "cancel".
    void pick(Control& code, const std::string& answer) {
        desktop().setFocus(code);
        test.ui.k1Answers.push_back(answer);
        desktop().dispatch([&] { openK1CodeList(*form, code, kept, infFile, members); });
    }
    const std::vector<std::string>& lastList() { return test.ui.k1Lists.back(); }
};

TEST_F(K1Help, APickedCodeGoesInTheFieldAndTheFocusToItsAmount) {
    pick(field("Text2", 0), "C");
    ASSERT_EQ(test.ui.k1Lists.size(), 1u);
    EXPECT_EQ(lastList()[0], "Valid Entries for K1 1065 Box 11");
    EXPECT_EQ(lastList()[1], "Box #\tPurpose\tAdditional Information\tO/R");
    EXPECT_EQ(lastList()[2], "A\tOther portfolio income\tSchedule E\t");
    EXPECT_EQ(lastList()[4], "ZZ\tOther income\tstatement from the partnership\tX");
    EXPECT_EQ(field("Text2", 0).text, "C");
    EXPECT_EQ(field("Text3", 0).tag, "MONEY");
    EXPECT_EQ(desktop().focus(), &field("Text3", 0));
    EXPECT_EQ(desktop().findForm("F6_K1Help"), nullptr) << "the list lives for one choice";
    EXPECT_EQ(members.chosenCode, "C");
    EXPECT_FALSE(members.listCancelled);
}

TEST_F(K1Help, AnOverrideLiftsTheMoneyCheckAndALaterPlainCodeOfTheRowRestoresIt) {
    pick(field("Text2", 2), "ZZ");
    EXPECT_EQ(field("Text2", 2).text, "ZZ");
    EXPECT_EQ(field("Text3", 2).tag, "");
    EXPECT_EQ(members.chosenOverride, "X");
    pick(field("Text2", 2), "A");
    EXPECT_EQ(field("Text2", 2).text, "A");
    EXPECT_EQ(field("Text3", 2).tag, "-MONEY") << "the design Tag of the row comes back";
}

TEST_F(K1Help, TheRightColumnOverridesItsOwnAmount) {
    pick(field("Text4", 1), "Z");
    EXPECT_EQ(lastList()[0], "Valid Entries for K1 1065 Box 20");
    EXPECT_EQ(field("Text4", 1).text, "Z");
    EXPECT_EQ(field("Text5", 1).tag, "");
    EXPECT_EQ(field("Text3", 1).tag, "MONEY");
    EXPECT_EQ(desktop().focus(), &field("Text5", 1));
}

TEST_F(K1Help, CancelLeavesTheEarlierCodeAndTheAmountsTag) {
    pick(field("Text2", 0), "ZZ");
    pick(field("Text2", 0), "cancel");
    EXPECT_EQ(field("Text2", 0).text, "ZZ");
    EXPECT_EQ(field("Text3", 0).tag, "");
    EXPECT_TRUE(members.listCancelled);
    EXPECT_EQ(members.chosenCode, "");
    EXPECT_EQ(desktop().focus(), &field("Text2", 0));
    EXPECT_EQ(desktop().findForm("F6_K1Help"), nullptr);
}

TEST_F(K1Help, OnlyACapitalXOverrides) {
    writeList("[K1-1065-Box11]\r\nQ|Words wanted|\tx\r\n");
    pick(field("Text2", 0), "Q");
    EXPECT_EQ(field("Text2", 0).text, "Q");
    EXPECT_EQ(field("Text3", 0).tag, "MONEY");
}

TEST_F(K1Help, AFieldWithNoSectionShowsNoList) {
    field("Text2", 0).tag = "K1HELP";
    pick(field("Text2", 0), "A");
    EXPECT_TRUE(test.ui.k1Lists.empty());
    field("Text2", 0).tag = "K1HELP" + kDot;
    pick(field("Text2", 0), "A");
    EXPECT_TRUE(test.ui.k1Lists.empty());
    EXPECT_EQ(field("Text2", 0).text, "");
}

// What the K-1's own step of Clear puts back after the fields are emptied.
TEST_F(K1Help, ClearPutsBackTheDesignTextsAndTags) {
    pick(field("Text2", 0), "ZZ");
    pick(field("Text4", 0), "Z");
    field("Text2", 1).text = "typed";
    clearForm();
    restoreK1DesignValues(*form, kept);
    EXPECT_EQ(field("Text2", 0).text, "");
    EXPECT_EQ(field("Text2", 1).text, "9b");
    EXPECT_EQ(field("Text3", 0).tag, "MONEY");
    EXPECT_EQ(field("Text5", 0).tag, "MONEY");
    EXPECT_EQ(field("Text4", 0).text, "");
}

TEST_F(K1Help, ClearOfAFormWithoutTheK1sOwnStepLeavesItsTagsAlone) {
    pick(field("Text2", 0), "ZZ");
    clearForm();
    EXPECT_EQ(field("Text3", 0).tag, "") << "only the K-1 forms keep their design";
    EXPECT_EQ(field("Text2", 1).text, "");
}

TEST_F(K1Help, ACodeFieldWithNoAmountIsReportedAndNothingBreaks) {
    Control& stray = form->add(ControlKind::TextBox, "Text2", 7);
    stray.tag = "K1HELP" + kDot + "K1-1065-Box11";
    pick(stray, "A");
    EXPECT_EQ(stray.text, "A") << "the code was written before the amount was looked for";
    ASSERT_EQ(test.ui.reports.size(), 1u);
    EXPECT_EQ(test.ui.reports[0].rfind("M3_Ledgerwick:K1_Help_KeyDown: ", 0), 0u) << test.ui.reports[0];
    EXPECT_EQ(desktop().findForm("F6_K1Help"), nullptr);
}

TEST_F(K1Help, TheDesignValuesAreKeptByIndex) {
    EXPECT_EQ(kept.text2, (std::vector<std::string>{"", "9b", ""}));
    EXPECT_EQ(kept.tag3, (std::vector<std::string>{"MONEY", "MONEY", "-MONEY"}));
    EXPECT_EQ(kept.text4, (std::vector<std::string>{"", ""}));
    EXPECT_EQ(kept.tag5, (std::vector<std::string>{"MONEY", "MONEY"}));
}

}  // namespace
}  // namespace lw
