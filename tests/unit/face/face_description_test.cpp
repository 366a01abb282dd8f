// The face of a form as data: what each control paints, where and in what colour, in the order it is
// painted, its text laid out by the engine from the port's measures.
#include "face/face_description.h"

#include <gtest/gtest.h>

#include "face/face_colors.h"
#include "fields/box_dollar_sign.h"
#include "fixed_measure.h"

namespace lw::face {
namespace {

using testing::FixedMeasure;

// At 100% fifteen twips make a pixel.
constexpr double kScale = kScreenScale;

struct FaceTest : ::testing::Test {
    Form form{"TF_FACE"};
    FixedMeasure measure;

    FaceTest() {
        form.width = 6000;
        form.height = 3000;
        form.backColor = kWhite;
    }

    FaceDescription described(bool skipEditors = false) {
        return describeFace(form, FaceRequest{kScale, skipEditors, {}}, measure);
    }

    static const FacePiece* pieceOf(const FaceDescription& face, const Control& control) {
        for (const FacePiece& piece : face.pieces)
            if (piece.control == &control) return &piece;
        return nullptr;
    }

    template <typename Item>
    static std::vector<Item> itemsOf(const FacePiece& piece) {
        std::vector<Item> found;
        for (const FaceItem& item : piece.items)
            if (const auto* one = std::get_if<Item>(&item)) found.push_back(*one);
        return found;
    }
};

TEST_F(FaceTest, ALabelsTextStandsAtItsPlaceInItsColour) {
    Control& label = form.add(ControlKind::Label, "Label1");
    label.place(300, 150, 3000, 400);
    label.caption = "WAGES";
    label.foreColor = kRed;
    label.opaque = false;
    const FaceDescription face = described();
    const FacePiece* piece = pieceOf(face, label);
    ASSERT_NE(piece, nullptr);
    const std::vector<TextItem> texts = itemsOf<TextItem>(*piece);
    ASSERT_EQ(texts.size(), 1u);
    const TextItem& text = texts[0];
    EXPECT_EQ(text.color, kRed);
    EXPECT_EQ(text.origin, (Point{20, 10})) << "the label's corner in pixels";
    EXPECT_EQ(text.face, designFace(label));
    ASSERT_EQ(text.runs.size(), 1u);
    EXPECT_EQ(text.runs[0].text, "WAGES");
    // A pixel's margin in from the left, and the face's ascent (80 at a size of 100) down from the top.
    EXPECT_EQ(text.runs[0].at, (PointF{15, 80 * 1.65}));
    EXPECT_EQ(text.scale, kScale);
    EXPECT_EQ(text.clip, (RectF{0, 0, 3000, 400})) << "nothing shows outside the label";
    EXPECT_TRUE(itemsOf<FillItem>(*piece).empty()) << "a transparent label paints no ground";
}

TEST_F(FaceTest, ADisabledLabelIsGreyAndAnOpaqueOneHasItsGround) {
    Control& label = form.add(ControlKind::Label, "Label1");
    label.place(300, 150, 3000, 400);
    label.caption = "WAGES";
    label.enabled = false;
    label.backColor = kButtonFace;
    const FaceDescription face = described();
    const FacePiece* piece = pieceOf(face, label);
    ASSERT_NE(piece, nullptr);
    ASSERT_EQ(itemsOf<FillItem>(*piece).size(), 1u);
    EXPECT_EQ(itemsOf<FillItem>(*piece)[0].rect, (Rect{20, 10, 200, 27}));
    EXPECT_EQ(itemsOf<FillItem>(*piece)[0].color, kButtonFace);
    EXPECT_EQ(itemsOf<TextItem>(*piece)[0].color, kGreyText);
}

TEST_F(FaceTest, ALineControlGivesALine) {
    Control& line = form.add(ControlKind::Line, "Line1");
    line.place(150, 300, 0, 0);
    line.x2 = 4500;
    line.y2 = 300;
    line.borderWidth = 2;
    line.borderStyle = 2;
    line.borderColor = kRed;
    const FaceDescription face = described();
    const FacePiece* piece = pieceOf(face, line);
    ASSERT_NE(piece, nullptr);
    ASSERT_EQ(piece->items.size(), 1u);
    const auto* drawn = std::get_if<LineItem>(&piece->items[0]);
    ASSERT_NE(drawn, nullptr);
    EXPECT_EQ(drawn->from, (Point{10, 20}));
    EXPECT_EQ(drawn->to, (Point{300, 20}));
    EXPECT_EQ(drawn->width, 2);
    EXPECT_EQ(drawn->style, StrokeStyle::Dash);
    EXPECT_EQ(drawn->color, kRed);
    // A line of no border style paints nothing.
    line.borderStyle = 0;
    EXPECT_EQ(pieceOf(described(), line), nullptr) << "only compared, never read";
}

TEST_F(FaceTest, ABoxPrintsItsDollarSignLeftOfItsField) {
    Control& field = form.add(ControlKind::TextBox, "Text1", 0);
    field.place(1500, 600, 1500, 255);
    field.tag = "SMONEY";
    ASSERT_TRUE(takesBoxDollarSign(field));
    measure.letter = 55;  // a "$" of the screen's face: five and a half pixels at ten
    const FaceDescription face = described();
    const FacePiece* piece = pieceOf(face, field);
    ASSERT_NE(piece, nullptr);
    const std::vector<TextItem> texts = itemsOf<TextItem>(*piece);
    ASSERT_FALSE(texts.empty());
    const TextItem& sign = texts[0];
    ASSERT_EQ(sign.runs.size(), 1u);
    EXPECT_EQ(sign.runs[0].text, "$");
    EXPECT_EQ(sign.scale, 1) << "the sign is placed in device pixels";
    const double left = sign.placeOf(sign.runs[0]).x;
    const double right = left + measure.advance(sign.face, "$");
    const Rect box = controlRect(field, kScale);
    EXPECT_LT(right, box.left()) << "the sign ends before the field begins";
    EXPECT_GE(left, boxDollarSignRect(field, kScale).left()) << "and stands in the room the box keeps for it";
    EXPECT_EQ(right, box.left() - 2) << "set off from the field by the width of its border";
    // Its baseline lies in the middle of the field's height, as the field's own text does.
    const FaceMetrics metrics = measure.metrics(sign.face);
    EXPECT_EQ(sign.runs[0].at.y, box.top() + (box.height - metrics.height()) / 2 + metrics.ascent);
}

TEST_F(FaceTest, AnEditorIsLeftOutWithSkipEditorsButItsDollarSignStays) {
    Control& field = form.add(ControlKind::TextBox, "Text1", 0);
    field.place(1500, 600, 1500, 255);
    field.tag = "SMONEY";
    field.text = "1,234.00";
    Control& plain = form.add(ControlKind::TextBox, "Text1", 1);
    plain.place(1500, 1200, 1500, 255);
    plain.text = "ANN";

    const FaceDescription whole = described();
    ASSERT_NE(pieceOf(whole, field), nullptr);
    EXPECT_EQ(itemsOf<TextItem>(*pieceOf(whole, field)).size(), 2u) << "the sign and the amount";
    ASSERT_NE(pieceOf(whole, plain), nullptr);
    EXPECT_FALSE(itemsOf<FillItem>(*pieceOf(whole, plain)).empty());

    const FaceDescription face = described(true);
    EXPECT_EQ(pieceOf(face, plain), nullptr) << "the view's editor shows the field";
    const FacePiece* sign = pieceOf(face, field);
    ASSERT_NE(sign, nullptr);
    ASSERT_EQ(sign->items.size(), 1u);
    const auto* text = std::get_if<TextItem>(&sign->items[0]);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->runs[0].text, "$");
}

TEST_F(FaceTest, PiecesComeInPaintOrderAndAnAreaHoldsOnlyThoseThatReachIntoIt) {
    Control& field = form.add(ControlKind::TextBox, "Text1");
    field.place(150, 150, 1500, 255);
    Control& label = form.add(ControlKind::Label, "Label1");
    label.place(150, 1500, 1500, 255);
    label.caption = "BOX";
    Control& frame = form.add(ControlKind::Frame, "Frame1");
    frame.place(3000, 150, 2000, 2000);
    const FaceDescription face = described();
    ASSERT_EQ(face.pieces.size(), 3u);
    EXPECT_EQ(face.pieces[0].control, &frame) << "containers first";
    EXPECT_EQ(face.pieces[1].control, &label) << "then the light controls";
    EXPECT_EQ(face.pieces[2].control, &field) << "then the boxes";
    EXPECT_EQ(face.size, (Size{400, 200}));
    EXPECT_EQ(face.ground, kWhite);
    EXPECT_FALSE(face.area.has_value());

    const Rect top{0, 0, 150, 40};
    const FaceDescription part = describeFace(form, FaceRequest{kScale, false, top}, measure);
    ASSERT_EQ(part.pieces.size(), 1u);
    EXPECT_EQ(part.pieces[0].control, &field);
    EXPECT_TRUE(part.pieces[0].extent.intersects(top));
    EXPECT_EQ(part.area, top);
}

TEST_F(FaceTest, AHiddenControlPaintsNothing) {
    Control& label = form.add(ControlKind::Label, "Label1");
    label.place(150, 150, 1500, 255);
    label.caption = "BOX";
    label.visible = false;
    EXPECT_TRUE(described().pieces.empty());
}

}  // namespace
}  // namespace lw::face
