// A caption's dot leader runs on one line, from its words to the ">" that points at the box, on the
// screen at 100% and 200% and on paper at 600 dpi: the dots never wrap.
#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTextLayout>
#include <string>
#include <vector>

#include "drawn_forms.h"
#include "model/containers.h"
#include "qt_offscreen.h"
#include "ui/form_painter.h"

namespace lw {
namespace {

const auto* const kQt = testing::addQtOffscreen();

// Where each line of a paragraph starts, as the label wraps it in the width of its box.
std::vector<int> lineStarts(const QString& paragraph, const QFont& font, int width) {
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    layout.setTextOption(option);
    std::vector<int> starts;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        starts.push_back(line.textStart());
    }
    layout.endLayout();
    return starts;
}

class DotLeaders : public testing::EachDrawnForm {};

TEST_P(DotLeaders, StayOnTheLineTheyStartOn) {
    static const QRegularExpression leader(QStringLiteral("\\.( \\.){2,}( ?>)?"));
    Control* tabs = form->find("SSTab1");
    for (int tab = 0; tab < (tabs ? 2 : 1); ++tab) {
        if (tabs) setTab(*tabs, tab);
        for (const double zoom : {1.0, 2.0, 600.0 / 96.0}) {
            const double scale = ui::kScreenScale * zoom;
            for (const auto& owned : form->controls()) {
                const Control& label = *owned;
                if (label.kind != ControlKind::Label || !isShown(label)) continue;
                const ui::LabelLayout layout = ui::labelLayout(label, scale);
                for (const QString& paragraph : layout.text.split(QLatin1Char('\n'))) {
                    const QRegularExpressionMatch dots = leader.match(paragraph);
                    if (!dots.hasMatch()) continue;
                    const std::vector<int> starts =
                        lineStarts(paragraph, ui::controlFont(label, scale), layout.box.width());
                    int breaks = 0;
                    for (const int start : starts)
                        if (start > dots.capturedStart() && start < dots.capturedEnd()) ++breaks;
                    EXPECT_EQ(breaks, 0) << GetParam() << " at " << zoom * 100 << "%: the dots of "
                                         << label.key() << " \"" << label.caption << "\" wrap";
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(DrawnForms, DotLeaders, ::testing::ValuesIn(testing::drawnForms()),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param; });

}  // namespace
}  // namespace lw
