#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>

#include "forms/k1_help_form.h"
#include "store/inf_store.h"
#include "test_program.h"
#include "text/pieces.h"

namespace lw {
namespace {

std::set<std::string> letters(char first, char last) {
    std::set<std::string> codes;
    for (char c = first; c <= last; ++c) codes.insert(std::string(1, c));
    return codes;
}

std::set<std::string> with(std::set<std::string> codes, std::initializer_list<const char*> more) {
    for (const char* code : more) codes.insert(code);
    return codes;
}

// The codes of each coded box as the current instructions for Schedule K-1 give them, copied from the
// project's reference list of K-1 codes (shared/reference/k1-codes.md) so that the test stands alone.
const std::map<std::string, std::set<std::string>>& referenceCodes() {
    static const std::set<std::string> credits =
        with(letters('A', 'Z'),
             {"AA", "AB", "AC", "AD", "AE", "AF", "AG", "AH", "AI", "AJ", "AK", "AL", "AM", "AO", "ZZ"});
    static const std::map<std::string, std::set<std::string>> codes{
        {"K1-1041-Box9", letters('A', 'C')},
        {"K1-1041-Box11", letters('A', 'G')},
        {"K1-1041-Box12", letters('A', 'J')},
        {"K1-1041-Box13",
         {"A", "B", "C", "D", "F", "G", "H", "I", "J", "K", "M", "N", "O", "P", "Q", "R", "ZZ"}},
        {"K1-1041-Box14", with(letters('A', 'I'), {"ZZ"})},
        {"K1-1065-Box11", with(letters('A', 'H'), {"ZZ"})},
        {"K1-1065-Box13",
         with(letters('A', 'S'), {"V", "W", "X", "Y", "Z", "AA", "AB", "AC", "AD", "AE", "ZZ"})},
        {"K1-1065-Box14", letters('A', 'C')},
        {"K1-1065-Box15", credits},
        {"K1-1065-Box17", letters('A', 'F')},
        {"K1-1065-Box18", letters('A', 'C')},
        {"K1-1065-Box19", letters('A', 'C')},
        {"K1-1065-Box20", with(letters('A', 'T'), {"V", "W", "X", "Y", "Z", "AA", "AB", "AC", "AD", "AE",
                                                   "AF", "AG", "AJ", "ZZ"})},
        {"K1-1120S-Box10", with(letters('A', 'D'), {"ZZ"})},
        {"K1-1120S-Box12", with(letters('A', 'J'), {"L", "M", "N", "O", "ZZ"})},
        {"K1-1120S-Box13", credits},
        {"K1-1120S-Box15", letters('A', 'F')},
        {"K1-1120S-Box16", letters('A', 'F')},
        {"K1-1120S-Box17", with(letters('A', 'R'), {"U", "V", "AA", "AB", "AC", "ZZ"})},
    };
    return codes;
}

std::string shippedList() { return testing::shippedDataFolder() + "/K1Help.inf"; }

TEST(ShippedK1Help, EverySectionOfTheFormsIsThereAndFitsTheBuffer) {
    ASSERT_TRUE(std::filesystem::is_regular_file(shippedList()));
    for (const auto& [section, codes] : referenceCodes()) {
        const auto lines = store::readInfSection(section, shippedList(), kK1HelpSectionBuffer);
        EXPECT_FALSE(lines.empty()) << section;
        EXPECT_EQ(lines, store::readInfSection(section, shippedList(), 1 << 20))
            << section << " is cut by the buffer";
    }
}

TEST(ShippedK1Help, EveryLineHasThreePartsAPurposeAPlaceToReadMoreAndAKnownCode) {
    for (const auto& [section, codes] : referenceCodes()) {
        std::set<std::string> seen;
        for (const std::string& line : store::readInfSection(section, shippedList(), kK1HelpSectionBuffer)) {
            const std::vector<std::string> parts = text::split(line, "|");
            ASSERT_EQ(parts.size(), 3u) << section << ": " << line;
            EXPECT_EQ(codes.count(parts[0]), 1u)
                << section << " has a code the instructions do not: " << line;
            EXPECT_TRUE(seen.insert(parts[0]).second) << section << " lists a code twice: " << line;
            const std::vector<std::string> row = text::split(k1HelpGridRow(line), "\t");
            ASSERT_EQ(row.size(), 4u);
            EXPECT_FALSE(row[1].empty()) << line;
            EXPECT_FALSE(row[2].empty()) << section << " " << parts[0] << " tells nowhere to read more";
            EXPECT_EQ(row[2].find('{'), std::string::npos) << line;
            EXPECT_TRUE(parts[2].empty() || parts[2] == "\tX")
                << "only a tab and X mark an override: " << line;
        }
        EXPECT_EQ(seen, codes) << section << " lacks a code of the instructions";
    }
}

std::string informationOf(const std::string& section, const std::string& code) {
    for (const std::string& line : store::readInfSection(section, shippedList(), kK1HelpSectionBuffer)) {
        const std::vector<std::string> row = text::split(k1HelpGridRow(line), "\t");
        if (row.at(0) == code) return row.at(2);
    }
    return "(no code " + code + ")";
}

TEST(ShippedK1Help, DepletionForTheMinimumTaxPointsToTheDepletionLineOfForm6251) {
    EXPECT_EQ(informationOf("K1-1041-Box12", "H"), "Form 6251 line 2d");
    EXPECT_EQ(informationOf("K1-1065-Box17", "C"), "Form 6251 line 2d");
    EXPECT_EQ(informationOf("K1-1120S-Box15", "C"), "Form 6251 line 2d");
}

TEST(ShippedK1Help, TheCodesToldInWordsOverrideTheMoneyCheck) {
    const std::map<std::string, std::set<std::string>> overridden{
        {"K1-1041-Box14", {"I", "ZZ"}},
        {"K1-1065-Box13", {"ZZ"}},
        {"K1-1065-Box20", {"O", "P", "Q", "T", "X", "Z", "AA", "ZZ"}},
        {"K1-1120S-Box12", {"J"}},
        {"K1-1120S-Box16", {"B"}},
        {"K1-1120S-Box17", {"M", "N", "O", "R", "V", "ZZ"}},
    };
    for (const auto& [section, codes] : referenceCodes()) {
        std::set<std::string> marked;
        for (const std::string& line : store::readInfSection(section, shippedList(), kK1HelpSectionBuffer)) {
            const std::vector<std::string> row = text::split(k1HelpGridRow(line), "\t");
            if (row.at(3) == "X") marked.insert(row[0]);
        }
        const auto wanted = overridden.find(section);
        EXPECT_EQ(marked, wanted == overridden.end() ? std::set<std::string>{} : wanted->second) << section;
    }
}

TEST(ShippedK1Help, StartUpPlacesTheListInTheInfFolder) {
    testing::TestProgram test;
    test.start();
    const std::string installed = test.program->g.edition.k1HelpInfFile;
    ASSERT_TRUE(std::filesystem::is_regular_file(installed)) << installed;
    EXPECT_EQ(std::filesystem::file_size(installed), std::filesystem::file_size(shippedList()));
    EXPECT_EQ(store::readInfSection("K1-1065-Box20", installed, kK1HelpSectionBuffer),
              store::readInfSection("K1-1065-Box20", shippedList(), kK1HelpSectionBuffer));
}

}  // namespace
}  // namespace lw
