#include "store/record_line.h"

#include <gtest/gtest.h>

namespace lw::store {
namespace {

// "·" and "»" as the single bytes they are on disk.
const std::string D = "\xB7";
const std::string R = "\xBB";
// A control outside any array.
constexpr int kNoIndexForTest = -1;

TEST(RecordLine, AFormWithFieldsIsPrefixYearAndKeyValuePairs) {
    EXPECT_EQ(buildRecordLine("W-2", "2025", {{"TXT0", "MARY"}, {"CHK1", "X"}}),
              "W-2" + D + "2025" + D + "TXT0=MARY" + D + "CHK1=X");
}

TEST(RecordLine, AnEmptyFormIsFieldZeroSeparatorFieldOne) {
    EXPECT_EQ(buildRecordLine("W-2", "2025", {}), "W-2" + D + "2025");
    EXPECT_EQ(buildRecordLine("CHK", "", {}), "CHK" + D);
    EXPECT_EQ(buildRecordLine("CHK", "", {{"TXT0", "A"}}), "CHK" + D + D + "TXT0=A");
}

TEST(RecordLine, LineFeedsAreDroppedAndCarriageReturnsBecomeTheLineMark) {
    EXPECT_EQ(recordValue("MARY A SAMPLE\r\n12 MAIN ST\r\nANYTOWN, OH 44000"),
              "MARY A SAMPLE" + R + "12 MAIN ST" + R + "ANYTOWN, OH 44000");
    EXPECT_EQ(recordValue("A\nB\rC"), "AB" + R + "C");
    const std::string line = buildRecordLine("TPINFO", "2025", {{"TXT0", "A\r\nB"}});
    EXPECT_EQ(line, "TPINFO" + D + "2025" + D + "TXT0=A" + R + "B");
    EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos) << "the line ends once only";
}

TEST(RecordLine, AValueHoldingEqualsIsWrittenWholeAndReadBackCut) {
    const std::string line = buildRecordLine("W-2", "2025", {{"TXT0", "A=B"}});
    EXPECT_EQ(line, "W-2" + D + "2025" + D + "TXT0=A=B");
    auto field = parseRecordField(splitRecordLine(line)[2]);
    ASSERT_TRUE(field);
    EXPECT_EQ(field->key, "TXT0");
    EXPECT_EQ(field->value, "A");
}

TEST(RecordLine, ASeparatorInAValueSplitsTheFieldAndTheTailHasNoEquals) {
    const std::string line = buildRecordLine("W-2", "2025", {{"TXT0", "A" + D + "B"}, {"TXT1", "C"}});
    std::vector<std::string> pieces = splitRecordLine(line);
    ASSERT_EQ(pieces.size(), 5u);
    EXPECT_EQ(pieces[2], "TXT0=A");
    EXPECT_EQ(pieces[3], "B");
    EXPECT_FALSE(parseRecordField(pieces[3]));
}

TEST(RecordLine, SplittingKeepsEmptyPieces) {
    EXPECT_EQ(splitRecordLine("CHK" + D + D + "TXT0=A"), (std::vector<std::string>{"CHK", "", "TXT0=A"}));
    EXPECT_EQ(splitRecordLine(""), (std::vector<std::string>{""}));
    EXPECT_EQ(splitRecordLine("CHK" + D), (std::vector<std::string>{"CHK", ""}));
}

TEST(RecordLine, TheLineMarkComesBackAsCarriageReturnLineFeed) {
    auto field = parseRecordField("TXT0=A" + R + "B" + R);
    ASSERT_TRUE(field);
    EXPECT_EQ(field->value, "A\r\nB\r\n");
    auto empty = parseRecordField("TXT3=");
    ASSERT_TRUE(empty);
    EXPECT_EQ(empty->value, "");
}

TEST(RecordLine, KeysOfControls) {
    EXPECT_EQ(recordKey(RecordSlot::TextBox, "Text1", 13), "TXT13");
    EXPECT_EQ(recordKey(RecordSlot::TextBox, "TEXT1", 0), "TXT0");
    EXPECT_EQ(recordKey(RecordSlot::TextBox, "Text3", 15), "TX315");
    EXPECT_EQ(recordKey(RecordSlot::TextBox, "text2", 0), "TX20");
    EXPECT_EQ(recordKey(RecordSlot::TextBox, "txtSSRate", kNoIndexForTest), "txtSSRate");
    EXPECT_EQ(recordKey(RecordSlot::Check, "Check", 4), "CHK4");
    EXPECT_EQ(recordKey(RecordSlot::Check, "CHECK", 647), "CHK647");
    EXPECT_FALSE(recordKey(RecordSlot::TextBox, "Text1", kNoIndexForTest)) << "an array name needs its index";
    EXPECT_FALSE(recordKey(RecordSlot::Check, "Label1", 2));
}

TEST(RecordLine, TheIndexIsTheTwoCharactersFromTheFourthOn) {
    EXPECT_EQ(recordKeyIndex("TXT45"), 45);
    EXPECT_EQ(recordKeyIndex("CHK647"), 64);
    EXPECT_EQ(recordKeyIndex("TX315"), 15);
    EXPECT_EQ(recordKeyIndex("TXT5"), 5);
    EXPECT_EQ(recordKeyIndex("PIC1"), 1);
    EXPECT_FALSE(recordKeyIndex("TXT"));
    EXPECT_FALSE(recordKeyIndex("txtSSRate"));
    EXPECT_FALSE(recordKeyIndex("TXTab"));
}

TEST(RecordLine, IntegersAsTheClassicConversionReadsThem) {
    EXPECT_EQ(classicInteger(" 7"), 7);
    EXPECT_EQ(classicInteger("-1"), -1);
    EXPECT_EQ(classicInteger("1."), 1);
    EXPECT_EQ(classicInteger(".5"), 0) << "halves go to the even neighbour";
    EXPECT_EQ(classicInteger("16"), 16);
    EXPECT_FALSE(classicInteger(""));
    EXPECT_FALSE(classicInteger("-"));
    EXPECT_FALSE(classicInteger("1a"));
    EXPECT_FALSE(classicInteger("1234567890"));
}

TEST(RecordLine, KeysChooseTheirControls) {
    EXPECT_EQ(recordKeyTarget("TXT3").target, RecordTarget::TextArray);
    EXPECT_EQ(recordKeyTarget("txt3").array, 1);
    EXPECT_EQ(recordKeyTarget("TX912").array, 9);
    EXPECT_EQ(recordKeyTarget("TX112").target, RecordTarget::Other);
    EXPECT_EQ(recordKeyTarget("CHK4").target, RecordTarget::Check);
    EXPECT_EQ(recordKeyTarget("PIC1").target, RecordTarget::Picture1);
    EXPECT_EQ(recordKeyTarget("PIC2").target, RecordTarget::Picture2);
    EXPECT_EQ(recordKeyTarget("PIC3").target, RecordTarget::Other);
    EXPECT_EQ(recordKeyTarget("").target, RecordTarget::Other);
}

TEST(RecordLine, TheOldCheckKeyBecomesTheNewOneInAnyCaseAndEverywhere) {
    EXPECT_EQ(withCheckKeys("W-2" + D + "2025" + D + "CBX1=X" + D + "TXT0=ACBXcbx"),
              "W-2" + D + "2025" + D + "CHK1=X" + D + "TXT0=ACHKCHK");
}

TEST(RecordLine, OldCardLinesAreRewrittenValuesIncluded) {
    auto line = rewrittenCardLine("SS" + D + D + "TXT1=JOHN GLASS" + D + "TXT0=123");
    ASSERT_TRUE(line);
    EXPECT_EQ(*line, "SS_ITIN" + D + D + "TXT1=JOHN GLASS_ITIN" + D + "TXT0=123");
    auto lower = rewrittenCardLine("SS" + D + D + "TXT1=moss" + D);
    ASSERT_TRUE(lower);
    EXPECT_EQ(*lower, "SS_ITIN" + D + D + "TXT1=moSS_ITIN" + D);
    EXPECT_FALSE(rewrittenCardLine("ss" + D + D + "TXT0=1")) << "the line must start with exactly SS";
    EXPECT_FALSE(rewrittenCardLine("SS_ITIN" + D + D + "TXT0=1"));
    EXPECT_FALSE(rewrittenCardLine("SSA" + D + "2025"));
}

TEST(RecordLine, OldMiscLinesAreRewritten) {
    auto line = rewrittenMiscLine("1099-MISC20" + D + "2025" + D + "TXT0=1099-MISC20" + D);
    ASSERT_TRUE(line);
    EXPECT_EQ(*line, "1099-MISC" + D + "2025" + D + "TXT0=1099-MISC" + D);
    EXPECT_FALSE(rewrittenMiscLine("1099-MISC" + D + "2025"));
    EXPECT_FALSE(rewrittenMiscLine("1099-misc20" + D + "2025"));
}

TEST(RecordLine, TheCatalogueKeyOfFieldZero) {
    EXPECT_EQ(catalogueKeyOf("CSA"), "CSA1099R");
    EXPECT_EQ(catalogueKeyOf("csf"), "CSF1099R");
    EXPECT_EQ(catalogueKeyOf("RRB"), "RRB1099");
    EXPECT_EQ(catalogueKeyOf("SSA"), "SSA1099");
    EXPECT_EQ(catalogueKeyOf("1099-MISC20"), "1099-MISC");
    EXPECT_EQ(catalogueKeyOf("w-2"), "W-2");
    EXPECT_EQ(catalogueKeyOf("TPINFO"), "TPINFO");
    EXPECT_EQ(catalogueKeyOf(""), "");
}

TEST(RecordLine, OnlyTheFirstLineCounts) {
    EXPECT_EQ(firstRecordLine("A" + D + "B\r\nC" + D + "D\r\n"), "A" + D + "B");
    EXPECT_EQ(firstRecordLine("A\nB"), "A");
    EXPECT_EQ(firstRecordLine("A\rB"), "A");
    EXPECT_EQ(firstRecordLine("AB"), "AB");
    EXPECT_EQ(firstRecordLine(""), "");
}

}  // namespace
}  // namespace lw::store
