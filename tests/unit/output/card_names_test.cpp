// A name on a Social Security or ITIN card shows whole: a long one takes a smaller size of the face, down
// to a floor, and a longer one two lines broken between its words as evenly as they go.
#include <gtest/gtest.h>

#include "drawn_forms.h"
#include "face/control_text.h"
#include "qt_offscreen.h"
#include "ui/qt_text_measure.h"

namespace lw {
namespace {

const auto* const kQt = testing::addQtOffscreen();

// The name field of a card as the form shows it: bold in the face's eleven points, centred.
class CardName : public ::testing::Test {
protected:
    void SetUp() override {
        for (const ControlDefinition& designed : findDefinition("F2_SS_ITIN")->controls)
            if (designed.control.key() == "Text1(1)") name = designed.control;
        ASSERT_GT(name.fitFloor, 0) << "the card's name field shrinks to fit";
        name.fontSize = 11;
        name.fontBold = true;
        name.alignment = 2;
    }

    face::TextBlock laidOut(const char* text) {
        name.text = text;
        return face::fieldLayout(name, ui::qtTextMeasure());
    }

    Control name;
};

TEST_F(CardName, AShortNameKeepsTheSizeOfTheFace) {
    const face::TextBlock block = laidOut("ANN LEE");
    ASSERT_EQ(block.lines.size(), 1u);
    EXPECT_EQ(block.points, 11);
    EXPECT_TRUE(block.fits());
}

TEST_F(CardName, ANameOfThirtyCapitalsTakesASmallerSizeOnOneLine) {
    const face::TextBlock block = laidOut("ALEXANDRA KATHERINE MONTGOMERY");
    ASSERT_EQ(block.lines.size(), 1u);
    EXPECT_LT(block.points, 11);
    EXPECT_GE(block.points, name.fitFloor);
    EXPECT_TRUE(block.fits()) << block.extent().width << " across " << block.area.width;
}

TEST_F(CardName, ANameTooLongForTheFloorTakesTwoEvenLinesBrokenBetweenWords) {
    const face::TextBlock block = laidOut("MAXIMILIANO ALEJANDRO WASHINGTON-MCBRIDE");
    ASSERT_EQ(block.lines.size(), 2u);
    EXPECT_EQ(block.lines[0].text, "MAXIMILIANO ALEJANDRO");
    EXPECT_EQ(block.lines[1].text, "WASHINGTON-MCBRIDE");
    EXPECT_TRUE(block.fits());
    // Both lines stand in the middle of the card.
    for (const face::TextLine& line : block.lines)
        EXPECT_NEAR(line.x + line.width / 2, block.area.x + block.area.width / 2, 1) << line.text;
}

TEST_F(CardName, ANameBeyondTwoLinesStaysAtTheFloor) {
    const face::TextBlock block =
        laidOut("MAXIMILIANO ALEJANDRO WASHINGTON-MCBRIDE DE LA SANTISIMA TRINIDAD Y BARTHOLOMEW-KING");
    EXPECT_EQ(block.points, name.fitFloor);
    EXPECT_GT(block.lines.size(), 2u);
}

}  // namespace
}  // namespace lw
