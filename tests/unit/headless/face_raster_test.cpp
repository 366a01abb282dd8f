#include "headless/face_raster.h"

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "catalogue/catalogue_table.h"
#include "face/face_description.h"
#include "forms/register_forms.h"
#include "qt_offscreen.h"
#include "test_program.h"
#include "ui/clipboard_picture.h"

namespace lw::headless {
namespace {

const auto* const kQt = lw::testing::addQtOffscreen();

// Every form of the menu that opens as a child of the frame.
std::vector<std::string> menuItems() {
    std::vector<std::string> items;
    for (const CatalogueEntry& entry : catalogue())
        if (std::string(entry.menuItem).rfind("mnu", 0) == 0) items.push_back(entry.menuItem);
    return items;
}

// Text in every box, as an operator might leave it: words and figures, long enough in some boxes to
// shrink, wrap or run past the box.
void fillEveryBox(Form& form) {
    const std::string words = "Harbor View Apartments 1204 North Lakeshore Drive Suite 5 Springfield";
    int n = 0;
    for (const auto& c : form.controls()) {
        if (c->kind != ControlKind::TextBox) continue;
        const std::size_t length = c->multiLine ? words.size() : std::size_t(8 + (n * 7) % 40);
        c->text = std::to_string(n++) + " " + words.substr(0, length);
        if (c->multiLine) c->text += "\r\nSecond line " + std::to_string(n);
    }
}

QRgb pixelOf(const QImage& image, int x, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
}

int distance(QRgb a, Color b) {
    return std::max(
        {std::abs(qRed(a) - redOf(b)), std::abs(qGreen(a) - greenOf(b)), std::abs(qBlue(a) - blueOf(b))});
}

struct Comparison {
    double shapesDiffer = 0;  // the part of the pixels away from every text whose colours differ
    double blocksDiffer = 0;  // the part of the squares of four by four pixels whose mean colours differ
};

// The picture of the window's painter beside the runner's own, at a zoom. Texts are drawn by two font
// rasterizers that smooth their edges a little apart, so pixels near a text are compared only by the
// mean colour of small squares; everything else is to be the same pixel for pixel.
Comparison compare(const Form& form, double zoom) {
    const QImage qt = ui::renderForm(form, zoom).convertToFormat(QImage::Format_RGB32);
    TrueTypeFaces faces;
    PictureFiles pictures(faces);
    // Each painter's face is laid out with its own measures, as each front end does.
    const face::FaceDescription drawn =
        face::describeFace(form, face::FaceRequest{face::kScreenScale * zoom, false, {}}, faces);
    RasterImage ours(drawn.size.width, drawn.size.height, drawn.ground);
    paintFace(drawn, ours, faces, pictures);
    EXPECT_EQ(qt.width(), ours.width());
    EXPECT_EQ(qt.height(), ours.height());
    const int width = std::min(qt.width(), ours.width()), height = std::min(qt.height(), ours.height());

    std::vector<bool> nearText(std::size_t(width) * height, false);
    for (const face::FacePiece& piece : drawn.pieces) {
        for (const face::FaceItem& item : piece.items) {
            const auto* text = std::get_if<face::TextItem>(&item);
            if (!text) continue;
            const face::FaceMetrics metrics = faces.metrics(text->face);
            for (const face::TextRun& run : text->runs) {
                const face::PointF at = text->placeOf(run);
                const double advance = faces.advance(text->face, run.text) * text->scale;
                const int x0 = int(std::floor(at.x)) - 3, x1 = int(std::ceil(at.x + advance)) + 3;
                const int y0 = int(std::floor(at.y - metrics.ascent * text->scale)) - 3;
                const int y1 = int(std::ceil(at.y + metrics.descent * text->scale)) + 3;
                for (int y = std::max(0, y0); y < std::min(height, y1); ++y)
                    for (int x = std::max(0, x0); x < std::min(width, x1); ++x)
                        nearText[std::size_t(y) * width + x] = true;
            }
        }
    }
    long shapes = 0, shapesDiffering = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            if (nearText[std::size_t(y) * width + x]) continue;
            ++shapes;
            if (distance(pixelOf(qt, x, y), ours.pixel(x, y)) > 2) ++shapesDiffering;
        }
    }
    long blocks = 0, blocksDiffering = 0;
    for (int by = 0; by + 4 <= height; by += 4) {
        for (int bx = 0; bx + 4 <= width; bx += 4) {
            int sums[2][3] = {};
            for (int y = by; y < by + 4; ++y) {
                for (int x = bx; x < bx + 4; ++x) {
                    const QRgb a = pixelOf(qt, x, y);
                    const Color b = ours.pixel(x, y);
                    sums[0][0] += qRed(a), sums[0][1] += qGreen(a), sums[0][2] += qBlue(a);
                    sums[1][0] += redOf(b), sums[1][1] += greenOf(b), sums[1][2] += blueOf(b);
                }
            }
            ++blocks;
            if (std::abs(sums[0][0] - sums[1][0]) > 256 || std::abs(sums[0][1] - sums[1][1]) > 256 ||
                std::abs(sums[0][2] - sums[1][2]) > 256)
                ++blocksDiffering;
        }
    }
    if (const char* folder = std::getenv("LW_SAVE_FACES")) {
        const std::string name = std::string(folder) + "/" + form.name() + "-" + std::to_string(int(zoom));
        qt.save(QString::fromStdString(name + "-window.png"));
        ours.savePng(name + "-runner.png");
    }
    return {double(shapesDiffering) / std::max(1L, shapes), double(blocksDiffering) / std::max(1L, blocks)};
}

class EachMenuForm : public ::testing::TestWithParam<std::string> {};

TEST_P(EachMenuForm, PaintsAsTheWindowsPainterDoes) {
    lw::testing::TestProgram test;
    registerAllForms();
    test.start();
    test.program->desktop.chooseMenu(GetParam());
    Form* form = test.program->desktop.activeChild();
    ASSERT_NE(form, nullptr);
    for (const bool filled : {false, true}) {
        if (filled) fillEveryBox(*form);
        for (const double zoom : {1.0, 2.0}) {
            const Comparison c = compare(*form, zoom);
            EXPECT_LT(c.shapesDiffer, 0.002)
                << form->name() << (filled ? " filled" : " empty") << " at " << zoom;
            EXPECT_LT(c.blocksDiffer, 0.05)
                << form->name() << (filled ? " filled" : " empty") << " at " << zoom;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, EachMenuForm, ::testing::ValuesIn(menuItems()));

}  // namespace
}  // namespace lw::headless
