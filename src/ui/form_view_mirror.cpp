// Copying the model's properties to the editors: only what differs is set, so a refresh after every key
// costs little and never disturbs the operator's caret.
#include <QComboBox>
#include <QFontMetrics>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTextDocument>
#include <QToolButton>
#include <algorithm>

#include "face/caption_text.h"
#include "face/control_text.h"
#include "model/containers.h"
#include "model/program.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"
#include "ui/lines_editor.h"
#include "ui/qt_text.h"
#include "ui/qt_text_measure.h"

namespace lw::ui {

namespace {

// The tip is also what a screen reader says of the field after its name.
void setWhenDifferent(QWidget* w, const QString& tip) {
    if (w->toolTip() != tip) w->setToolTip(tip);
    if (w->accessibleDescription() != tip) w->setAccessibleDescription(tip);
}

// The face of an editor: the size the painter gives the control's text, a text that shrinks to fit
// included, in whole pixels of the screen.
QFont editorFont(const Control& control) {
    if (control.kind != ControlKind::TextBox || control.fitFloor <= 0)
        return controlFont(control, kScreenScale);
    const face::TextBlock laid = face::fieldLayout(control, qtTextMeasure());
    return scaledFont(control.fontName, laid.points, control.fontBold, control.fontItalic, kScreenScale);
}

// The width of line that makes an editor of several lines break them where the painter does: as wide as
// the painted lines, in the measure of the editor's own face.
qreal lineWidthOf(const Control& control, const QPlainTextEdit& box) {
    const face::TextBlock laid = face::fieldLayout(control, qtTextMeasure());
    std::string sample = face::withLineFeeds(control.text);
    std::replace(sample.begin(), sample.end(), '\n', ' ');
    if (toQString(sample).trimmed().isEmpty()) sample = "ABCDEFGHIJKLMNOPQRSTUVWXYZ 0123456789";
    const double painted = qtTextMeasure().advance(laid.face, sample);
    const double shown = QFontMetricsF(box.font()).horizontalAdvance(toQString(sample));
    return laid.lineWidth * (painted > 0 ? shown / painted : kScreenScale);
}

// A line editor keeps room for the farthest a glyph of its face may reach past its advance before it
// takes its text as fitting. Its margins give that room back, so that it shows whole, without scrolling,
// every text the painter fits in the same box. The room is given on the side the text runs towards:
// given on the side it is aligned to, it would push the text into the border.
QMargins bearingMargins(const QFont& font, Qt::Alignment horizontal) {
    const QFontMetrics metrics(font);
    const int before = std::max(0, -metrics.minLeftBearing());
    const int after = std::max(0, -metrics.minRightBearing()) + 1;
    if (horizontal & Qt::AlignRight) return QMargins(-(before + after), 0, 0, 0);
    // Centred text stays centred whatever the margins, as long as both sides give back the same.
    const int half = (before + after + 1) / 2;
    if (horizontal & Qt::AlignHCenter) return QMargins(-half, 0, -half, 0);
    return QMargins(-before, 0, -after, 0);
}

}  // namespace

void FormView::mirror(Control& control, QWidget* editor) {
    const QRect rect = controlRect(control, kScreenScale);
    if (editor->geometry() != rect) editor->setGeometry(rect);
    // The page it lies on shows it or not as one, with all the page holds.
    const bool shown = isShownOnItsPage(control);
    if (editor->isHidden() == shown) editor->setVisible(shown);
    if (editor->isEnabled() != control.enabled) editor->setEnabled(control.enabled);
    setWhenDifferent(editor, toQString(control.toolTipText));
    const QFont font = editorFont(control);
    if (editor->font() != font) editor->setFont(font);

    QPalette palette = editor->palette();
    const QColor back = toQColor(control.backColor);
    const QColor fore = toQColor(control.foreColor);
    switch (control.kind) {
        case ControlKind::TextBox:
        case ControlKind::ComboBox:
            palette.setColor(QPalette::Base, back);
            palette.setColor(QPalette::Active, QPalette::Text, fore);
            palette.setColor(QPalette::Inactive, QPalette::Text, fore);
            if (control.kind == ControlKind::ComboBox) {
                palette.setColor(QPalette::Button, back);
                palette.setColor(QPalette::Active, QPalette::ButtonText, fore);
                palette.setColor(QPalette::Inactive, QPalette::ButtonText, fore);
            }
            break;
        case ControlKind::OptionButton:
            palette.setColor(QPalette::Window, back);
            palette.setColor(QPalette::Active, QPalette::WindowText, fore);
            palette.setColor(QPalette::Inactive, QPalette::WindowText, fore);
            editor->setAutoFillBackground(control.opaque);
            break;
        default:
            break;
    }
    if (palette != editor->palette()) editor->setPalette(palette);
    mirrorText(control, editor);
}

void FormView::mirrorText(Control& control, QWidget* editor) {
    const Qt::Alignment horizontal = control.alignment == 1   ? Qt::AlignRight
                                     : control.alignment == 2 ? Qt::AlignHCenter
                                                              : Qt::AlignLeft;
    if (auto* line = qobject_cast<QLineEdit*>(editor)) {
        const QString text = toQString(control.text);
        // The model holds the limit on typing; a longer text set by the program is still shown whole.
        const int limit = control.maxLength > 0 ? std::max<int>(control.maxLength, text.size()) : 32767;
        if (line->maxLength() != limit) line->setMaxLength(limit);
        if (line->text() != text) line->setText(text);
        if (line->isReadOnly() != control.locked) line->setReadOnly(control.locked);
        if (line->alignment() != (horizontal | Qt::AlignVCenter))
            line->setAlignment(horizontal | Qt::AlignVCenter);
        if (line->hasFrame() != (control.borderStyle != 0)) line->setFrame(control.borderStyle != 0);
        const QMargins margins = bearingMargins(line->font(), horizontal);
        if (line->textMargins() != margins) line->setTextMargins(margins);
        const int start = control.selStart();
        const int length = control.selLength();
        const int shownStart = line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
        const int shownLength = static_cast<int>(line->selectedText().size());
        if (shownStart != start || shownLength != length) {
            if (length > 0)
                line->setSelection(start, length);
            else
                line->setCursorPosition(start);
        }
    } else if (auto* box = qobject_cast<QPlainTextEdit*>(editor)) {
        const QString text = withLineFeeds(control.text);
        if (box->toPlainText() != text) box->setPlainText(text);
        if (box->isReadOnly() != control.locked) box->setReadOnly(control.locked);
        if (box->document()->defaultTextOption().alignment() != horizontal) {
            QTextOption option = box->document()->defaultTextOption();
            option.setAlignment(horizontal);
            box->document()->setDefaultTextOption(option);
        }
        const QFrame::Shape frame = control.borderStyle != 0 ? QFrame::StyledPanel : QFrame::NoFrame;
        if (box->frameShape() != frame) box->setFrameShape(frame);
        if (auto* lines = dynamic_cast<LinesEditor*>(box))
            lines->setLineWidth(lineWidthOf(control, *box), horizontal);
        const int start = editorPosition(control.text, control.selStart());
        const int end = editorPosition(control.text, control.selStart() + control.selLength());
        QTextCursor cursor = box->textCursor();
        if (cursor.selectionStart() != start || cursor.selectionEnd() != end) {
            cursor.setPosition(start);
            cursor.setPosition(end, QTextCursor::KeepAnchor);
            box->setTextCursor(cursor);
        }
    } else if (auto* combo = qobject_cast<QComboBox*>(editor)) {
        QStringList items;
        for (const std::string& item : control.items) items << toQString(item);
        QStringList shown;
        for (int i = 0; i < combo->count(); ++i) shown << combo->itemText(i);
        const QSignalBlocker block(combo);
        if (shown != items) {
            combo->clear();
            combo->addItems(items);
        }
        int index = control.listIndex;
        if (index < 0 || index >= items.size()) index = items.indexOf(toQString(control.text));
        if (combo->currentIndex() != index) combo->setCurrentIndex(index);
        if (combo->placeholderText() != toQString(control.text))
            combo->setPlaceholderText(toQString(control.text));
    } else if (auto* button = qobject_cast<QAbstractButton*>(editor)) {
        const QString caption = toQString(control.caption);
        if (button->text() != caption) button->setText(caption);
        if (auto* option = qobject_cast<QRadioButton*>(button)) {
            const QSignalBlocker block(option);
            if (option->isChecked() != control.value) option->setChecked(control.value);
        }
        if (auto* tool = qobject_cast<QToolButton*>(button)) {
            const int iconSide = std::clamp(tool->height() - tool->fontMetrics().height() - 6, 12, 32);
            if (tool->iconSize() != QSize(iconSide, iconSide)) tool->setIconSize(QSize(iconSide, iconSide));
        }
    }
}

void FormView::takeSelection(Control& control) {
    if (refreshing_ || !form_ || !isModelFocus(control)) return;
    // The operator's mouse chose a caret or a selection: the model keeps it, with no event.
    if (auto* line = qobject_cast<QLineEdit*>(editors_.value(&control))) {
        control.select(line->hasSelectedText() ? line->selectionStart() : line->cursorPosition(),
                       static_cast<int>(line->selectedText().size()));
    } else if (auto* box = qobject_cast<QPlainTextEdit*>(editors_.value(&control))) {
        const QTextCursor cursor = box->textCursor();
        const int start = modelPosition(control.text, cursor.selectionStart());
        control.select(start, modelPosition(control.text, cursor.selectionEnd()) - start);
    }
}

}  // namespace lw::ui
