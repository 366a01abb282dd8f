// A caption's dot leader runs on one line, from its words to the ">" that points at the box, on the
// screen at any zoom and on paper: the dots never wrap.
#include <gtest/gtest.h>

#include <QRegularExpression>
#include <string>
#include <vector>

#include "drawn_forms.h"
#include "face/control_text.h"
#include "model/containers.h"
#include "qt_offscreen.h"
#include "ui/qt_text.h"
#include "ui/qt_text_measure.h"

namespace lw {
namespace {

const auto* const kQt = testing::addQtOffscreen();

// The dots of a caption stand whole on one of the lines its layout breaks it into.
bool onOneLine(const face::TextBlock& block, const QString& dots) {
    for (const face::TextLine& line : block.lines)
        if (ui::toQString(line.text).contains(dots)) return true;
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
            const face::TextBlock layout = face::captionLayout(label, ui::qtTextMeasure());
            QString text;
            for (const face::TextLine& line : layout.lines)
                text += ui::toQString(line.text) + QLatin1Char(' ');
            for (const QString& paragraph :
                 QString::fromStdString(label.caption).split(QRegularExpression("[\r\n|]+"))) {
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
