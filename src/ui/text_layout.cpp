#include "ui/text_layout.h"

#include <QFontMetricsF>
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
    installFontSubstitutes();
    QFont font(toQString(name));
    // A point is twenty twips. Unhinted outlines measure the same at every size, so the lines laid out
    // here keep their widths on any screen or printer.
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * 20.0))));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::ForceOutline);
    font.setBold(bold);
    font.setItalic(italic);
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

TextBlock layoutText(const QString& text, const QFont& font, const QRectF& area, Qt::Alignment alignment,
                     TextFlow flow, QPoint origin) {
    TextBlock block;
    block.font = font;
    block.points = font.pixelSize() / 20.0;
    block.origin = origin;
    block.area = area;
    block.clip = area;
    const QFontMetricsF metrics(font);
    block.ascent = metrics.ascent();
    block.height = metrics.height();
    block.lineHeight = metrics.lineSpacing();
    if (text.isEmpty()) return block;

    QString shown = text;
    if (flow == TextFlow::OneLine) shown.replace(QLatin1Char('\n'), QLatin1Char(' '));
    shown.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(shown, font);
    QTextOption option;
    option.setWrapMode(wrapModeOf(flow));
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(flow == TextFlow::OneLine ? 1e9 : std::max(0.0, area.width()));
        QString part = shown.mid(line.textStart(), line.textLength());
        while (!part.isEmpty() && (part.back() == QChar::LineSeparator || part.back() == QLatin1Char(' ')))
            part.chop(1);
        block.lines.push_back({part, 0, 0, line.naturalTextWidth()});
    }
    layout.endLayout();

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
    return block;
}

TextBlock layoutShrinking(const QString& text, const Control& control, const QRectF& area,
                          Qt::Alignment alignment, QPoint origin) {
    const auto at = [&](double points, TextFlow flow) {
        return layoutText(text, designFont(control.fontName, points, control.fontBold, control.fontItalic),
                          area, alignment, flow, origin);
    };
    const double floor = std::min(control.fontSize, control.fitFloor);
    for (double points = control.fontSize; points > floor; points -= kPointStep) {
        TextBlock block = at(points, TextFlow::OneLine);
        if (block.lines.empty() || block.extent().width() <= area.width() + kSlack) return block;
    }
    TextBlock one = at(floor, TextFlow::OneLine);
    if (one.lines.empty() || one.extent().width() <= area.width() + kSlack) return one;
    return at(floor, TextFlow::WordsOrAnywhere);
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
