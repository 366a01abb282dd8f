#include "face/control_text.h"

#include <algorithm>

#include "face/caption_text.h"
#include "model/containers.h"

namespace lw::face {

namespace {

Alignment horizontalOf(int alignment) {
    switch (alignment) {
        case 1:
            return kAlignRight;
        case 2:
            return kAlignHCenter;
        default:
            return kAlignLeft;
    }
}

Point cornerOf(const Control& c) { return Point{formLeft(c), formTop(c)}; }

RectF wholeOf(const Control& c) {
    return RectF{0, 0, static_cast<double>(c.width), static_cast<double>(c.height)};
}

TextBlock laidOut(const Control& c, const std::string& text, const RectF& area, Alignment alignment,
                  TextFlow flow, TextMeasure& measure) {
    TextBlock block = layoutText(text, designFace(c), area, alignment, flow, measure, cornerOf(c));
    block.clip = wholeOf(c);
    return block;
}

std::string fieldText(const Control& c) {
    if (c.multiLine) return withLineFeeds(c.text);
    return c.text.substr(0, c.text.find_first_of("\r\n"));
}

// The lines of a text, as its line feeds part them.
std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines(1);
    for (char c : text) {
        if (c == '\n')
            lines.emplace_back();
        else
            lines.back() += c;
    }
    return lines;
}

}  // namespace

RectF fieldArea(const Control& box) {
    RectF inner = wholeOf(box);
    if (box.borderStyle != 0) inner = inner.adjusted(kPixelTwips, kPixelTwips, -kPixelTwips, -kPixelTwips);
    return inner.adjusted(2 * kPixelTwips, breaksLines(box) ? kPixelTwips : 0, -2 * kPixelTwips, 0);
}

bool breaksLines(const Control& box) { return box.multiLine || box.fitFloor > 0; }

TextBlock fieldLayout(const Control& box, TextMeasure& measure) {
    const RectF area = fieldArea(box);
    const Alignment alignment = horizontalOf(box.alignment) | (breaksLines(box) ? kAlignTop : kAlignVCenter);
    if (box.fitFloor > 0) {
        TextBlock block = layoutShrinking(fieldText(box), box, area, alignment, cornerOf(box), measure);
        block.clip = wholeOf(box);
        return block;
    }
    return laidOut(box, fieldText(box), area, alignment,
                   box.multiLine ? TextFlow::WordsOrAnywhere : TextFlow::OneLine, measure);
}

TextBlock captionLayout(const Control& label, TextMeasure& measure) {
    // As on any label, "&&" shows one "&" and a single "&" marks an access key.
    std::string text = withoutAccessMarks(withLineFeeds(label.caption));
    RectF area = wholeOf(label).adjusted(kPixelTwips, 0, -kPixelTwips, 0);
    std::vector<std::string> lines = linesOf(text);
    const bool indented =
        label.alignment == 0 && std::all_of(lines.cbegin(), lines.cend(), [](const std::string& line) {
            return !line.empty() && line.front() == ' ';
        });
    if (indented) {
        text.clear();
        for (std::size_t i = 0; i < lines.size(); ++i) text += (i > 0 ? "\n" : "") + lines[i].substr(1);
        area.setLeft(area.left() + measure.advance(designFace(label), " "));
    }
    return laidOut(label, text, area, kAlignTop | horizontalOf(label.alignment), TextFlow::Words, measure);
}

TextBlock checkLayout(const Control& check, TextMeasure& measure) {
    return laidOut(check, check.caption, wholeOf(check), kAlignCenter, TextFlow::OneLine, measure);
}

TextBlock frameCaptionLayout(const Control& frame, TextMeasure& measure) {
    const std::string caption = withoutAccessMarks(frame.caption);
    const TextFace face = designFace(frame);
    const RectF area{8.0 * kPixelTwips, 0, measure.advance(face, caption) + 4 * kPixelTwips,
                     measure.metrics(face).height()};
    return laidOut(frame, caption, area, kAlignCenter, TextFlow::OneLine, measure);
}

TextBlock buttonLayout(const Control& button, TextMeasure& measure) {
    const RectF area =
        wholeOf(button).adjusted(2 * kPixelTwips, 2 * kPixelTwips, -2 * kPixelTwips, -2 * kPixelTwips);
    return laidOut(button, withoutAccessMarks(withLineFeeds(button.caption)), area, kAlignCenter,
                   TextFlow::Words, measure);
}

TextBlock optionLayout(const Control& option, TextMeasure& measure) {
    // Right of the round mark: twelve pixels of mark, one before it and five after.
    const RectF area = wholeOf(option).adjusted(17 * kPixelTwips, 0, 0, 0);
    return laidOut(option, withoutAccessMarks(option.caption), area, kAlignVCenter | kAlignLeft,
                   TextFlow::Words, measure);
}

int comboArrowTwips(const Control& combo) { return std::min(17 * kPixelTwips, combo.width / 2); }

TextBlock comboLayout(const Control& combo, TextMeasure& measure) {
    std::string shown = combo.text;
    if (shown.empty() && combo.listIndex >= 0 && combo.listIndex < static_cast<int>(combo.items.size()))
        shown = combo.items[static_cast<size_t>(combo.listIndex)];
    const RectF area =
        wholeOf(combo).adjusted(3 * kPixelTwips, 0, -comboArrowTwips(combo) - 2 * kPixelTwips, 0);
    return laidOut(combo, shown, area, kAlignVCenter | kAlignLeft, TextFlow::OneLine, measure);
}

int tabStripTwips(const Control& tabs) { return tabs.items.empty() ? 0 : std::max(0, tabs.tabHeight); }

std::vector<TextBlock> tabLayouts(const Control& tabs, TextMeasure& measure) {
    std::vector<TextBlock> blocks;
    const int count = static_cast<int>(tabs.items.size());
    const int strip = tabStripTwips(tabs);
    for (int i = 0; i < count; ++i) {
        const double x0 = static_cast<double>(tabs.width) * i / count;
        const double x1 = static_cast<double>(tabs.width) * (i + 1) / count;
        const double top = i == tabs.listIndex ? 0 : 2 * kPixelTwips;
        const RectF area{x0, top, x1 - x0, std::max(0.0, strip - top)};
        TextBlock block = laidOut(tabs, withoutAccessMarks(tabs.items[static_cast<size_t>(i)]), area,
                                  kAlignCenter, TextFlow::OneLine, measure);
        block.clip = area;
        blocks.push_back(block);
    }
    return blocks;
}

double rowTwips(const Control& rows, TextMeasure& measure) {
    return measure.metrics(designFace(rows)).height() + 3 * kPixelTwips;
}

}  // namespace lw::face
