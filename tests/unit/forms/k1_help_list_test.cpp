#include <gtest/gtest.h>

#include <fstream>

#include "forms/k1_help.h"
#include "forms/k1_help_form.h"
#include "test_program.h"

namespace lw {
namespace {

TEST(K1HelpRow, TheTextBeforeTheBraceIsThePurposeAndTheRestTheInformation) {
    EXPECT_EQ(k1HelpGridRow("A| Cash contributions {Schedule A line 11} |"),
              "A\tCash contributions\tSchedule A line 11\t");
}

TEST(K1HelpRow, WithNoBracesThePurposeStandsUnchangedAndColumnTwoIsEmpty) {
    EXPECT_EQ(k1HelpGridRow("B| Involuntary conversions |"), "B\t Involuntary conversions \t\t");
}

TEST(K1HelpRow, ASecondOpeningBraceStaysAndEveryClosingOneGoes) {
    EXPECT_EQ(k1HelpGridRow("C|Purpose {see {Form 6781} and } more}|"),
              "C\tPurpose\tsee {Form 6781 and  more\t");
}

TEST(K1HelpRow, ABraceLeftOpenTakesTheRestAsInformation) {
    EXPECT_EQ(k1HelpGridRow("D|Purpose {still open|"), "D\tPurpose\tstill open\t");
}

TEST(K1HelpRow, TheThirdPartRunsOnFromTheInformation) {
    EXPECT_EQ(k1HelpGridRow("ZZ|Other {statement}|\tX"), "ZZ\tOther\tstatement\tX");
    EXPECT_EQ(k1HelpGridRow("ZZ|Other {statement}|X"), "ZZ\tOther\tstatementX\t")
        << "with no tab the mark lands in column 2";
    EXPECT_EQ(k1HelpGridRow("ZZ|Other|\tX\tmore\tcells"), "ZZ\tOther\t\tX") << "the grid has four columns";
    EXPECT_EQ(k1HelpGridRow("E|Purpose|third|fourth"), "E\tPurpose\tthird\t") << "only three parts are read";
}

TEST(K1HelpRow, ALineOfFewerThanThreePartsIsAFault) {
    EXPECT_THROW(k1HelpGridRow("A|Purpose"), std::out_of_range);
    EXPECT_THROW(k1HelpGridRow("A"), std::out_of_range);
    EXPECT_THROW(k1HelpGridRow(""), std::out_of_range);
}

TEST(K1HelpCaption, BoxGetsABlankAndDashesBecomeBlanks) {
    EXPECT_EQ(k1HelpCaption("K1-1065-Box11"), "Valid Entries for K1 1065 Box 11");
    EXPECT_EQ(k1HelpCaption("K1-1120S-Box12"), "Valid Entries for K1 1120S Box 12");
    EXPECT_EQ(k1HelpCaption("k1-1041-BOX9"), "Valid Entries for k1 1041 Box 9") << "found blind to case";
}

// The list opened on its own with a section of a file written by the test.
struct K1HelpList : ::testing::Test {
    testing::TestProgram test;

    void SetUp() override {
        test.start();
        infFile = (test.root / "K1Help.inf").string();
    }
    void write(const std::string& content) { std::ofstream(infFile, std::ios::binary) << content; }
    // Shows the section's list, cancelled; returns its caption and rows as shown.
    std::vector<std::string> show(const std::string& key) {
        members.listSectionKey = key;
        Desktop& desktop = test.program->desktop;
        Form& list = desktop.load(std::make_unique<K1HelpForm>(members, infFile), false);
        labels.clear();
        for (const char* name : {"Label0", "Label1", "Label2", "Label3"})
            labels.push_back(list.at(name).caption);
        listWidth = list.width;
        listHeight = list.height;
        desktop.showModal(list);
        return test.ui.k1Lists.back();
    }
    std::string infFile;
    K1HelpMembers members;
    std::vector<std::string> labels;
    int listWidth = 0;
    int listHeight = 0;
};

TEST_F(K1HelpList, TheLabelsTellWhereToReadMoreForTheKeysReturn) {
    write("[K1-1120S-Box12]\r\nA|Cash contributions (60%)|\r\n");
    const auto shown = show("K1-1120S-Box12");
    EXPECT_EQ(shown[0], "Valid Entries for K1 1120S Box 12");
    EXPECT_EQ(labels[0],
              "Additional information is available on the IRS website (www.irs.gov) in the\r\n"
              "Instructions for Schedule K-1 (Form 1120-S)\r\n"
              "Also refer to the Additional Information column in the screen.");
    EXPECT_EQ(labels[1],
              "Note: Most K1 codes require a MONETARY response.\r\n"
              "       A few require a TEXTUAL response.\r\n"
              "       An X in the O/R column will cause the MONEY edit\r\n"
              "       to be overridden and will allow TEXTUAL data.");
    EXPECT_EQ(labels[2], "Click to Select the appropriate Code - It will be inserted in the K1 form.");
    EXPECT_EQ(
        labels[3],
        "NOTE: If NO information available for an entry, you MUST refer to the document named above for "
        "information.");
    EXPECT_NE(show("K1-1041-Box9")[0], "");
    EXPECT_NE(labels[0].find("(Form 1041)"), std::string::npos);
    EXPECT_NE(show("K1-1065-Box20")[0], "");
    EXPECT_NE(labels[0].find("(Form 1065)"), std::string::npos);
}

TEST_F(K1HelpList, TheGridHasItsFourColumnsWithTheirWidthsAndAlignments) {
    write("[K1-1065-Box11]\r\nA|Other portfolio income|\r\n");
    Desktop& desktop = test.program->desktop;
    members.listSectionKey = "K1-1065-Box11";
    Form& list = desktop.load(std::make_unique<K1HelpForm>(members, infFile), false);
    const Control& grid = list.at("Grid1");
    EXPECT_EQ(grid.items.front(), "Box #\tPurpose\tAdditional Information\tO/R");
    EXPECT_EQ(grid.colWidths, (std::vector<int>{660, 9500, 5000, 600}));
    EXPECT_EQ(grid.colAlignments, (std::vector<int>{kGridAlignRightCenter, kGridAlignLeftCenter,
                                                    kGridAlignLeftCenter, kGridAlignCenterCenter}));
    EXPECT_GE(grid.width, 660 + 9500 + 5000 + 600);
    EXPECT_GE(list.width, grid.left + grid.width);
    EXPECT_EQ(list.at("cmdCancel").caption, "Cancel");
    desktop.unload(list);
}

TEST_F(K1HelpList, AMissingSectionOrFileGivesAnEmptyListAndNoMessage) {
    write("[K1-1065-Box11]\r\nA|Other portfolio income|\r\n");
    EXPECT_EQ(show("K1-1065-Box13").size(), 2u) << "caption and header row only";
    std::filesystem::remove(infFile);
    EXPECT_EQ(show("K1-1065-Box11").size(), 2u);
    EXPECT_TRUE(test.ui.reports.empty());
    EXPECT_TRUE(test.ui.boxes.empty());
}

TEST_F(K1HelpList, ALineWithoutBarsIsReportedAndTheRowsBeforeItStay) {
    write("[K1-1065-Box11]\r\nA|First|\r\nB no bars at all\r\nC|Never read|\r\n");
    const auto shown = show("K1-1065-Box11");
    ASSERT_EQ(shown.size(), 3u);
    EXPECT_EQ(shown[2], "A\tFirst\t\t");
    ASSERT_EQ(test.ui.reports.size(), 1u);
    EXPECT_EQ(test.ui.reports[0], "F6_K1Help:Form_Load: Subscript out of range");
}

TEST_F(K1HelpList, ASectionPastTheBufferIsCutAtItsEnd) {
    std::string section = "[K1-1065-Box20]\r\n";
    const auto line = [](int n) {
        return std::to_string(n) + "|Purpose of code " + std::to_string(n) + " {where to read}|";
    };
    int lines = 0;
    while (section.size() < 5000) section += line(100 + lines++) + "\r\n";
    write(section + "[Next]\r\nQ|q|\r\n");
    const auto shown = show("K1-1065-Box20");
    // Each line takes its length and a zero, and the list one more zero, in the buffer of 2048: the lines
    // that fit whole come, then the start of the next one, which has lost its last bar.
    const std::size_t each = line(100).size() + 1;
    const std::size_t whole = (kK1HelpSectionBuffer - 2) / each;
    ASSERT_GE(kK1HelpSectionBuffer - 2 - whole * each, 4u) << "the cut line keeps its first bar";
    ASSERT_EQ(shown.size(), 2 + whole);
    EXPECT_EQ(shown[2], "100\tPurpose of code 100\twhere to read\t");
    EXPECT_EQ(shown.back(), k1HelpGridRow(line(100 + static_cast<int>(whole) - 1)));
    ASSERT_EQ(test.ui.reports.size(), 1u) << "the cut line has two parts";
    EXPECT_EQ(test.ui.reports[0], "F6_K1Help:Form_Load: Subscript out of range");
    EXPECT_GE(listHeight, static_cast<int>(shown.size() - 1) * K1HelpForm::kRowHeight) << "every row shows";
}

TEST_F(K1HelpList, BytesOutsideTheCodePageAreShownAsTheyStand) {
    // UTF-8 of a euro sign and an unassigned byte of the code page: the list keeps the bytes.
    write("[K1-1065-Box11]\r\nA|Caf\xC3\xA9 \xE2\x82\xAC {\x81\x8D}|\t\x9D\r\n");
    const auto shown = show("K1-1065-Box11");
    ASSERT_EQ(shown.size(), 3u);
    EXPECT_EQ(shown[2], "A\tCaf\xC3\xA9 \xE2\x82\xAC\t\x81\x8D\t\x9D");
    EXPECT_TRUE(test.ui.reports.empty());
}

}  // namespace
}  // namespace lw
