#include "headless/truetype_faces.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "face/text_layout.h"
#include "qt_offscreen.h"
#include "ui/qt_text_measure.h"

namespace lw::headless {
namespace {

const auto* const kQt = lw::testing::addQtOffscreen();

// The faces the forms name, in the sizes of their texts, in twips.
std::vector<face::TextFace> formFaces() {
    std::vector<face::TextFace> faces;
    for (const char* name : {"Tahoma", "Arial", "Arial Narrow", "Times New Roman", "Courier New"})
        for (const double points : {6.5, 8.0, 10.0, 14.0})
            for (const bool bold : {false, true})
                for (const bool italic : {false, true})
                    faces.push_back(face::designFace(name, points, bold, italic));
    return faces;
}

const std::string kSample = "Harbor View Apartments, 1204 North Lakeshore Drive: $12,345.67 (Wages)";

TEST(TrueTypeFaces, MeasureTheFormsFacesAsTheWindowDoes) {
    TrueTypeFaces ours;
    ui::QtTextMeasure& window = ui::qtTextMeasure();
    for (const face::TextFace& f : formFaces()) {
        const std::string name =
            f.name + " " + std::to_string(f.size) + (f.bold ? " bold" : "") + (f.italic ? " italic" : "");
        const face::FaceMetrics a = ours.metrics(f), b = window.metrics(f);
        EXPECT_NEAR(a.ascent, b.ascent, 1.0) << name;
        EXPECT_NEAR(a.descent, b.descent, 1.0) << name;
        EXPECT_NEAR(a.lineSpacing, b.lineSpacing, 1.0) << name;
        EXPECT_NEAR(ours.advance(f, kSample), window.advance(f, kSample), 0.002 * window.advance(f, kSample))
            << name;
    }
}

TEST(TrueTypeFaces, GiveTheInkPastALettersAdvanceAndJoinNoLetters) {
    TrueTypeFaces ours;
    const face::TextFace upright = face::designFace("Tahoma", 10, false, false);
    const face::TextFace leaning = face::designFace("Tahoma", 10, false, true);
    EXPECT_EQ(ours.overhang(upright, "o"), 0);
    // The top of a leaning "f" reaches past where the next letter starts.
    EXPECT_GT(ours.overhang(leaning, "f"), 0);
    EXPECT_GT(ours.overhang(leaning, "f"), ours.overhang(upright, "f"));
    EXPECT_FALSE(ours.joins(upright, 'f', 'i'));
    EXPECT_GT(ours.advance(upright, "WW"), ours.advance(upright, "ii"));
    EXPECT_EQ(ours.advance(upright, ""), 0);
}

TEST(TrueTypeFaces, BreakALabelsLinesWhereTheWindowBreaksThem) {
    TrueTypeFaces ours;
    const face::TextFace f = face::designFace("Tahoma", 8, false, false);
    const std::string text =
        "Include these winnings on your federal return; when box 4 shows federal tax withheld, this copy "
        "goes with the return. The payer reports the same figures to the tax office.";
    for (const double width : {1500.0, 2400.0, 3900.0}) {
        const face::RectF area{0, 0, width, 3000};
        const face::TextBlock a =
            face::layoutText(text, f, area, face::kAlignLeft | face::kAlignTop, face::TextFlow::Words, ours);
        const face::TextBlock b = face::layoutText(text, f, area, face::kAlignLeft | face::kAlignTop,
                                                   face::TextFlow::Words, ui::qtTextMeasure());
        ASSERT_EQ(a.lines.size(), b.lines.size()) << width;
        ASSERT_GT(a.lines.size(), 1u) << width;
        for (std::size_t i = 0; i < a.lines.size(); ++i) EXPECT_EQ(a.lines[i].text, b.lines[i].text) << width;
    }
}

}  // namespace
}  // namespace lw::headless
