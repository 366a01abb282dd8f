// A stored block (lines joined by "»") cut into the parts that the forms fill.
#include "people/tp_record.h"

#include <gtest/gtest.h>

namespace lw {
namespace {

TPInfoRec parsed(const std::string& stored) {
    TPInfoRec rec;
    rec.NameAddr = stored;
    parseNameAddress(rec);
    return rec;
}

TEST(ParseNameAddr, AThreeLineBlockGivesNameStreetAndCity) {
    const TPInfoRec rec = parsed(
        "JOHN Q DOE JR\xBB"
        "12 MAIN ST\xBB"
        "ANYTOWN, OH 44000");
    EXPECT_EQ(rec.Name, "JOHN Q DOE JR");
    EXPECT_EQ(rec.Street, "12 MAIN ST");
    EXPECT_EQ(rec.CityStateZip, "ANYTOWN, OH 44000");
    EXPECT_EQ(rec.NameAddr, "JOHN Q DOE JR\r\n12 MAIN ST\r\nANYTOWN, OH 44000");
    EXPECT_EQ(rec.Address, "12 MAIN ST\r\nANYTOWN, OH 44000");
}

TEST(ParseNameAddr, AFiveLineBlockJoinsTheMiddleThreeLinesByBlanks) {
    const TPInfoRec rec = parsed(
        "ANN LEE\xBB"
        "C/O BOB LEE\xBB"
        "APT 4\xBB"
        "12 MAIN ST\xBB"
        "ANYTOWN, OH 44000");
    EXPECT_EQ(rec.Name, "ANN LEE");
    EXPECT_EQ(rec.Street, "C/O BOB LEE APT 4 12 MAIN ST");
    EXPECT_EQ(rec.CityStateZip, "ANYTOWN, OH 44000");
    EXPECT_EQ(rec.Address, "C/O BOB LEE APT 4 12 MAIN ST\r\nANYTOWN, OH 44000");
    EXPECT_EQ(rec.NameAddr, "ANN LEE\r\nC/O BOB LEE\r\nAPT 4\r\n12 MAIN ST\r\nANYTOWN, OH 44000");
}

TEST(ParseNameAddr, ATwoLineBlockHasAStreetAndNoCityLine) {
    const TPInfoRec rec = parsed(
        "ANN LEE\xBB"
        "ANYTOWN, OH 44000");
    EXPECT_EQ(rec.Street, "ANYTOWN, OH 44000");
    EXPECT_EQ(rec.CityStateZip, "");
    EXPECT_EQ(rec.Address, "ANYTOWN, OH 44000");
}

TEST(ParseNameAddr, ANameAloneHasNoAddress) {
    const TPInfoRec rec = parsed("TIFIMRU");
    EXPECT_EQ(rec.Name, "TIFIMRU");
    EXPECT_EQ(rec.NameAddr, "TIFIMRU");
    EXPECT_EQ(rec.Street, "");
    EXPECT_EQ(rec.Address, "");
}

TEST(ParseNameAddr, AnEmptyBlockLeavesTheOtherFieldsAsTheyWere) {
    TPInfoRec rec;
    rec.Name = "OLD";
    rec.Street = "1 OLD RD";
    parseNameAddress(rec);
    EXPECT_EQ(rec.Name, "OLD");
    EXPECT_EQ(rec.Street, "1 OLD RD");
}

TEST(ParseNameAddr, ABlockParsedOverAnEarlierPersonKeepsNoneOfItsLines) {
    TPInfoRec rec = parsed(
        "JOHN DOE\xBB"
        "12 MAIN ST\xBB"
        "ANYTOWN, OH 44000");
    rec.NameAddr =
        "ANN LEE\xBB"
        "5 OAK AVE";
    parseNameAddress(rec);
    EXPECT_EQ(rec.Name, "ANN LEE");
    EXPECT_EQ(rec.Street, "5 OAK AVE");
    EXPECT_EQ(rec.CityStateZip, "");
    EXPECT_EQ(rec.Address, "5 OAK AVE");
    rec.NameAddr = "TIFIMRU";
    parseNameAddress(rec);
    EXPECT_EQ(rec.Name, "TIFIMRU");
    EXPECT_EQ(rec.Street, "");
    EXPECT_EQ(rec.Address, "");
}

TEST(ParseNameAddr, AHugeBlockIsCutWithoutFault) {
    std::string stored(10000, 'A');
    stored +=
        "\xBB"
        "1 MAIN ST\xBB"
        "TOWN";
    const TPInfoRec rec = parsed(stored);
    EXPECT_EQ(rec.Name.size(), 10000u);
    EXPECT_EQ(rec.Street, "1 MAIN ST");
    EXPECT_EQ(rec.CityStateZip, "TOWN");
}

}  // namespace
}  // namespace lw
