// No caption of a drawn form runs onto a field or across a line of its grid, at 100% and at 200%: each
// label's words, wrapped in its own width in the face it is drawn in, stay clear of every text box, list,
// check box and drawn line.
#include <gtest/gtest.h>

#include <QFontMetrics>
#include <string>
#include <vector>

#include "drawn_forms.h"
#include "model/containers.h"
#include "qt_offscreen.h"
#include "ui/form_painter.h"

namespace lw {
namespace {

const auto* const kQt = testing::addQtOffscreen();

bool isField(const Control& c) {
    return isShown(c) && (c.kind == ControlKind::TextBox || c.kind == ControlKind::ComboBox ||
                          c.kind == ControlKind::CheckLabel);
}

class CaptionsOffFields : public testing::EachDrawnForm {};

TEST_P(CaptionsOffFields, NoCaptionRunsOntoAFieldOrAcrossALine) {
    // A form on two tabs is looked at with each of its halves on show.
    Control* tabs = form->find("SSTab1");
    for (int tab = 0; tab < (tabs ? 2 : 1); ++tab) {
        if (tabs) setTab(*tabs, tab);
        for (const double zoom : {1.0, 2.0}) {
            const double scale = ui::kScreenScale * zoom;
            for (const auto& label : form->controls()) {
                if (label->kind != ControlKind::Label || !isShown(*label) || label->caption.empty()) continue;
                const ui::LabelLayout layout = ui::labelLayout(*label, scale);
                const int align = label->alignment == 1   ? Qt::AlignRight
                                  : label->alignment == 2 ? Qt::AlignHCenter
                                                          : Qt::AlignLeft;
                const QRect words =
                    QFontMetrics(ui::controlFont(*label, scale))
                        .boundingRect(layout.box, Qt::AlignTop | align | Qt::TextWordWrap, layout.text);
                for (const auto& line : form->controls()) {
                    if (line->kind != ControlKind::Line || !isShown(*line) || line->borderStyle == 0)
                        continue;
                    const int x = originLeft(*line);
                    const int y = originTop(*line);
                    const QRect drawn =
                        QRect(QPoint(ui::toPixels(x + line->left, scale), ui::toPixels(y + line->top, scale)),
                              QPoint(ui::toPixels(x + line->x2, scale), ui::toPixels(y + line->y2, scale)))
                            .normalized();
                    EXPECT_FALSE(words.intersects(drawn))
                        << GetParam() << " at " << zoom * 100 << "%: the caption of " << label->key() << " \""
                        << label->caption << "\" is crossed by the line " << line->key();
                }
                for (const auto& field : form->controls()) {
                    if (!isField(*field)) continue;
                    const QRect place = ui::controlRect(*field, scale);
                    EXPECT_FALSE(words.intersects(place))
                        << GetParam() << " at " << zoom * 100 << "%: the caption of " << label->key() << " \""
                        << label->caption << "\" runs onto " << field->key() << " by "
                        << std::lround(words.intersected(place).height() / scale) << " twips";
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(DrawnForms, CaptionsOffFields, ::testing::ValuesIn(testing::drawnForms()),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param; });

}  // namespace
}  // namespace lw
