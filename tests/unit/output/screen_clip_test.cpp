// The cut of a form to paper, on a form handed in: no program is needed for it.
#include "output/screen_clip.h"

#include <gtest/gtest.h>

#include "model/color.h"
#include "model/form.h"

namespace lw {
namespace {

constexpr Color kGrey = 0x00C0C0C0;

// A form outside the catalogue, with a border, a grey label and a field with a selection.
struct PlainForm : Form {
    PlainForm() : Form("PlainForm") {
        height = 5000;
        Control& border = add(ControlKind::Shape, "myBorder");
        border.top = 100;
        border.height = 2900;
        label.backColor = kGrey;
        label.opaque = true;
        field.backColor = kGrey;
        field.text = "SELECTED";
        field.select(0, 8);
    }
    Control& label = add(ControlKind::Label, "Label1");
    Control& field = add(ControlKind::TextBox, "Text1", 0);
};

TEST(ScreenClip, TheFormHandedInIsCutAtItsBorderAndPaintedAsPaper) {
    PlainForm form;
    EXPECT_TRUE(clipScreen(&form, false));
    EXPECT_EQ(form.height, 3000);
    EXPECT_EQ(form.field.backColor, kWhite);
    EXPECT_EQ(form.field.selLength(), 0);
    EXPECT_FALSE(form.label.opaque) << "a label of a form outside the catalogue lets the paper through";
    EXPECT_EQ(form.label.backColor, kGrey) << "outside debug mode a label keeps its colour";
}

TEST(ScreenClip, InDebugModeTheLabelsTurnWhiteAsWell) {
    PlainForm form;
    EXPECT_TRUE(clipScreen(&form, true));
    EXPECT_EQ(form.label.backColor, kWhite);
    EXPECT_FALSE(form.label.opaque);
}

TEST(ScreenClip, WithoutAFormThereIsNothingToCut) { EXPECT_TRUE(clipScreen(nullptr, true)); }

}  // namespace
}  // namespace lw
