// Every amount whose text carries no "$" of its own shows the one its box prints: drawn left of the
// field, inside the box -- no rule, border, field or caption of the form in its way -- at 100% and 200%.
#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <string>

#include "drawn_forms.h"
#include "face/control_text.h"
#include "fields/box_dollar_sign.h"
#include "model/containers.h"
#include "qt_offscreen.h"
#include "ui/form_painter.h"
#include "ui/qt_text_measure.h"

namespace lw {
namespace {

const auto* const kQt = testing::addQtOffscreen();

bool isField(const Control& c) {
    return c.kind == ControlKind::TextBox || c.kind == ControlKind::ComboBox ||
           c.kind == ControlKind::CheckLabel;
}

QRect lineRect(const Control& line, double scale) {
    const int x = originLeft(line);
    const int y = originTop(line);
    return QRect(QPoint(ui::toPixels(x + line.left, scale), ui::toPixels(y + line.top, scale)),
                 QPoint(ui::toPixels(x + line.x2, scale), ui::toPixels(y + line.y2, scale)))
        .normalized();
}

// What of the form stands in the sign's way: a message naming it, or nothing.
std::string inTheWay(const Form& form, const Control& field, const QRect& sign, double scale) {
    if (!QRect(QPoint(0, 0), ui::formSize(form, scale)).contains(sign)) return "the form's edge";
    for (const auto& owned : form.controls()) {
        const Control& c = *owned;
        if (&c == &field || !isShown(c)) continue;
        if (c.kind == ControlKind::Line && c.borderStyle != 0 && lineRect(c, scale).intersects(sign))
            return "the rule " + c.key();
        if (c.kind == ControlKind::Shape && c.borderStyle != 0) {
            const QRect r = ui::controlRect(c, scale);
            if (r.intersects(sign) && !r.adjusted(1, 1, -1, -1).contains(sign))
                return "the border of " + c.key();
        }
        if (isField(c) && ui::controlRect(c, scale).intersects(sign)) return "the field " + c.key();
        if (c.kind == ControlKind::Label && !c.caption.empty()) {
            const face::TextBlock layout = face::captionLayout(c, ui::qtTextMeasure());
            const QRectF twips = ui::toQRectF(layout.extent().translated(layout.origin.x, layout.origin.y));
            const QRect words = QRectF(twips.left() * scale, twips.top() * scale, twips.width() * scale,
                                       twips.height() * scale)
                                    .toAlignedRect();
            if (words.intersects(sign)) return "the caption of " + c.key() + " \"" + c.caption + "\"";
        }
    }
    return {};
}

// Some ink in the room of the sign: the sign is painted.
bool signIsDrawn(const QImage& picture, const QRect& sign) {
    for (int y = sign.top(); y <= sign.bottom(); ++y)
        for (int x = sign.left(); x <= sign.right(); ++x)
            if (qGray(picture.pixel(x, y)) < 96) return true;
    return false;
}

class BoxDollarSigns : public testing::EachDrawnForm {};

TEST_P(BoxDollarSigns, StandInsideTheBoxOfEachAmountWithoutOne) {
    for (const double zoom : {1.0, 2.0}) {
        const double scale = ui::kScreenScale * zoom;
        QImage picture(ui::formSize(*form, scale), QImage::Format_RGB32);
        picture.fill(Qt::white);
        {
            QPainter painter(&picture);
            // As the screen paints it: the fields are editors of their own and are not painted.
            ui::FormPainter(scale).paintForm(painter, *form, true);
        }
        for (const auto& owned : form->controls()) {
            const Control& field = *owned;
            if (!isShown(field) || !takesBoxDollarSign(field)) continue;
            const QRect sign = ui::boxDollarSignRect(field, scale);
            EXPECT_GE(sign.width(),
                      QFontMetrics(ui::boxDollarSignFont(scale)).horizontalAdvance(QLatin1Char('$')))
                << GetParam() << " at " << zoom * 100 << "%: no room for the sign of " << field.key();
            const std::string way = inTheWay(*form, field, sign, scale);
            EXPECT_EQ(way, "") << GetParam() << " at " << zoom * 100 << "%: the sign of " << field.key()
                               << " falls on " << way;
            EXPECT_TRUE(signIsDrawn(picture, sign))
                << GetParam() << " at " << zoom * 100 << "%: no sign drawn beside " << field.key();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(DrawnForms, BoxDollarSigns, ::testing::ValuesIn(testing::drawnForms()),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param; });

TEST(BoxDollarSign, IsTakenByTheAmountsWrittenWithoutOne) {
    Control field;
    field.kind = ControlKind::TextBox;
    for (const char* tag : {"SMONEY"}) {
        field.tag = tag;
        EXPECT_TRUE(takesBoxDollarSign(field)) << tag;
    }
    for (const char* tag : {"MONEY", "-MONEY", "AMONEY", "COMPUTED", "smoney", "", "TIN"}) {
        field.tag = tag;
        EXPECT_FALSE(takesBoxDollarSign(field)) << tag;
    }
    field.kind = ControlKind::Label;
    field.tag = "SMONEY";
    EXPECT_FALSE(takesBoxDollarSign(field));
}

}  // namespace
}  // namespace lw
