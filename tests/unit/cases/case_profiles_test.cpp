#include <gtest/gtest.h>

#include <filesystem>
#include <algorithm>
#include <fstream>

#include "cases/case_lists.h"
#include "cases/case_profiles.h"
#include "cases/class_set.h"

namespace lw::cases {
namespace {

namespace fs = std::filesystem;

const std::string kData = std::string(LW_SOURCE_DIR) + "/data/";

std::string scratchFile(const std::string& name, const std::string& content) {
    const fs::path path = fs::temp_directory_path() / ("lw-cases-" + name);
    std::ofstream(path, std::ios::binary) << content;
    return path.string();
}

TEST(CaseProfiles, TheShippedProfilesAreTheSevenKindsOfHousehold) {
    const auto profiles = readProfiles(kData + "CaseProfiles.inf");
    std::vector<std::string> names;
    for (const Profile& p : profiles) names.push_back(p.name);
    EXPECT_EQ(names, (std::vector<std::string>{"single-worker", "married-with-children", "retiree", "student",
                                               "self-employed", "marketplace-family", "investor"}));
    const Profile& retiree = profiles[2];
    EXPECT_EQ(retiree.title, "Retiree with Social Security and a pension");
    EXPECT_EQ(retiree.ages.lo, 66);
    const auto pension = std::find_if(retiree.documents.begin(), retiree.documents.end(),
                                      [](const DocumentRule& rule) { return rule.kind == DocumentKind::Pension; });
    ASSERT_NE(pension, retiree.documents.end());
    EXPECT_EQ(pension->count.lo, 1);
    EXPECT_EQ(pension->amount.lo, 6000);
    EXPECT_EQ(pension->amount.hi, 42000);
}

TEST(CaseProfiles, EveryDocumentKindIsMadeBySomeShippedProfile) {
    const auto profiles = readProfiles(kData + "CaseProfiles.inf");
    for (DocumentKind kind : everyDocumentKind()) {
        bool made = false;
        for (const Profile& p : profiles)
            for (const DocumentRule& rule : p.documents) made = made || (rule.kind == kind && rule.count.hi > 0);
        EXPECT_TRUE(made) << documentKey(kind);
    }
}

TEST(CaseProfiles, AValueThatIsNoRangeNamesTheFileTheProfileAndTheKey) {
    const std::string file = scratchFile("bad-range.inf", "[odd]\r\nW2=two\r\n");
    try {
        readProfiles(file);
        FAIL() << "no error";
    } catch (const std::runtime_error& e) {
        EXPECT_NE(std::string(e.what()).find("[odd] W2: \"two\" is not a number"), std::string::npos) << e.what();
    }
    const std::string backwards = scratchFile("backwards.inf", "[odd]\r\nW2.Wages=9000-100\r\nW2=1\r\n");
    EXPECT_THROW(readProfiles(backwards), std::runtime_error);
    const std::string many = scratchFile("many.inf", "[odd]\r\nINT=1-200000\r\n");
    try {
        readProfiles(many);
        FAIL() << "no error";
    } catch (const std::runtime_error& e) {
        EXPECT_NE(std::string(e.what()).find("[odd] INT: \"1-200000\" asks for more than 20 of a document"),
                  std::string::npos)
            << e.what();
    }
    EXPECT_EQ(readProfiles(scratchFile("twenty.inf", "[odd]\r\nINT=20\r\n"))[0].documents[0].count.hi, 20);
    const std::string empty = scratchFile("empty.inf", "; nothing\r\n");
    EXPECT_THROW(readProfiles(empty), std::runtime_error);
}

TEST(CaseProfiles, ATrainersOwnCopyTakesPrecedence) {
    const fs::path root = fs::temp_directory_path() / "lw-cases-own-root";
    fs::remove_all(root);
    EXPECT_EQ(profileFileFor(kData, root.string()), kData + "CaseProfiles.inf");
    fs::create_directories(root / "LedgerwickInfFiles");
    std::ofstream(root / "LedgerwickInfFiles" / "CaseProfiles.inf") << "[mine]\nTitle=Mine\nW2=1\n";
    EXPECT_EQ(profileFileFor(kData, root.string()), (root / "LedgerwickInfFiles" / "CaseProfiles.inf").string());
    fs::remove_all(root);
}

TEST(CaseLists, TheShippedListsAreWholeAndTownsCarryTheirZipCodes) {
    const CaseLists lists = readCaseLists(kData + "CaseLists.inf");
    EXPECT_GE(lists.surnames.size(), 50u);
    EXPECT_GE(lists.towns.size(), 30u);
    for (const Town& town : lists.towns) {
        EXPECT_EQ(town.state.size(), 2u) << town.name;
        EXPECT_EQ(town.zip.size(), 5u) << town.name;
        EXPECT_EQ(town.areaCode.size(), 3u) << town.name;
    }
    EXPECT_EQ(lists.portraitsFemale.size() + lists.portraitsMale.size(), 16u);
    const std::string broken = scratchFile("lists.inf", "[Towns]\r\nSPRINGFIELD|IL\r\n");
    EXPECT_THROW(readCaseLists(broken), std::runtime_error);
}

}  // namespace
}  // namespace lw::cases
