#include "face/control_texts.h"

#include <algorithm>

#include "model/containers.h"

namespace lw::face {

namespace {

unsigned horizontalOf(int alignment) {
    switch (alignment) {
        case 1:
            return kAlignRight;
        case 2:
            return kAlignHCenter;
        default:
            return kAlignLeft;
    }
}

Point cornerOf(const Control& c) { return {double(formLeft(c)), double(formTop(c))}; }

ExactRect wholeOf(const Control& c) { return {0, 0, double(c.width), double(c.height)}; }

ExactRect inset(const ExactRect& r, double left, double top, double right, double bottom) {
    return {r.x + left, r.y + top, r.width - left - right, r.height - top - bottom};
}

TextBlock laidOut(const FaceMetrics& metrics, const Control& c, const std::string& text,
                  const ExactRect& area, unsigned alignment, TextFlow flow) {
    TextBlock block = layoutText(metrics, text, faceOf(c), area, alignment, flow, cornerOf(c));
    block.clip = wholeOf(c);
    return block;
}

std::string fieldText(const Control& c) {
    if (c.multiLine) return withLineFeeds(c.text);
    return c.text.substr(0, c.text.find_first_of("\r\n"));
}

bool breaksLines(const Control& box) { return box.multiLine || box.fitFloor > 0; }

// The area a text box writes in, twips from its corner: inside its border, with the small margins of
// an edit control.
ExactRect fieldArea(const Control& box) {
    ExactRect inner = wholeOf(box);
    if (box.borderStyle != 0) inner = inset(inner, kPixelTwips, kPixelTwips, kPixelTwips, kPixelTwips);
    return inset(inner, 2 * kPixelTwips, breaksLines(box) ? kPixelTwips : 0, 2 * kPixelTwips, 0);
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t from = 0;
    while (true) {
        const std::size_t feed = text.find('\n', from);
        lines.push_back(text.substr(from, feed - from));
        if (feed == std::string::npos) return lines;
        from = feed + 1;
    }
}

}  // namespace

std::string withLineFeeds(const std::string& text) {
    std::string shown;
    shown.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r') {
            shown += text[i];
            continue;
        }
        shown += '\n';
        if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
    }
    return shown;
}

std::string withoutAccessMarks(const std::string& caption) {
    std::string shown;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&') {
            if (i + 1 < caption.size() && caption[i + 1] == '&') {
                shown += '&';
                ++i;
            }
            continue;
        }
        shown += caption[i];
    }
    return shown;
}

FaceSize faceOf(const Control& control) {
    return {{control.fontName, control.fontBold, control.fontItalic}, control.fontSize};
}

TextBlock fieldLayout(const FaceMetrics& metrics, const Control& box) {
    const ExactRect area = fieldArea(box);
    const unsigned alignment = horizontalOf(box.alignment) | (breaksLines(box) ? kAlignTop : kAlignVCenter);
    if (box.fitFloor > 0) {
        TextBlock block = layoutShrinking(metrics, fieldText(box), box, area, alignment, cornerOf(box));
        block.clip = wholeOf(box);
        return block;
    }
    return laidOut(metrics, box, fieldText(box), area, alignment,
                   box.multiLine ? TextFlow::WordsOrAnywhere : TextFlow::OneLine);
}

TextBlock captionLayout(const FaceMetrics& metrics, const Control& label) {
    // As on any label, "&&" shows one "&" and a single "&" marks an access key.
    std::string text = withoutAccessMarks(withLineFeeds(label.caption));
    ExactRect area = inset(wholeOf(label), kPixelTwips, 0, kPixelTwips, 0);
    std::vector<std::string> lines = linesOf(text);
    const bool indented = label.alignment == 0 &&
                          std::all_of(lines.cbegin(), lines.cend(),
                                      [](const auto& line) { return !line.empty() && line.front() == ' '; });
    if (indented) {
        text.clear();
        for (std::size_t i = 0; i < lines.size(); ++i) text += (i ? "\n" : "") + lines[i].substr(1);
        const double blank = advanceOf(metrics, faceOf(label), " ");
        area = inset(area, blank, 0, 0, 0);
    }
    return laidOut(metrics, label, text, area, kAlignTop | horizontalOf(label.alignment), TextFlow::Words);
}

TextBlock checkLayout(const FaceMetrics& metrics, const Control& check) {
    return laidOut(metrics, check, check.caption, wholeOf(check), kAlignCenter, TextFlow::OneLine);
}

TextBlock frameCaptionLayout(const FaceMetrics& metrics, const Control& frame) {
    const std::string caption = withoutAccessMarks(frame.caption);
    const FaceSize face = faceOf(frame);
    const ExactRect area{8 * kPixelTwips, 0, advanceOf(metrics, face, caption) + 4 * kPixelTwips,
                         lineHeightOf(metrics, face)};
    return laidOut(metrics, frame, caption, area, kAlignCenter, TextFlow::OneLine);
}

TextBlock buttonLayout(const FaceMetrics& metrics, const Control& button) {
    const ExactRect area =
        inset(wholeOf(button), 2 * kPixelTwips, 2 * kPixelTwips, 2 * kPixelTwips, 2 * kPixelTwips);
    return laidOut(metrics, button, withoutAccessMarks(withLineFeeds(button.caption)), area, kAlignCenter,
                   TextFlow::Words);
}

TextBlock optionLayout(const FaceMetrics& metrics, const Control& option) {
    // Right of the round mark: twelve pixels of mark, one before it and five after.
    const ExactRect area = inset(wholeOf(option), 17 * kPixelTwips, 0, 0, 0);
    return laidOut(metrics, option, withoutAccessMarks(option.caption), area, kAlignVCenter | kAlignLeft,
                   TextFlow::Words);
}

int comboArrowTwips(const Control& combo) { return std::min(17 * kPixelTwips, combo.width / 2); }

TextBlock comboLayout(const FaceMetrics& metrics, const Control& combo) {
    std::string shown = combo.text;
    if (shown.empty() && combo.listIndex >= 0 && combo.listIndex < static_cast<int>(combo.items.size()))
        shown = combo.items[static_cast<size_t>(combo.listIndex)];
    const ExactRect area =
        inset(wholeOf(combo), 3 * kPixelTwips, 0, comboArrowTwips(combo) + 2 * kPixelTwips, 0);
    return laidOut(metrics, combo, shown, area, kAlignVCenter | kAlignLeft, TextFlow::OneLine);
}

int tabStripTwips(const Control& tabs) { return tabs.items.empty() ? 0 : std::max(0, tabs.tabHeight); }

std::vector<TextBlock> tabLayouts(const FaceMetrics& metrics, const Control& tabs) {
    std::vector<TextBlock> blocks;
    const int count = static_cast<int>(tabs.items.size());
    const int strip = tabStripTwips(tabs);
    for (int i = 0; i < count; ++i) {
        const double x0 = static_cast<double>(tabs.width) * i / count;
        const double x1 = static_cast<double>(tabs.width) * (i + 1) / count;
        const double top = i == tabs.listIndex ? 0 : 2 * kPixelTwips;
        const ExactRect area{x0, top, x1 - x0, std::max(0.0, strip - top)};
        TextBlock block = laidOut(metrics, tabs, withoutAccessMarks(tabs.items[static_cast<size_t>(i)]), area,
                                  kAlignCenter, TextFlow::OneLine);
        block.clip = area;
        blocks.push_back(block);
    }
    return blocks;
}

double rowTwips(const FaceMetrics& metrics, const Control& rows) {
    return lineHeightOf(metrics, faceOf(rows)) + 3 * kPixelTwips;
}

}  // namespace lw::face
