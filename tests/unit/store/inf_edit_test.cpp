#include "store/inf_edit.h"

#include <gtest/gtest.h>

#include <string>

namespace lw::store {
namespace {

TEST(InfEdit, ChangesOnlyTheValueOfTheFirstMatchingKey) {
    std::string text =
        "; top\r\n[A]\r\nK=1\r\n[S]\r\n  key  =  old value ; x\r\nK=keep\r\nkey=second\r\n[S]\r\nkey=3\r\n";
    EXPECT_EQ(infWithValue(text, "s", "KEY", "new"),
              "; top\r\n[A]\r\nK=1\r\n[S]\r\n  key  =new\r\nK=keep\r\nkey=second\r\n[S]\r\nkey=3\r\n");
}

TEST(InfEdit, KeepsTheLineEndOfTheChangedLine) {
    EXPECT_EQ(infWithValue("[S]\nA=1\rB=2", "S", "A", "x"), "[S]\nA=x\rB=2");
    EXPECT_EQ(infWithValue("[S]\nA=1\rB=2", "S", "B", "y"), "[S]\nA=1\rB=y");
}

TEST(InfEdit, DropsWhatFollowedANulInTheChangedLine) {
    std::string text("[S]\nA=ab\0cd\nB=2\n", 16);
    EXPECT_EQ(infWithValue(text, "S", "A", "x"), "[S]\nA=x\nB=2\n");
}

TEST(InfEdit, MissingKeyGoesAfterTheLastNonBlankLineOfTheSection) {
    std::string text = "[S]\r\nA=1\r\n; about T\r\n\r\n\r\n[T]\r\nA=2\r\n";
    EXPECT_EQ(infWithValue(text, "S", "B", "v"), "[S]\r\nA=1\r\n; about T\r\nB=v\r\n\r\n\r\n[T]\r\nA=2\r\n");
}

TEST(InfEdit, MissingKeyOfAnEmptySectionGoesRightAfterItsName) {
    EXPECT_EQ(infWithValue("[S]\n\n[T]\n", "S", "B", "v"), "[S]\nB=v\n\n[T]\n");
}

TEST(InfEdit, MissingKeyGoesIntoTheFirstOfDuplicateSections) {
    EXPECT_EQ(infWithValue("[S]\nA=1\n[S]\nB=2\n", "S", "B", "v"), "[S]\nA=1\nB=v\n[S]\nB=2\n");
}

TEST(InfEdit, MissingKeyAtTheEndOfAFileWithoutFinalLineEnd) {
    EXPECT_EQ(infWithValue("[S]\r\nA=1", "S", "B", "v"), "[S]\r\nA=1\r\nB=v\r\n");
}

TEST(InfEdit, MissingSectionGoesAtTheEnd) {
    EXPECT_EQ(infWithValue("", "BOB", "Printer", "Laser"), "[BOB]\r\nPrinter=Laser\r\n");
    EXPECT_EQ(infWithValue("[ALICE]\nA=1\n", "BOB", "B", ""), "[ALICE]\nA=1\n[BOB]\nB=\n");
    EXPECT_EQ(infWithValue("[ALICE]\nA=1", "BOB", "B", "2"), "[ALICE]\nA=1\n[BOB]\nB=2\n");
    EXPECT_EQ(infWithValue("[ALICE]\rA=1\r", "BOB", "B", "2"), "[ALICE]\rA=1\r[BOB]\rB=2\r");
}

TEST(InfEdit, BareLinesAndCommentsAreNotTheKey) {
    EXPECT_EQ(infWithValue("[S]\nA\n;A=1\n", "S", "A", "v"), "[S]\nA\n;A=1\nA=v\n");
}

TEST(InfEdit, OneLineTurnsLineEndsAndNulIntoBlanks) {
    EXPECT_EQ(infOneLine(std::string("a\r\nb\rc\nd\0e", 10)), "a  b c d e");
    EXPECT_EQ(infOneLine("J\xBB"
                         "K\xB7L"),
              "J\xBB"
              "K\xB7L");
}

}  // namespace
}  // namespace lw::store
