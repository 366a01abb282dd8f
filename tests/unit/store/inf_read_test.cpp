#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <string>

#include "scratch_folder.h"
#include "store/inf_store.h"

namespace lw::store {
namespace {

using testing::ScratchFolder;
using testing::writeBytes;

class ReadInf : public ::testing::Test {
protected:
    std::string fileWith(const std::string& bytes) {
        std::string file = folder.file("User.inf");
        writeBytes(file, bytes);
        return file;
    }
    ScratchFolder folder;
};

TEST_F(ReadInf, MissingFileSectionOrKeyGivesTheDefault) {
    EXPECT_EQ(readInfValue("ALICE", "Printer", "", folder.file("none.inf")), "");
    EXPECT_EQ(readInfValue("ALICE", "Printer", "dflt", folder.file("none.inf")), "dflt");
    std::string file = fileWith("[ALICE]\r\nPrinter=Laser\r\n");
    EXPECT_EQ(readInfValue("BOB", "Printer", "dflt", file), "dflt");
    EXPECT_EQ(readInfValue("ALICE", "FileNameFmt", "dflt", file), "dflt");
    EXPECT_EQ(readInfValue("ALICE", "Printer", "dflt", file), "Laser");
}

TEST_F(ReadInf, AFolderOrAPathThroughAFileGivesTheDefault) {
    EXPECT_EQ(readInfValue("ALICE", "Printer", "dflt", folder.path().string()), "dflt");
    std::string plain = fileWith("[ALICE]\nPrinter=Laser\n");
    EXPECT_EQ(readInfValue("ALICE", "Printer", "dflt", plain + "/User.inf"), "dflt");
}

TEST_F(ReadInf, DefaultLosesTrailingBlanksAndIsCutLikeAValue) {
    EXPECT_EQ(readInfValue("S", "K", "  dflt \t ", folder.file("none.inf")), "  dflt");
    EXPECT_EQ(readInfValue("S", "K", std::string(2000, 'd'), folder.file("none.inf")),
              std::string(1023, 'd'));
}

TEST_F(ReadInf, EmptyValueIsEmptyNotTheDefault) {
    std::string file = fileWith("[ALICE]\r\nLastOpenFolder=\r\nPrinter=   \r\n");
    EXPECT_EQ(readInfValue("ALICE", "LastOpenFolder", "dflt", file), "");
    EXPECT_EQ(readInfValue("ALICE", "Printer", "dflt", file), "");
}

TEST_F(ReadInf, NewUserReadsNothingOfAnotherUsersSection) {
    std::string file =
        fileWith("[ALICE]\r\nTP1SSN=123-45-6789\r\nLastTaxYear=2024\r\n[TaxForms]\r\nFolder=/shared\r\n");
    EXPECT_EQ(readInfValue("BOB", "TP1SSN", "", file), "");
    EXPECT_EQ(readInfValue("BOB", "LastTaxYear", "", file), "");
    EXPECT_EQ(readInfValue("BOB", "Folder", "", file), "");
    EXPECT_EQ(readInfValue("TaxForms", "TP1SSN", "", file), "");
}

TEST_F(ReadInf, SectionAndKeyNamesIgnoreCase) {
    std::string file = fileWith("[alice]\nTP1NAMEADDR=Ann\n");
    EXPECT_EQ(readInfValue("ALICE", "tp1NameAddr", "", file), "Ann");
    EXPECT_EQ(readInfValue("Alice", "TP1NameAddr", "", file), "Ann");
}

TEST_F(ReadInf, BlanksAroundNamesAndValuesAreTrimmed) {
    std::string file = fileWith("  [ ALICE ]  \r\n \t Printer \t=  \tLaser Jet 4 \t \r\n");
    EXPECT_EQ(readInfValue("ALICE", "Printer", "", file), "Laser Jet 4");
    EXPECT_EQ(readInfValue(" ALICE ", " Printer ", "", file), "Laser Jet 4");
}

TEST_F(ReadInf, OnePairOfSurroundingDoubleQuotesIsRemoved) {
    std::string file = fileWith(
        "[S]\nA=\"  padded  \"\nB=\"\"twice\"\"\nC=\"open\nD=mid\"dle\"\nE=\"\nF='single'\nG= \"x\" \n");
    EXPECT_EQ(readInfValue("S", "A", "", file), "  padded  ");
    EXPECT_EQ(readInfValue("S", "B", "", file), "\"twice\"");
    EXPECT_EQ(readInfValue("S", "C", "", file), "\"open");
    EXPECT_EQ(readInfValue("S", "D", "", file), "mid\"dle\"");
    EXPECT_EQ(readInfValue("S", "E", "", file), "\"");
    EXPECT_EQ(readInfValue("S", "F", "", file), "'single'");
    EXPECT_EQ(readInfValue("S", "G", "", file), "x");
}

TEST_F(ReadInf, ValueOf1024CharactersOrMoreComesBackCutTo1023) {
    std::string v1023(1023, 'a');
    std::string v1024(1024, 'b');
    std::string v1025 = std::string(1023, 'c') + "XY";
    std::string file = fileWith("[S]\nA=" + v1023 + "\nB=" + v1024 + "\nC=" + v1025 + "\n");
    EXPECT_EQ(readInfValue("S", "A", "", file), v1023);
    EXPECT_EQ(readInfValue("S", "B", "", file), std::string(1023, 'b'));
    EXPECT_EQ(readInfValue("S", "C", "", file), std::string(1023, 'c'));
}

TEST_F(ReadInf, ThreeLineAddressJoinedByGuillemetsIsOneValue) {
    std::string address =
        "ANN LEE\xBB"
        "12 MAIN ST\xBB"
        "SPRINGFIELD IL 62701";
    std::string file = fileWith("[ALICE]\r\nTP1NameAddr=" + address + "\r\nTP1SSN=1\r\n");
    EXPECT_EQ(readInfValue("ALICE", "TP1NameAddr", "", file), address);
}

TEST_F(ReadInf, FirstOfDuplicateSectionsIsTheOnlyOneRead) {
    std::string file = fileWith("[S]\nA=first\n[T]\nA=other\n[s]\nA=second\nB=only in second\n");
    EXPECT_EQ(readInfValue("S", "A", "", file), "first");
    EXPECT_EQ(readInfValue("S", "B", "dflt", file), "dflt");
    EXPECT_EQ(readInfValue("T", "A", "", file), "other");
}

TEST_F(ReadInf, FirstOfDuplicateKeysWins) {
    std::string file = fileWith("[S]\nA=one\na=two\nA=three\n");
    EXPECT_EQ(readInfValue("S", "A", "", file), "one");
}

TEST_F(ReadInf, CommentsBareLinesAndKeysBeforeAnySectionAreNotKeys) {
    std::string file = fileWith("A=outside\n[S]\n;A=comment\n  ; B=comment\nC\nD=real\n");
    EXPECT_EQ(readInfValue("S", "A", "dflt", file), "dflt");
    EXPECT_EQ(readInfValue("S", ";A", "dflt", file), "dflt");
    EXPECT_EQ(readInfValue("S", "B", "dflt", file), "dflt");
    EXPECT_EQ(readInfValue("S", "C", "dflt", file), "dflt");
    EXPECT_EQ(readInfValue("S", "D", "dflt", file), "real");
}

TEST_F(ReadInf, ValueKeepsEverythingAfterTheFirstEqualsSign) {
    std::string file = fileWith("[S]\nA=b=c ; not a comment\n");
    EXPECT_EQ(readInfValue("S", "A", "", file), "b=c ; not a comment");
}

TEST_F(ReadInf, AnyLineEndAndNoFinalLineEnd) {
    std::string file = fileWith("[S]\rA=cr\r\nB=crlf\nC=lf\r[T]\nD=last");
    EXPECT_EQ(readInfValue("S", "A", "", file), "cr");
    EXPECT_EQ(readInfValue("S", "B", "", file), "crlf");
    EXPECT_EQ(readInfValue("S", "C", "", file), "lf");
    EXPECT_EQ(readInfValue("T", "D", "", file), "last");
}

TEST_F(ReadInf, ANulByteEndsTheValue) {
    std::string file = fileWith(std::string("[S]\nA=ab\0cd\nB=next\n", 20));
    EXPECT_EQ(readInfValue("S", "A", "", file), "ab");
    EXPECT_EQ(readInfValue("S", "B", "", file), "next");
}

TEST_F(ReadInf, BinaryGarbageNeverBreaksTheRead) {
    std::mt19937 random(20250105);
    std::uniform_int_distribution<int> byte(0, 255);
    std::string garbage;
    for (int i = 0; i < 200000; ++i) {
        int b = byte(random);
        // Plenty of the bytes that mean something to the format.
        const char specials[] = {'[', ']', '=', ';', '\r', '\n', '\0', '"', ' '};
        garbage += (b < 64) ? specials[b % 9] : static_cast<char>(b);
    }
    std::string file = fileWith(garbage + "\n[LWTESTSECTION]\nKey=found\n" + garbage);
    EXPECT_EQ(readInfValue("LWTESTSECTION", "Key", "", file), "found");
    EXPECT_EQ(readInfValue("NOSUCHSECTIONNAME", "Key", "dflt", file), "dflt");
    EXPECT_EQ(readInfValue("LWTESTSECTION", "NoSuchKeyName", "dflt", file), "dflt");
}

TEST_F(ReadInf, MegabyteLinesAreReadInOnePass) {
    std::string big(1 << 20, 'x');
    std::string file = fileWith("[S]\n" + big + "\nBig=" + big + "\nAfter=yes\n" + big);
    auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 20; ++i) {
        ASSERT_EQ(readInfValue("S", "After", "", file), "yes");
        ASSERT_EQ(readInfValue("S", "Big", "", file), std::string(1023, 'x'));
    }
    // Forty reads of a 3 MB file take milliseconds each; a slower read would mean more than one pass.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST_F(ReadInf, ManyShortLinesAreReadInOnePass) {
    std::string text = "[S]\n";
    for (int i = 0; i < 100000; ++i) text += "K" + std::to_string(i) + "=v" + std::to_string(i) + "\n";
    std::string file = fileWith(text);
    auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(readInfValue("S", "K99999", "", file), "v99999");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

}  // namespace
}  // namespace lw::store
