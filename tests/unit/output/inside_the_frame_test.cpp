// The document of a form ends at its frame: no rule of the drawing is painted past the document's border,
// and the page holds no more ground right of the border than left of it, at 100% and 200%.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <string>

#include "drawn_forms.h"
#include "model/containers.h"
#include "qt_offscreen.h"
#include "ui/form_painter.h"

namespace lw {
namespace {

const auto* const kQt = testing::addQtOffscreen();

// Where a picture holds anything but white, looked for within an area.
QRect inkOf(const QImage& picture, const QRect& area) {
    QRect ink;
    const QRect within = area.intersected(picture.rect());
    for (int y = within.top(); y <= within.bottom(); ++y)
        for (int x = within.left(); x <= within.right(); ++x)
            if (picture.pixel(x, y) != qRgb(255, 255, 255)) ink = ink.united(QRect(x, y, 1, 1));
    return ink;
}

class InsideTheFrame : public testing::EachDrawnForm {};

TEST_P(InsideTheFrame, NoRuleLeavesTheBorderAndNoGroundRunsPastIt) {
    const Control* border = form->find("myBorder");
    if (!border || border->borderStyle == 0) GTEST_SKIP() << "no frame drawn";
    for (const double zoom : {1.0, 2.0}) {
        const double scale = ui::kScreenScale * zoom;
        const QRect frame = ui::controlRect(*border, scale);
        QImage picture(ui::formSize(*form, scale), QImage::Format_RGB32);
        for (const auto& owned : form->controls()) {
            const Control& line = *owned;
            if (line.kind != ControlKind::Line || !isShown(line) || line.borderStyle == 0) continue;
            picture.fill(Qt::white);
            {
                QPainter painter(&picture);
                ui::FormPainter(scale).paintControl(painter, line);
            }
            const QRect ink = inkOf(picture, ui::paintedExtent(line, scale));
            EXPECT_TRUE(frame.contains(ink))
                << GetParam() << " at " << zoom * 100 << "%: the rule " << line.key() << " is painted from "
                << ink.left() << "," << ink.top() << " to " << ink.right() << "," << ink.bottom()
                << ", out of the border from " << frame.left() << "," << frame.top() << " to "
                << frame.right() << "," << frame.bottom();
        }
        const int groundLeft = frame.left();
        const int groundRight = ui::formSize(*form, scale).width() - 1 - frame.right();
        EXPECT_LE(groundRight, groundLeft + ui::toPixels(60, scale))
            << GetParam() << " at " << zoom * 100 << "%: " << groundRight
            << " pixels of ground right of the border, " << groundLeft << " left of it";
    }
}

INSTANTIATE_TEST_SUITE_P(DrawnForms, InsideTheFrame, ::testing::ValuesIn(testing::drawnForms()),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param; });

}  // namespace
}  // namespace lw
