// No caption of a drawn form runs onto a field or across a line of its grid: each label's words, wrapped
// in its own width in the face it is drawn in and measured as at every resolution, stay clear of every
// text box, list, check box and drawn line.
#include <gtest/gtest.h>

#include <QRectF>
#include <cmath>
#include <string>
#include <vector>

#include "drawn_forms.h"
#include "face/control_text.h"
#include "model/containers.h"
#include "qt_offscreen.h"
#include "ui/qt_text_measure.h"
#include "ui/form_painter.h"

namespace lw {
namespace {

const auto* const kQt = testing::addQtOffscreen();

bool isField(const Control& c) {
    return isShown(c) && (c.kind == ControlKind::TextBox || c.kind == ControlKind::ComboBox ||
                          c.kind == ControlKind::CheckLabel);
}

class CaptionsOffFields : public testing::EachDrawnForm {};

// The words of a caption as laid out, in twips of the form.
QRectF wordsOf(const Control& label) {
    const face::TextBlock block = face::captionLayout(label, ui::qtTextMeasure());
    return ui::toQRectF(block.extent().translated(block.origin.x, block.origin.y));
}

QRectF twipsOf(const Control& c) { return QRectF(formLeft(c), formTop(c), c.width, c.height); }

TEST_P(CaptionsOffFields, NoCaptionRunsOntoAFieldOrAcrossALine) {
    // A form on two tabs is looked at with each of its halves on show.
    Control* tabs = form->find("SSTab1");
    for (int tab = 0; tab < (tabs ? 2 : 1); ++tab) {
        if (tabs) setTab(*tabs, tab);
        for (const auto& label : form->controls()) {
            if (label->kind != ControlKind::Label || !isShown(*label) || label->caption.empty()) continue;
            // Half a pixel of the screen of room: a rule drawn on a rounded pixel may touch the words.
            const QRectF words = wordsOf(*label).adjusted(8, 8, -8, -8);
            for (const auto& line : form->controls()) {
                if (line->kind != ControlKind::Line || !isShown(*line) || line->borderStyle == 0) continue;
                const int x = originLeft(*line);
                const int y = originTop(*line);
                const QRectF drawn =
                    QRectF(QPointF(x + line->left, y + line->top), QPointF(x + line->x2, y + line->y2))
                        .normalized();
                EXPECT_FALSE(words.intersects(drawn.adjusted(-1, -1, 1, 1)))
                    << GetParam() << ": the caption of " << label->key() << " \"" << label->caption
                    << "\" is crossed by the line " << line->key();
            }
            for (const auto& field : form->controls()) {
                if (!isField(*field)) continue;
                const QRectF place = twipsOf(*field);
                EXPECT_FALSE(words.intersects(place))
                    << GetParam() << ": the caption of " << label->key() << " \"" << label->caption
                    << "\" runs onto " << field->key() << " by "
                    << std::lround(words.intersected(place).height()) << " twips";
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(DrawnForms, CaptionsOffFields, ::testing::ValuesIn(testing::drawnForms()),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param; });

}  // namespace
}  // namespace lw
