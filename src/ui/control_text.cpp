#include "ui/control_text.h"

#include <algorithm>

#include "model/containers.h"
#include "ui/form_painter.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

Qt::Alignment horizontalOf(int alignment) {
    switch (alignment) {
        case 1:
            return Qt::AlignRight;
        case 2:
            return Qt::AlignHCenter;
        default:
            return Qt::AlignLeft;
    }
}

QPoint cornerOf(const Control& c) { return QPoint(formLeft(c), formTop(c)); }

QRectF wholeOf(const Control& c) { return QRectF(0, 0, c.width, c.height); }

TextBlock laidOut(const Control& c, const QString& text, const QRectF& area, Qt::Alignment alignment,
                  TextFlow flow) {
    TextBlock block = layoutText(text, designFont(c), area, alignment, flow, cornerOf(c));
    block.clip = wholeOf(c);
    return block;
}

QString fieldText(const Control& c) {
    if (c.multiLine) return withLineFeeds(c.text);
    return toQString(c.text.substr(0, c.text.find_first_of("\r\n")));
}

}  // namespace

QRectF fieldArea(const Control& box) {
    QRectF inner = wholeOf(box);
    if (box.borderStyle != 0) inner.adjust(kPixelTwips, kPixelTwips, -kPixelTwips, -kPixelTwips);
    return inner.adjusted(2 * kPixelTwips, breaksLines(box) ? kPixelTwips : 0, -2 * kPixelTwips, 0);
}

bool breaksLines(const Control& box) { return box.multiLine || box.fitFloor > 0; }

TextBlock fieldLayout(const Control& box) {
    const QRectF area = fieldArea(box);
    const Qt::Alignment alignment =
        horizontalOf(box.alignment) | (breaksLines(box) ? Qt::AlignTop : Qt::AlignVCenter);
    if (box.fitFloor > 0) {
        TextBlock block = layoutShrinking(fieldText(box), box, area, alignment, cornerOf(box));
        block.clip = wholeOf(box);
        return block;
    }
    return laidOut(box, fieldText(box), area, alignment,
                   box.multiLine ? TextFlow::WordsOrAnywhere : TextFlow::OneLine);
}

TextBlock captionLayout(const Control& label) {
    // As on any label, "&&" shows one "&" and a single "&" marks an access key.
    QString text = withoutAccessMarks(withLineFeeds(label.caption));
    QRectF area = wholeOf(label).adjusted(kPixelTwips, 0, -kPixelTwips, 0);
    QStringList lines = text.split(QLatin1Char('\n'));
    const bool indented = label.alignment == 0 &&
                          std::all_of(lines.cbegin(), lines.cend(),
                                      [](const QString& line) { return line.startsWith(QLatin1Char(' ')); });
    if (indented) {
        for (QString& line : lines) line.remove(0, 1);
        text = lines.join(QLatin1Char('\n'));
        area.setLeft(area.left() + advanceOf(designFont(label), QStringLiteral(" ")));
    }
    return laidOut(label, text, area, Qt::AlignTop | horizontalOf(label.alignment), TextFlow::Words);
}

TextBlock checkLayout(const Control& check) {
    return laidOut(check, toQString(check.caption), wholeOf(check), Qt::AlignCenter, TextFlow::OneLine);
}

TextBlock frameCaptionLayout(const Control& frame) {
    const QString caption = withoutAccessMarks(toQString(frame.caption));
    const QFont font = designFont(frame);
    const QRectF area(8 * kPixelTwips, 0, advanceOf(font, caption) + 4 * kPixelTwips, lineHeightOf(font));
    return laidOut(frame, caption, area, Qt::AlignCenter, TextFlow::OneLine);
}

TextBlock buttonLayout(const Control& button) {
    const QRectF area =
        wholeOf(button).adjusted(2 * kPixelTwips, 2 * kPixelTwips, -2 * kPixelTwips, -2 * kPixelTwips);
    return laidOut(button, withoutAccessMarks(withLineFeeds(button.caption)), area, Qt::AlignCenter,
                   TextFlow::Words);
}

TextBlock optionLayout(const Control& option) {
    // Right of the round mark: twelve pixels of mark, one before it and five after.
    const QRectF area = wholeOf(option).adjusted(17 * kPixelTwips, 0, 0, 0);
    return laidOut(option, withoutAccessMarks(toQString(option.caption)), area,
                   Qt::AlignVCenter | Qt::AlignLeft, TextFlow::Words);
}

int comboArrowTwips(const Control& combo) { return std::min(17 * kPixelTwips, combo.width / 2); }

TextBlock comboLayout(const Control& combo) {
    std::string shown = combo.text;
    if (shown.empty() && combo.listIndex >= 0 && combo.listIndex < static_cast<int>(combo.items.size()))
        shown = combo.items[static_cast<size_t>(combo.listIndex)];
    const QRectF area =
        wholeOf(combo).adjusted(3 * kPixelTwips, 0, -comboArrowTwips(combo) - 2 * kPixelTwips, 0);
    return laidOut(combo, toQString(shown), area, Qt::AlignVCenter | Qt::AlignLeft, TextFlow::OneLine);
}

int tabStripTwips(const Control& tabs) { return tabs.items.empty() ? 0 : std::max(0, tabs.tabHeight); }

std::vector<TextBlock> tabLayouts(const Control& tabs) {
    std::vector<TextBlock> blocks;
    const int count = static_cast<int>(tabs.items.size());
    const int strip = tabStripTwips(tabs);
    for (int i = 0; i < count; ++i) {
        const double x0 = static_cast<double>(tabs.width) * i / count;
        const double x1 = static_cast<double>(tabs.width) * (i + 1) / count;
        const double top = i == tabs.listIndex ? 0 : 2 * kPixelTwips;
        const QRectF area(x0, top, x1 - x0, std::max(0.0, strip - top));
        TextBlock block = laidOut(tabs, withoutAccessMarks(toQString(tabs.items[static_cast<size_t>(i)])),
                                  area, Qt::AlignCenter, TextFlow::OneLine);
        block.clip = area;
        blocks.push_back(block);
    }
    return blocks;
}

double rowTwips(const Control& rows) { return lineHeightOf(designFont(rows)) + 3 * kPixelTwips; }

}  // namespace lw::ui
