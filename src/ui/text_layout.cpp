#include "ui/text_layout.h"

#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "ui/form_painter.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

// Rounding of the face's measures stays far below this; a line that reaches past its area by less still
// shows whole at every resolution.
constexpr double kSlack = 0.5;
constexpr double kPointStep = 0.5;

QTextOption::WrapMode wrapModeOf(TextFlow flow) {
    switch (flow) {
        case TextFlow::Words:
            return QTextOption::WordWrap;
        case TextFlow::WordsOrAnywhere:
            return QTextOption::WrapAtWordBoundaryOrAnywhere;
        default:
            return QTextOption::NoWrap;
    }
}

}  // namespace

QFont designFont(const std::string& name, double points, bool bold, bool italic) {
    // A form asks for a handful of faces again and again: each is made once.
    static QHash<QString, QFont> made;
    const int pixels = std::max(1, static_cast<int>(std::lround(points * 20.0)));
    const QString key = toQString(name) + QLatin1Char('/') + QString::number(pixels) + QLatin1Char('/') +
                        QLatin1Char(bold ? 'b' : '-') + QLatin1Char(italic ? 'i' : '-');
    if (const auto found = made.constFind(key); found != made.constEnd()) return *found;
    installFontSubstitutes();
    QFont font(toQString(name));
    // A point is twenty twips. Unhinted outlines measure the same at every size, so the lines laid out
    // here keep their widths on any screen or printer.
    font.setPixelSize(pixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::ForceOutline);
    font.setBold(bold);
    font.setItalic(italic);
    made.insert(key, font);
    return font;
}

QFont designFont(const Control& control) {
    return designFont(control.fontName, control.fontSize, control.fontBold, control.fontItalic);
}

double lineHeightOf(const QFont& font) { return QFontMetricsF(font).height(); }

double advanceOf(const QFont& font, const QString& text) {
    return QFontMetricsF(font).horizontalAdvance(text);
}

QRectF TextBlock::extent() const {
    QRectF all;
    for (const TextLine& line : lines) {
        const QRectF taken(line.x, line.baseline - ascent, line.width, height);
        all = all.isNull() ? taken : all.united(taken);
    }
    return all;
}

bool TextBlock::fits() const {
    if (lines.empty()) return true;
    const QRectF taken = extent();
    return taken.left() >= area.left() - kSlack && taken.right() <= area.right() + kSlack &&
           taken.top() >= area.top() - kSlack && taken.bottom() <= area.bottom() + kSlack;
}

namespace {
// Breaks a text of several lines, or one too long for its line, where the flow allows.
void breakLines(QString shown, const QFont& font, TextFlow flow, TextBlock& block);
// Places the lines in the area: across by the alignment, and down from the top or in the middle.
void placeLines(TextBlock& block, Qt::Alignment alignment);
}  // namespace

TextBlock layoutText(const QString& text, const QFont& font, const QRectF& area, Qt::Alignment alignment,
                     TextFlow flow, QPoint origin, double lineWidth) {
    TextBlock block;
    block.lineWidth = lineWidth < 0 ? area.width() : lineWidth;
    block.font = font;
    block.points = font.pixelSize() / 20.0;
    block.origin = origin;
    block.area = area;
    block.clip = area;
    if (text.isEmpty()) return block;
    const QFontMetricsF metrics(font);
    block.ascent = metrics.ascent();
    block.height = metrics.height();
    block.lineHeight = metrics.lineSpacing();

    QString shown = text;
    if (flow == TextFlow::OneLine) {
        // One line needs no breaking: its advance is its width, as the layout of lines would measure it.
        shown.replace(QLatin1Char('\n'), QLatin1Char(' '));
        while (shown.endsWith(QLatin1Char(' '))) shown.chop(1);
        if (!shown.isEmpty()) block.lines.push_back({shown, 0, 0, metrics.horizontalAdvance(shown)});
    } else {
        breakLines(shown, font, flow, block);
    }
    placeLines(block, alignment);
    return block;
}

namespace {

void breakLines(QString shown, const QFont& font, TextFlow flow, TextBlock& block) {
    shown.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(shown, font);
    QTextOption option;
    option.setWrapMode(wrapModeOf(flow));
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(0.0, block.lineWidth));
        QString part = shown.mid(line.textStart(), line.textLength());
        while (!part.isEmpty() && (part.back() == QChar::LineSeparator || part.back() == QLatin1Char(' ')))
            part.chop(1);
        block.lines.push_back({part, 0, 0, line.naturalTextWidth()});
    }
    layout.endLayout();
}

void placeLines(TextBlock& block, Qt::Alignment alignment) {
    if (block.lines.empty()) return;
    const QRectF& area = block.area;
    const double height = block.height + static_cast<double>(block.lines.size() - 1) * block.lineHeight;
    double top = area.top();
    if (alignment & Qt::AlignVCenter) top = area.top() + (area.height() - height) / 2;
    if (alignment & Qt::AlignBottom) top = area.bottom() - height;
    for (std::size_t i = 0; i < block.lines.size(); ++i) {
        TextLine& line = block.lines[i];
        line.x = area.left();
        if (alignment & Qt::AlignRight) line.x = area.right() - line.width;
        if (alignment & Qt::AlignHCenter) line.x = area.left() + (area.width() - line.width) / 2;
        line.baseline = top + block.ascent + static_cast<double>(i) * block.lineHeight;
    }
}

}  // namespace

namespace {

// Lines that break a text between its words into two lines at most, as evenly as its words allow: the
// longer line of the two is as short as it can be. The width returned lies midway in the range of widths
// that make those same lines, so that a slightly different measure of the text breaks it alike.
double evenTwoLineWidth(const QString& text, const QFont& font, double widest) {
    const auto laidAt = [&](double width) {
        return layoutText(text, font, QRectF(0, 0, width, 1e9), Qt::AlignLeft, TextFlow::Words, QPoint(),
                          width);
    };
    const auto search = [](double yes, double no, const auto& holds) {
        while (std::abs(yes - no) > kSlack) {
            const double middle = (yes + no) / 2;
            (holds(middle) ? yes : no) = middle;
        }
        return yes;
    };
    if (laidAt(widest).lines.size() > 2) return widest;
    const double narrowest = search(widest, 0.0, [&](double w) { return laidAt(w).lines.size() <= 2; });
    const QString first = laidAt(narrowest).lines.front().text;
    const bool sameAtWidest = laidAt(widest).lines.front().text == first;
    const double broadest = sameAtWidest ? widest : search(narrowest, widest, [&](double w) {
        return laidAt(w).lines.front().text == first;
    });
    return (narrowest + broadest) / 2;
}

}  // namespace

TextBlock layoutShrinking(const QString& text, const Control& control, const QRectF& area,
                          Qt::Alignment alignment, QPoint origin) {
    const auto face = [&](double points) {
        return designFont(control.fontName, points, control.fontBold, control.fontItalic);
    };
    const double floor = std::min(control.fontSize, control.fitFloor);
    // One line, in a smaller size of the face down to the floor.
    for (double points = control.fontSize; points >= floor - 1e-9; points -= kPointStep) {
        TextBlock block = layoutText(text, face(points), area, alignment, TextFlow::OneLine, origin);
        if (block.lines.empty() || block.extent().width() <= area.width() + kSlack) return block;
    }
    // Two lines broken between words as evenly as they go, in the largest size that holds them.
    for (double points = control.fontSize; points >= floor - 1e-9; points -= kPointStep) {
        const QFont font = face(points);
        const double width = evenTwoLineWidth(text, font, area.width());
        TextBlock block = layoutText(text, font, area, alignment, TextFlow::Words, origin, width);
        if (block.lines.size() <= 2 && block.fits()) return block;
    }
    return layoutText(text, face(floor), area, alignment, TextFlow::WordsOrAnywhere, origin);
}

void drawText(QPainter& painter, const TextBlock& block, double scale) {
    if (block.lines.empty()) return;
    painter.save();
    // The control's corner lands on the whole pixel its box is drawn from, so text and box stay together.
    painter.translate(toPixels(block.origin.x(), scale), toPixels(block.origin.y(), scale));
    painter.scale(scale, scale);
    painter.setClipRect(block.clip, Qt::IntersectClip);
    painter.setFont(block.font);
    for (const TextLine& line : block.lines) painter.drawText(QPointF(line.x, line.baseline), line.text);
    painter.restore();
}

}  // namespace lw::ui
