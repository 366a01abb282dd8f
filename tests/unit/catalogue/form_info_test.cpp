#include "catalogue/form_info.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "model/form.h"
#include "model/open_document.h"
#include "store/scratch_folder.h"

namespace lw {
namespace {

struct FormInfoTest : ::testing::Test {
    store::ScratchFolder folder{"lw_form_info_"};
    std::string formsInf = (std::filesystem::path(folder.path()) / "Forms.inf").string();
    OpenDocument document;
    Form form{"TF_1099MISC"};

    void SetUp() override {
        ASSERT_FALSE(folder.path().empty());
        std::ofstream file(formsInf, std::ios::binary);
        file << "[1099MISC]\r\nFormName=TF_1099MISC\r\nRecordPrefix=1099-MISC\r\nSSNIndex="
                "6\r\nFocusOnStartup=4\r\n"
             << "FocusAfterTPButton=7\r\nOtherInfo=0\r\nRTL1=Long text  with  spaces\r\n"
             << "[Plain]\r\nFormName=Plain\r\nFocusOnStartup=abc\r\nFocusAfterTPButton=\r\n"
             << "[Long]\r\nExact=" << std::string(1023, 'x') << "\r\nOver=" << std::string(1500, 'y')
             << "\r\n";
        file.close();
        document.currentForm = &form;
    }
    std::string read(const std::string& section, const std::string& key) {
        return readFormInfo(section, key, formsInf);
    }
};

TEST_F(FormInfoTest, AFormNameAndARecordPrefixLeadToTheSameSection) {
    EXPECT_EQ(read("TF_1099MISC", "RecordPrefix"), "1099-MISC");
    EXPECT_EQ(read("1099-MISC", "RecordPrefix"), "1099-MISC");
}

TEST_F(FormInfoTest, ASectionTextWithoutAnUnderscoreIsUsedAsItStands) {
    EXPECT_EQ(read("Plain", "FormName"), "Plain");
}

TEST_F(FormInfoTest, SpacesInsideAValueStay) {
    EXPECT_EQ(read("TF_1099MISC", "RTL1"), "Long text  with  spaces");
}

TEST_F(FormInfoTest, AValueOf1023CharactersComesWholeAndALongerOneIsCut) {
    EXPECT_EQ(read("X_Long", "Exact").size(), 1023u);
    EXPECT_EQ(read("X_Long", "Over"), std::string(1023, 'y'));
}

TEST_F(FormInfoTest, MissingValuesAreEmpty) {
    EXPECT_EQ(read("TF_NOWHERE", "FormName"), "");
    EXPECT_EQ(readFormInfo("TF_1099MISC", "FormName", formsInf + ".missing"), "");
}

TEST_F(FormInfoTest, LoadFillsTheValuesOfTheCurrentForm) {
    loadFormInfo(document, formsInf);
    EXPECT_EQ(document.catalogue.formTitle, "TF_1099MISC");
    EXPECT_EQ(document.catalogue.recordPrefix, "1099-MISC");
    EXPECT_EQ(document.catalogue.ssnIndex, "6");
    EXPECT_EQ(document.catalogue.otherInfo, "0");
    EXPECT_EQ(document.catalogue.dobIndex, "");
    EXPECT_EQ(document.catalogue.focusOnStartup, 4);
    EXPECT_EQ(document.catalogue.focusAfterTaxpayerButton, 7);
}

TEST_F(FormInfoTest, AFocusValueThatIsNoNumberKeepsThatOfTheFormBefore) {
    loadFormInfo(document, formsInf);
    Form plain("X_Plain");
    document.currentForm = &plain;
    loadFormInfo(document, formsInf);
    EXPECT_EQ(document.catalogue.formTitle, "Plain");
    EXPECT_EQ(document.catalogue.focusOnStartup, 4);
    EXPECT_EQ(document.catalogue.focusAfterTaxpayerButton, 7);
}

}  // namespace
}  // namespace lw
