// A stored block (lines joined by "»") cut into the parts that the forms fill.
#include "people/tp_record.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

TPInfoRec parsed(const std::string& stored) {
    TPInfoRec rec;
    rec.nameAddr = stored;
    parseNameAddress(rec);
    return rec;
}

TEST(ParseNameAddr, AThreeLineBlockGivesNameStreetAndCity) {
    const TPInfoRec rec = parsed(
        "JOHN Q DOE JR\xBB"
        "12 MAIN ST\xBB"
        "ANYTOWN, OH 44000");
    EXPECT_EQ(rec.name, "JOHN Q DOE JR");
    EXPECT_EQ(rec.street, "12 MAIN ST");
    EXPECT_EQ(rec.cityStateZip, "ANYTOWN, OH 44000");
    EXPECT_EQ(rec.nameAddr, "JOHN Q DOE JR\r\n12 MAIN ST\r\nANYTOWN, OH 44000");
    EXPECT_EQ(rec.address, "12 MAIN ST\r\nANYTOWN, OH 44000");
}

TEST(ParseNameAddr, AFiveLineBlockJoinsTheMiddleThreeLinesByBlanks) {
    const TPInfoRec rec = parsed(
        "ANN LEE\xBB"
        "C/O BOB LEE\xBB"
        "APT 4\xBB"
        "12 MAIN ST\xBB"
        "ANYTOWN, OH 44000");
    EXPECT_EQ(rec.name, "ANN LEE");
    EXPECT_EQ(rec.street, "C/O BOB LEE APT 4 12 MAIN ST");
    EXPECT_EQ(rec.cityStateZip, "ANYTOWN, OH 44000");
    EXPECT_EQ(rec.address, "C/O BOB LEE APT 4 12 MAIN ST\r\nANYTOWN, OH 44000");
    EXPECT_EQ(rec.nameAddr, "ANN LEE\r\nC/O BOB LEE\r\nAPT 4\r\n12 MAIN ST\r\nANYTOWN, OH 44000");
}

TEST(ParseNameAddr, ATwoLineBlockHasAStreetAndNoCityLine) {
    const TPInfoRec rec = parsed(
        "ANN LEE\xBB"
        "ANYTOWN, OH 44000");
    EXPECT_EQ(rec.street, "ANYTOWN, OH 44000");
    EXPECT_EQ(rec.cityStateZip, "");
    EXPECT_EQ(rec.address, "ANYTOWN, OH 44000");
}

TEST(ParseNameAddr, ANameAloneHasNoAddress) {
    const TPInfoRec rec = parsed("TIFIMRU");
    EXPECT_EQ(rec.name, "TIFIMRU");
    EXPECT_EQ(rec.nameAddr, "TIFIMRU");
    EXPECT_EQ(rec.street, "");
    EXPECT_EQ(rec.address, "");
}

TEST(ParseNameAddr, AnEmptyBlockLeavesTheOtherFieldsAsTheyWere) {
    TPInfoRec rec;
    rec.name = "OLD";
    rec.street = "1 OLD RD";
    parseNameAddress(rec);
    EXPECT_EQ(rec.name, "OLD");
    EXPECT_EQ(rec.street, "1 OLD RD");
}

TEST(ParseNameAddr, ABlockParsedOverAnEarlierPersonKeepsNoneOfItsLines) {
    TPInfoRec rec = parsed(
        "JOHN DOE\xBB"
        "12 MAIN ST\xBB"
        "ANYTOWN, OH 44000");
    rec.nameAddr =
        "ANN LEE\xBB"
        "5 OAK AVE";
    parseNameAddress(rec);
    EXPECT_EQ(rec.name, "ANN LEE");
    EXPECT_EQ(rec.street, "5 OAK AVE");
    EXPECT_EQ(rec.cityStateZip, "");
    EXPECT_EQ(rec.address, "5 OAK AVE");
    rec.nameAddr = "TIFIMRU";
    parseNameAddress(rec);
    EXPECT_EQ(rec.name, "TIFIMRU");
    EXPECT_EQ(rec.street, "");
    EXPECT_EQ(rec.address, "");
}

TEST(ParseNameAddr, AHugeBlockIsCutWithoutFault) {
    std::string stored(10000, 'A');
    stored +=
        "\xBB"
        "1 MAIN ST\xBB"
        "TOWN";
    const TPInfoRec rec = parsed(stored);
    EXPECT_EQ(rec.name.size(), 10000u);
    EXPECT_EQ(rec.street, "1 MAIN ST");
    EXPECT_EQ(rec.cityStateZip, "TOWN");
}

}  // namespace
}  // namespace lw
