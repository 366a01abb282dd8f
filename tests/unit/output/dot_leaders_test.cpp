// A caption's dot leader runs on one line, from its words to the ">" that points at the box, on the
// screen at any zoom and on paper: the dots never wrap.
#include <gtest/gtest.h>

#include <QRegularExpression>
#include <string>
#include <vector>

#include "drawn_forms.h"
#include "model/containers.h"
#include "qt_offscreen.h"
#include "ui/control_text.h"

namespace lw {
namespace {

const auto* const kQt = testing::addQtOffscreen();

// The dots of a caption stand whole on one of the lines its layout breaks it into.
bool onOneLine(const ui::TextBlock& block, const QString& dots) {
    for (const ui::TextLine& line : block.lines)
        if (line.text.contains(dots)) return true;
    return false;
}

class DotLeaders : public testing::EachDrawnForm {};

TEST_P(DotLeaders, StayOnTheLineTheyStartOn) {
    static const QRegularExpression leader(QStringLiteral("\\.( \\.){2,}( ?>)?"));
    Control* tabs = form->find("SSTab1");
    for (int tab = 0; tab < (tabs ? 2 : 1); ++tab) {
        if (tabs) setTab(*tabs, tab);
        // A caption is laid out once, in twips, for the screen at any zoom and for paper alike.
        for (const auto& owned : form->controls()) {
            const Control& label = *owned;
            if (label.kind != ControlKind::Label || !isShown(label)) continue;
            const ui::TextBlock layout = ui::captionLayout(label);
            QString text;
            for (const ui::TextLine& line : layout.lines) text += line.text + QLatin1Char(' ');
            for (const QString& paragraph : QString::fromStdString(label.caption).split(QRegularExpression("[\r\n|]+"))) {
                const QRegularExpressionMatch dots = leader.match(paragraph);
                if (!dots.hasMatch()) continue;
                EXPECT_TRUE(onOneLine(layout, dots.captured().trimmed()))
                    << GetParam() << ": the dots of " << label.key() << " \"" << label.caption << "\" wrap";
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(DrawnForms, DotLeaders, ::testing::ValuesIn(testing::drawnForms()),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param; });

}  // namespace
}  // namespace lw
