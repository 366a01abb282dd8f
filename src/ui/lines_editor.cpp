#include "ui/lines_editor.h"

#include <QTextDocument>
#include <algorithm>
#include <cmath>

namespace lw::ui {

namespace {
// The narrow margin of a classic edit box, around its text.
constexpr qreal kTextMargin = 1;
}  // namespace

void LinesEditor::setLineWidth(qreal pixels) {
    const qreal inside = width() - 2 * frameWidth();
    const int right = std::max(0, static_cast<int>(std::floor(inside - 2 * kTextMargin - pixels)));
    const qreal margin = std::max(kTextMargin, (inside - right - pixels) / 2);
    if (viewportMargins().right() != right) setViewportMargins(0, 0, right, 0);
    if (std::abs(document()->documentMargin() - margin) > 1e-3) document()->setDocumentMargin(margin);
}

}  // namespace lw::ui
