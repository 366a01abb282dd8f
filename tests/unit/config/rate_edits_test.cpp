#include <gtest/gtest.h>

#include <memory>

#include "config/rates.h"
#include "config_fixture.h"

namespace lw::test {
namespace {

const char* const kRateProc = "M3_Ledgerwick:SS_MC_Edit_Rate";
const char* const kMoneyProc = "M3_Ledgerwick:SS_MC_Edit_Money";
const char* const kSSRateFormat = "Invalid Social Security Rate - Format is #, ##, #.#, #.##, ##.# or ##.##";
const char* const kMCRateFormat = "Invalid Medicare Rate - Format is #, ##, #.#, ##.#, #.## or ##.##";

// A form with the six figure fields and one field to stand on, loaded on the desktop.
class RateEditTest : public ConfigTest {
protected:
    void SetUp() override {
        ConfigTest::SetUp();
        auto owned = std::make_unique<Form>("F1_Configure");
        for (const char* name : {"Elsewhere", "txtSSRate", "txtSSMax", "txtMCInitRate", "txtMCChgRateAfter",
                                 "txtMCRateAfter", "txtMCPartBPremiums", "txtOther", "txtMcMixedCase"})
            owned->add(ControlKind::TextBox, name);
        form = &desktop().load(std::move(owned));
        g().document.currentForm = form;
        desktop().setFocus(form->at("Elsewhere"));
    }

    Control& field(const char* name) { return form->at(name); }

    Form* form = nullptr;
};

struct EditRow {
    const char* field;
    const char* typed;
    bool good;
    const char* after;        // the field's text afterwards
    int number;               // of the Data Error, when refused
    const char* description;  // of the Data Error, when refused
};

void PrintTo(const EditRow& row, std::ostream* os) { *os << row.field << " \"" << row.typed << '"'; }

// Runs one edit on a row: a good text is rewritten and the focus moves on; a bad one is reported as a
// Data Error of the edit and keeps the focus.
class EditRowTest : public RateEditTest, public ::testing::WithParamInterface<EditRow> {
protected:
    void check(bool (*edit)(Control&), const char* proc) {
        const EditRow& row = GetParam();
        Control& ctl = field(row.field);
        ctl.text = row.typed;
        EXPECT_EQ(edit(ctl), row.good);
        EXPECT_EQ(ctl.text, row.after);
        if (row.good) {
            EXPECT_TRUE(boxes.empty());
            EXPECT_EQ(desktop().focus(), &field("Elsewhere"));
            return;
        }
        ASSERT_EQ(boxes.size(), 1u);
        EXPECT_EQ(boxes[0].title, "Data Error");
        EXPECT_EQ(boxes[0].message, dataErrorText(proc, row.number, row.description));
        EXPECT_EQ(desktop().focus(), &ctl);
    }
};

class RateEdit : public EditRowTest {};

TEST_P(RateEdit, KeepsOnlyTheRateFormats) { check(checkRateField, kRateProc); }

INSTANTIATE_TEST_SUITE_P(
    Table, RateEdit,
    ::testing::Values(
        EditRow{"txtSSRate", "6.2%", true, "6.2", 0, ""}, EditRow{"txtSSRate", "6.2", true, "6.2", 0, ""},
        EditRow{"txtSSRate", "%6.2%", true, "6.2", 0, ""}, EditRow{"txtSSRate", "7", true, "7", 0, ""},
        EditRow{"txtSSRate", "12", true, "12", 0, ""}, EditRow{"txtSSRate", "0.5", true, "0.5", 0, ""},
        EditRow{"txtSSRate", "7.25%", true, "7.25", 0, ""},
        EditRow{"txtSSRate", "12.65%", true, "12.65", 0, ""},
        EditRow{"txtSSRate", "12.59", true, "12.59", 0, ""},
        EditRow{"txtSSRate", "12.5-", true, "12.5-", 0, ""},
        EditRow{"txtSSRate", "", false, "", 800, "Social Security/Medicare Rate is Mandatory."},
        EditRow{"txtSSRate", "%", false, "%", 801, "Social Security/Medicare Rate must be NUMERIC"},
        EditRow{"txtSSRate", "abc", false, "abc", 801, "Social Security/Medicare Rate must be NUMERIC"},
        EditRow{"txtSSRate", "6.2.1%", false, "6.2.1%", 801, "Social Security/Medicare Rate must be NUMERIC"},
        EditRow{"txtSSRate", "100", false, "100", 803, kSSRateFormat},
        EditRow{"txtSSRate", "12.5", false, "12.5", 803, kSSRateFormat},
        EditRow{"txtSSRate", "12.5%", false, "12.5%", 803, kSSRateFormat},
        EditRow{"txtSSRate", "6.255", false, "6.255", 803, kSSRateFormat},
        EditRow{"txtSSRate", ".5", false, ".5", 803, kSSRateFormat},
        EditRow{"txtSSRate", "-6.2", false, "-6.2", 803, kSSRateFormat},
        EditRow{"txtSSRate", " 6.2", false, " 6.2", 803, kSSRateFormat},
        EditRow{"txtMCInitRate", "1.45%", true, "1.45", 0, ""},
        EditRow{"txtMCInitRate", "100", false, "100", 802, kMCRateFormat},
        EditRow{"txtMCRateAfter", "12.5", false, "12.5", 802, kMCRateFormat},
        EditRow{"txtMcMixedCase", "100", false, "100", 802, kMCRateFormat},
        EditRow{"txtMCRateAfter", "", false, "", 800, "Social Security/Medicare Rate is Mandatory."}));

class MoneyEdit : public EditRowTest {};

TEST_P(MoneyEdit, RoundsAndLimitsTheAmounts) { check(checkRateAmountField, kMoneyProc); }

INSTANTIATE_TEST_SUITE_P(
    Table, MoneyEdit,
    ::testing::Values(
        EditRow{"txtSSMax", "168600.50", true, "168,600.00", 0, ""},
        EditRow{"txtSSMax", "168601.50", true, "168,602.00", 0, ""},
        EditRow{"txtSSMax", "168600.51", true, "168,601.00", 0, ""},
        EditRow{"txtSSMax", "168,600", true, "168,600.00", 0, ""},
        EditRow{"txtSSMax", "168,600.00", true, "168,600.00", 0, ""},
        EditRow{"txtSSMax", "0.5", true, ".00", 0, ""}, EditRow{"txtSSMax", "5-", true, "-5.00", 0, ""},
        EditRow{"txtSSMax", "1000000", true, "1,000,000.00", 0, ""},
        EditRow{"txtSSMax", "1000000.5", true, "1,000,000.00", 0, ""},
        EditRow{"txtSSMax", "1000000.51", false, "1000000.51", 803,
                "Amount CANNOT be Greater Than 1,000,000.00"},
        EditRow{"txtSSMax", "1000001", false, "1000001", 803, "Amount CANNOT be Greater Than 1,000,000.00"},
        EditRow{"txtSSMax", "", false, "", 801, "Amount is MANDATORY!"},
        EditRow{"txtSSMax", "abc", false, "abc", 802, "Amount IS NOT NUMERIC - commas, decimals are OK"},
        EditRow{"txtSSMax", "$5", false, "$5", 802, "Amount IS NOT NUMERIC - commas, decimals are OK"},
        EditRow{"txtMCChgRateAfter", "200000", true, "200,000.00", 0, ""},
        EditRow{"txtMCChgRateAfter", "106,000", true, "106,000.00", 0, ""},
        EditRow{"txtMCChgRateAfter", "1,000,001", false, "1,000,001", 803,
                "Amount CANNOT be Greater Than 1,000,000.00"},
        EditRow{"txtMCPartBPremiums", "2220", true, "2,220.00", 0, ""},
        EditRow{"txtMCPartBPremiums", "2,096.40", true, "2,096.40", 0, ""},
        EditRow{"txtMCPartBPremiums", "1234.565", true, "1,234.57", 0, ""},
        EditRow{"txtMCPartBPremiums", "3000", true, "3,000.00", 0, ""},
        EditRow{"txtMCPartBPremiums", "3000.004", true, "3,000.00", 0, ""},
        EditRow{"txtMCPartBPremiums", "3000.01", false, "3000.01", 804,
                "Amount CANNOT be Greater Than 3,000.00"},
        EditRow{"txtMCPartBPremiums", "3000.005", false, "3000.005", 804,
                "Amount CANNOT be Greater Than 3,000.00"},
        EditRow{"txtMCPartBPremiums", "", false, "", 801, "Amount is MANDATORY!"}));

TEST_F(RateEditTest, AMoneyEditOnAnotherFieldIsAProgramError) {
    Control& other = field("txtOther");
    other.text = "5";
    EXPECT_FALSE(checkRateAmountField(other));
    EXPECT_TRUE(boxes.empty());
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].module, kMoneyProc);
    EXPECT_EQ(reports[0].number, "900");
    EXPECT_EQ(reports[0].description, "Program Error");
    EXPECT_EQ(other.text, "5");
}

class ValidateAllTest : public RateEditTest {
protected:
    void fill(const char* ssRate, const char* ssMax, const char* mcRate, const char* change,
              const char* after, const char* premium) {
        field("txtSSRate").text = ssRate;
        field("txtSSMax").text = ssMax;
        field("txtMCInitRate").text = mcRate;
        field("txtMCChgRateAfter").text = change;
        field("txtMCRateAfter").text = after;
        field("txtMCPartBPremiums").text = premium;
    }
};

TEST_F(ValidateAllTest, SixGoodFiguresPassAndTakeTheirNormalForm) {
    fill("6.2%", "176100", "1.45", "200000", "2.35%", "2220");
    EXPECT_TRUE(validateAllRates(*form));
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(field("txtSSRate").text, "6.2");
    EXPECT_EQ(field("txtSSMax").text, "176,100.00");
    EXPECT_EQ(field("txtMCChgRateAfter").text, "200,000.00");
    EXPECT_EQ(field("txtMCRateAfter").text, "2.35");
    EXPECT_EQ(field("txtMCPartBPremiums").text, "2,220.00");
}

TEST_F(ValidateAllTest, TheFirstBadFigureInFormOrderEndsIt) {
    fill("6.2", "176100", "100", "2000000", "2.35", "2220");
    EXPECT_FALSE(validateAllRates(*form));
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].message, dataErrorText(kRateProc, 802, kMCRateFormat));
    EXPECT_EQ(desktop().focus(), &field("txtMCInitRate"));
    // The fields after the failure are not looked at.
    EXPECT_EQ(field("txtMCChgRateAfter").text, "2000000");
}

TEST_F(ValidateAllTest, ALastBadPremiumFailsAfterTheOthersPassed) {
    fill("6.2", "176100", "1.45", "200000", "2.35", "3000.01");
    EXPECT_FALSE(validateAllRates(*form));
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].message, dataErrorText(kMoneyProc, 804, "Amount CANNOT be Greater Than 3,000.00"));
    EXPECT_EQ(field("txtMCChgRateAfter").text, "200,000.00");
}

}  // namespace
}  // namespace lw::test
