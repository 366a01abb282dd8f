#include "ui/lines_editor.h"

#include <QEvent>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

namespace lw::ui {

namespace {
// The narrow margin of a classic edit box, around its text.
constexpr qreal kTextMargin = 1;
}  // namespace

LinesEditor::LinesEditor(QWidget* parent) : QPlainTextEdit(parent) { setAutoFillBackground(true); }

void LinesEditor::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    const QColor field = palette().color(QPalette::Base);
    if (palette().color(QPalette::Window) == field) return;
    QPalette kept = palette();
    kept.setColor(QPalette::Window, field);
    setPalette(kept);
}

void LinesEditor::setLineWidth(qreal pixels, Qt::Alignment horizontal) {
    const qreal inside = width() - 2 * frameWidth();
    const int free = std::max(0, static_cast<int>(std::floor(inside - 2 * kTextMargin - pixels)));
    const qreal margin = std::max(kTextMargin, (inside - free - pixels) / 2);
    // Centred lines stand in the middle of the box, as the painter puts them.
    const int left = horizontal & Qt::AlignRight ? free : horizontal & Qt::AlignHCenter ? free / 2 : 0;
    const QMargins margins(left, 0, free - left, 0);
    if (viewportMargins() != margins) setViewportMargins(margins);
    if (std::abs(document()->documentMargin() - margin) > 1e-3) document()->setDocumentMargin(margin);
}

}  // namespace lw::ui
