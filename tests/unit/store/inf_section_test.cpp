#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scratch_folder.h"
#include "store/inf_store.h"

namespace lw::store {
namespace {

using testing::ScratchFolder;
using testing::writeBytes;
using Lines = std::vector<std::string>;

class ReadInfSection : public ::testing::Test {
protected:
    std::string fileWith(const std::string& bytes) {
        std::string file = folder.file("K1Help.inf");
        writeBytes(file, bytes);
        return file;
    }
    ScratchFolder folder;
};

TEST_F(ReadInfSection, GivesTheLinesOfTheFirstMatchingSectionInOrder) {
    std::string file = fileWith(
        "[K1-1065-Box11]\r\nA|Other portfolio income|\r\n\r\n; keepers' note\r\n"
        "  B | Involuntary conversions {see note}|\tX  \r\n TP1SSN = 123 \r\nEmpty=\r\n"
        "[k1-1065-box11]\r\nZ|second section|\r\n[Other]\r\nY|no|\r\n");
    EXPECT_EQ(readInfSection("K1-1065-BOX11", file, 2048),
              (Lines{"A|Other portfolio income|", "B | Involuntary conversions {see note}|\tX", "TP1SSN=123",
                     "Empty="}));
}

TEST_F(ReadInfSection, QuotesAreKept) {
    std::string file = fileWith("[S]\nA=\"q\"\n");
    EXPECT_EQ(readInfSection("S", file, 100), (Lines{"A=\"q\""}));
}

TEST_F(ReadInfSection, MissingFileOrSectionGivesNoLines) {
    EXPECT_TRUE(readInfSection("S", folder.file("none.inf"), 2048).empty());
    std::string file = fileWith("[T]\nA=1\n");
    EXPECT_TRUE(readInfSection("S", file, 2048).empty());
    std::string emptySection = fileWith("[S]\n\n;only a note\n[T]\nA=1\n");
    EXPECT_TRUE(readInfSection("S", emptySection, 2048).empty());
}

// "abc" NUL "de" NUL "fgh" NUL takes 11 characters, and the final NUL one more.
class ReadInfSectionCut : public ReadInfSection {
protected:
    void SetUp() override { file = fileWith("[S]\nabc\nde\nfgh\n"); }
    std::string file;
};

TEST_F(ReadInfSectionCut, EverythingFitsInExactlyEnoughRoom) {
    EXPECT_EQ(readInfSection("S", file, 12), (Lines{"abc", "de", "fgh"}));
    EXPECT_EQ(readInfSection("S", file, 1000), (Lines{"abc", "de", "fgh"}));
}

TEST_F(ReadInfSectionCut, TooLittleRoomCutsTheLastLine) {
    // A cut list keeps two characters fewer than the buffer: here 9, "abc" NUL "de" NUL "fg".
    EXPECT_EQ(readInfSection("S", file, 11), (Lines{"abc", "de", "fg"}));
    EXPECT_EQ(readInfSection("S", file, 10), (Lines{"abc", "de", "f"}));
}

TEST_F(ReadInfSectionCut, ALineOfWhichNothingFitsIsLeftOut) {
    // Room for 7 characters: "abc" NUL "de" NUL, and nothing of "fgh".
    EXPECT_EQ(readInfSection("S", file, 9), (Lines{"abc", "de"}));
    // Room for 6: the NUL after "de" falls off; "de" stays whole.
    EXPECT_EQ(readInfSection("S", file, 8), (Lines{"abc", "de"}));
    EXPECT_EQ(readInfSection("S", file, 7), (Lines{"abc", "d"}));
    EXPECT_EQ(readInfSection("S", file, 6), (Lines{"abc"}));
    EXPECT_EQ(readInfSection("S", file, 5), (Lines{"abc"}));
}

TEST_F(ReadInfSectionCut, TinyBuffers) {
    EXPECT_EQ(readInfSection("S", file, 4), (Lines{"ab"}));
    EXPECT_EQ(readInfSection("S", file, 3), (Lines{"a"}));
    EXPECT_TRUE(readInfSection("S", file, 2).empty());
    EXPECT_TRUE(readInfSection("S", file, 1).empty());
    EXPECT_TRUE(readInfSection("S", file, 0).empty());
}

TEST_F(ReadInfSection, EntriesBehindTheBufferAreAbsent) {
    std::string text = "[ALICE]\r\n";
    for (int i = 1; i <= 7; ++i)
        text += "Dependent" + std::to_string(i) + "=" + std::string(200, 'n') + "\r\n";
    std::string file = fileWith(text);
    Lines lines = readInfSection("ALICE", file, 1024);
    // Each line takes 212 characters with its NUL: four fit whole in 1022, the fifth keeps 1022 - 848.
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines[3], "Dependent4=" + std::string(200, 'n'));
    EXPECT_EQ(lines[4], "Dependent5=" + std::string(163, 'n'));
}

TEST_F(ReadInfSection, MegabyteLineIsCutToTheBuffer) {
    std::string file = fileWith("[S]\nA=" + std::string(1 << 20, 'v') + "\nB=1\n");
    Lines lines = readInfSection("S", file, 2048);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0], "A=" + std::string(2044, 'v'));
}

}  // namespace
}  // namespace lw::store
