#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "scratch_folder.h"
#include "store/inf_store.h"

namespace lw::store {
namespace {

using testing::readBytes;
using testing::ScratchFolder;
using testing::writeBytes;

std::size_t lineCount(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

class SaveInf : public ::testing::Test {
protected:
    ScratchFolder folder;
};

TEST_F(SaveInf, FirstWriteCreatesTheFoldersAndTheFile) {
    std::string file = folder.file("LedgerwickInfFiles/Venturo/UserVenturo.inf");
    writeInfValue("ALICE", "TaxFormsFolder", "/home/alice/VenturoForms", file);
    EXPECT_EQ(readBytes(file), "[ALICE]\r\nTaxFormsFolder=/home/alice/VenturoForms\r\n");
    EXPECT_EQ(readInfValue("ALICE", "TaxFormsFolder", "", file), "/home/alice/VenturoForms");
}

TEST_F(SaveInf, KeysOfASectionKeepTheOrderOfTheirFirstWrite) {
    std::string file = folder.file("User.inf");
    writeInfValue("ALICE", "TaxFormsFolder", "a", file);
    writeInfValue("ALICE", "LastOpenFolder", "b", file);
    writeInfValue("ALICE", "LastSaveFolder", "c", file);
    writeInfValue("ALICE", "LastOpenFolder", "", file);
    EXPECT_EQ(readBytes(file), "[ALICE]\r\nTaxFormsFolder=a\r\nLastOpenFolder=\r\nLastSaveFolder=c\r\n");
}

TEST_F(SaveInf, EmptyValueWritesTheKeyWithNothingBehindTheEqualsSign) {
    std::string file = folder.file("User.inf");
    writeInfValue("ALICE", "Printer", "", file);
    EXPECT_EQ(readBytes(file), "[ALICE]\r\nPrinter=\r\n");
    EXPECT_EQ(readInfValue("ALICE", "Printer", "dflt", file), "");
}

TEST_F(SaveInf, ChangingAValueLeavesEveryOtherByteAlone) {
    std::string file = folder.file("User.inf");
    std::string before =
        "; written by hand\n[TaxForms]\nFolder = /shared \n\n[ALICE]\nPrinter=Old\n  LastTaxYear = 2023\n"
        "Mixed\r\nEnd=1\r[BOB]\nLastTaxYear=2022";
    writeBytes(file, before);
    writeInfValue("alice", "lasttaxyear", "2024", file);
    std::string expected = before;
    expected.replace(expected.find(" 2023"), 5, "2024");
    EXPECT_EQ(readBytes(file), expected);
    EXPECT_EQ(readInfValue("ALICE", "LastTaxYear", "", file), "2024");
    EXPECT_EQ(readInfValue("BOB", "LastTaxYear", "", file), "2022");
}

TEST_F(SaveInf, NewUserGetsANewSectionAndTheOtherIsUntouched) {
    std::string file = folder.file("User.inf");
    std::string alice = "[ALICE]\r\nTP1SSN=123-45-6789\r\nLastTaxYear=2024\r\n";
    writeBytes(file, alice);
    EXPECT_EQ(readInfValue("BOB", "TP1SSN", "", file), "");
    writeInfValue("BOB", "LastTaxYear", "2025", file);
    EXPECT_EQ(readBytes(file), alice + "[BOB]\r\nLastTaxYear=2025\r\n");
    EXPECT_EQ(readInfValue("BOB", "TP1SSN", "", file), "");
    EXPECT_EQ(readInfValue("ALICE", "LastTaxYear", "", file), "2024");
}

TEST_F(SaveInf, NewKeyGoesAtTheEndOfItsSectionNotOfTheFile) {
    std::string file = folder.file("User.inf");
    writeBytes(file, "[ALICE]\nA=1\n\n[BOB]\nA=2\n");
    writeInfValue("ALICE", "B", "3", file);
    EXPECT_EQ(readBytes(file), "[ALICE]\nA=1\nB=3\n\n[BOB]\nA=2\n");
}

TEST_F(SaveInf, FileWithoutFinalLineEndGetsOneBeforeTheNewLine) {
    std::string file = folder.file("User.inf");
    writeBytes(file, "[ALICE]\r\nA=1");
    writeInfValue("ALICE", "B", "2", file);
    EXPECT_EQ(readBytes(file), "[ALICE]\r\nA=1\r\nB=2\r\n");
}

TEST_F(SaveInf, DuplicatesUpdateTheFirstSectionAndTheFirstKey) {
    std::string file = folder.file("User.inf");
    writeBytes(file, "[S]\nA=1\nA=2\n[S]\nA=3\n");
    writeInfValue("S", "A", "x", file);
    EXPECT_EQ(readBytes(file), "[S]\nA=x\nA=2\n[S]\nA=3\n");
    EXPECT_EQ(readInfValue("S", "A", "", file), "x");
}

TEST_F(SaveInf, ThreeLineAddressStaysOneLine) {
    std::string file = folder.file("User.inf");
    std::string address =
        "ANN LEE\xBB"
        "12 MAIN ST\xBB"
        "SPRINGFIELD IL 62701";
    writeInfValue("ALICE", "TP1NameAddr", address, file);
    writeInfValue("ALICE", "TP1SSN", "123-45-6789", file);
    std::string text = readBytes(file);
    EXPECT_EQ(lineCount(text), 3u);
    EXPECT_NE(text.find("TP1NameAddr=" + address + "\r\n"), std::string::npos);
    EXPECT_EQ(readInfValue("ALICE", "TP1NameAddr", "", file), address);
}

TEST_F(SaveInf, LineEndsInAValueBecomeBlanksAndStartNoKeyOrSection) {
    std::string file = folder.file("User.inf");
    writeInfValue("ALICE", "A", "before", file);
    writeInfValue("ALICE", "B", "kept", file);
    writeInfValue("ALICE", "C", "after", file);
    writeInfValue("ALICE", "A", "x\r\nB=stolen\r\n[EVIL]\nC=gone\rD=new", file);
    std::string text = readBytes(file);
    EXPECT_EQ(lineCount(text), 4u);
    EXPECT_EQ(readInfValue("ALICE", "A", "", file), "x  B=stolen  [EVIL] C=gone D=new");
    EXPECT_EQ(readInfValue("ALICE", "B", "", file), "kept");
    EXPECT_EQ(readInfValue("ALICE", "C", "", file), "after");
    EXPECT_EQ(readInfValue("ALICE", "D", "dflt", file), "dflt");
    EXPECT_EQ(readInfValue("EVIL", "C", "dflt", file), "dflt");
}

TEST_F(SaveInf, LineEndsInNamesBecomeBlanksToo) {
    std::string file = folder.file("User.inf");
    writeInfValue("AL\nICE", "K\r\nEY", "v", file);
    EXPECT_EQ(readBytes(file), "[AL ICE]\r\nK  EY=v\r\n");
}

TEST_F(SaveInf, BlanksAroundAValueAreWrittenAndLostOnRead) {
    std::string file = folder.file("User.inf");
    writeInfValue("ALICE", "Printer", "  Laser  ", file);
    EXPECT_EQ(readBytes(file), "[ALICE]\r\nPrinter=  Laser  \r\n");
    EXPECT_EQ(readInfValue("ALICE", "Printer", "", file), "Laser");
}

TEST_F(SaveInf, LongValueIsWrittenWholeAndReadBackCut) {
    std::string file = folder.file("User.inf");
    std::string value(3000, 'v');
    writeInfValue("ALICE", "TP1NameAddr", value, file);
    EXPECT_EQ(readBytes(file), "[ALICE]\r\nTP1NameAddr=" + value + "\r\n");
    EXPECT_EQ(readInfValue("ALICE", "TP1NameAddr", "", file), std::string(1023, 'v'));
}

TEST_F(SaveInf, GarbageFileKeepsEveryByteAndGainsTheSection) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> byte(0, 255);
    std::string garbage;
    for (int i = 0; i < 100000; ++i) garbage += static_cast<char>(byte(random));
    garbage += 'x';  // no line end at the very end
    std::string file = folder.file("User.inf");
    writeBytes(file, garbage);
    writeInfValue("LWTESTSECTION", "Key", "value", file);
    std::string text = readBytes(file);
    ASSERT_GT(text.size(), garbage.size());
    EXPECT_EQ(text.substr(0, garbage.size()), garbage);
    EXPECT_EQ(readInfValue("LWTESTSECTION", "Key", "", file), "value");
}

TEST_F(SaveInf, NoTemporaryFileIsLeftBehind) {
    std::string file = folder.file("User.inf");
    for (int i = 0; i < 20; ++i) writeInfValue("ALICE", "K" + std::to_string(i % 3), std::to_string(i), file);
    EXPECT_EQ(ScratchFolder::entriesOf(folder.path()), std::vector<std::string>{"User.inf"});
    EXPECT_EQ(readBytes(file), "[ALICE]\r\nK0=18\r\nK1=19\r\nK2=17\r\n");
}

}  // namespace
}  // namespace lw::store
