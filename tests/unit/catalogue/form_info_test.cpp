#include "catalogue/form_info.h"

#include <gtest/gtest.h>

#include <fstream>

#include "test_program.h"

namespace lw {
namespace {

struct FormInfoTest : ::testing::Test {
    testing::TestProgram test;
    Form form{"TF_1099MISC"};

    void SetUp() override {
        std::string path = (test.root / "Forms.inf").string();
        std::ofstream file(path, std::ios::binary);
        file << "[1099MISC]\r\nFormName=TF_1099MISC\r\nRecordPrefix=1099-MISC\r\nSSNIndex="
                "6\r\nFocusOnStartup=4\r\n"
             << "FocusAfterTPButton=7\r\nOtherInfo=0\r\nRTL1=Long text  with  spaces\r\n"
             << "[Plain]\r\nFormName=Plain\r\nFocusOnStartup=abc\r\nFocusAfterTPButton=\r\n"
             << "[Long]\r\nExact=" << std::string(1023, 'x') << "\r\nOver=" << std::string(1500, 'y')
             << "\r\n";
        file.close();
        test.program->g.edition.formsInfFile = path;
        test.program->g.document.currentForm = &form;
    }
};

TEST_F(FormInfoTest, AFormNameAndARecordPrefixLeadToTheSameSection) {
    EXPECT_EQ(readFormInfo("TF_1099MISC", "RecordPrefix"), "1099-MISC");
    EXPECT_EQ(readFormInfo("1099-MISC", "RecordPrefix"), "1099-MISC");
}

TEST_F(FormInfoTest, ASectionTextWithoutAnUnderscoreIsUsedAsItStands) {
    EXPECT_EQ(readFormInfo("Plain", "FormName"), "Plain");
}

TEST_F(FormInfoTest, SpacesInsideAValueStay) {
    EXPECT_EQ(readFormInfo("TF_1099MISC", "RTL1"), "Long text  with  spaces");
}

TEST_F(FormInfoTest, AValueOf1023CharactersComesWholeAndALongerOneIsCut) {
    EXPECT_EQ(readFormInfo("X_Long", "Exact").size(), 1023u);
    EXPECT_EQ(readFormInfo("X_Long", "Over"), std::string(1023, 'y'));
}

TEST_F(FormInfoTest, MissingValuesAreEmpty) {
    EXPECT_EQ(readFormInfo("TF_NOWHERE", "FormName"), "");
    test.program->g.edition.formsInfFile = (test.root / "missing.inf").string();
    EXPECT_EQ(readFormInfo("TF_1099MISC", "FormName"), "");
}

TEST_F(FormInfoTest, LoadFillsTheValuesOfTheCurrentForm) {
    loadFormInfo();
    const Globals& g = test.program->g;
    EXPECT_EQ(g.document.catalogue.formTitle, "TF_1099MISC");
    EXPECT_EQ(g.document.catalogue.recordPrefix, "1099-MISC");
    EXPECT_EQ(g.document.catalogue.ssnIndex, "6");
    EXPECT_EQ(g.document.catalogue.otherInfo, "0");
    EXPECT_EQ(g.document.catalogue.dobIndex, "");
    EXPECT_EQ(g.document.catalogue.focusOnStartup, 4);
    EXPECT_EQ(g.document.catalogue.focusAfterTaxpayerButton, 7);
}

TEST_F(FormInfoTest, AFocusValueThatIsNoNumberKeepsThatOfTheFormBefore) {
    loadFormInfo();
    Form plain("X_Plain");
    test.program->g.document.currentForm = &plain;
    loadFormInfo();
    EXPECT_EQ(test.program->g.document.catalogue.formTitle, "Plain");
    EXPECT_EQ(test.program->g.document.catalogue.focusOnStartup, 4);
    EXPECT_EQ(test.program->g.document.catalogue.focusAfterTaxpayerButton, 7);
}

}  // namespace
}  // namespace lw
