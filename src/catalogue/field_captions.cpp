#include "catalogue/field_captions.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <limits>

#include "model/containers.h"
#include "text/case.h"

namespace lw::captions {

namespace {

constexpr int kReachAbove = 1200;   // how far a caption may stand above the field it names
constexpr int kReachForBox = 100;   // a sub-caption stands right under its box's caption
constexpr int kStackedReach = 600;  // rows of one table column stand this close
constexpr int kSameColumn = 30;     // fields of one column share their left edge and width
constexpr int kNoGap = std::numeric_limits<int>::max();

bool isBlank(char c) { return c == '\r' || c == '\n' || c == '|' || c == '\t' || c == ' '; }

bool hasWords(const std::string& caption) {
    for (char ch : caption)
        if (std::isalnum(static_cast<unsigned char>(ch))) return true;
    return false;
}

bool isField(const Control& c) {
    return c.kind == ControlKind::TextBox || c.kind == ControlKind::ComboBox ||
           c.kind == ControlKind::CheckLabel;
}

// A caption names only a field of its own panel, on its own page of a tab control.
// A check box tucked into the corner of its caption counts as under it.
bool overlapsAcross(const Control& a, const Control& b) {
    const int touch = a.kind == ControlKind::CheckLabel || b.kind == ControlKind::CheckLabel ? 1 : 0;
    return a.container == b.container && pageOf(a) == pageOf(b) && leftOf(a) < leftOf(b) + b.width + touch &&
           leftOf(b) < leftOf(a) + a.width + touch;
}

// A caption on the line of a control: its middle stands level with a field's first line of text; a
// check box needs only to stand beside some part of it.
bool onTheLineOf(const Control& label, const Control& control) {
    constexpr int kFirstLine = 400;
    if (label.container != control.container || pageOf(label) != pageOf(control)) return false;
    if (control.kind == ControlKind::CheckLabel)
        return topOf(label) < topOf(control) + control.height && topOf(control) < topOf(label) + label.height;
    const int middle = topOf(label) + label.height / 2;
    return middle >= topOf(control) && middle <= topOf(control) + std::min(control.height, kFirstLine);
}

// A rule drawn across the page between a caption and what stands below it: they lie in different boxes.
bool ruledOff(const Form& form, const Control& upper, const Control& lower) {
    for (const auto& owned : form.controls()) {
        const Control& line = *owned;
        if (line.kind != ControlKind::Line || line.top != line.y2 || pageOf(line) != pageOf(lower)) continue;
        const int y = originTop(line) + line.top;
        const int from = originLeft(line) + std::min(line.left, line.x2);
        const int to = originLeft(line) + std::max(line.left, line.x2);
        if (y > topOf(upper) + upper.height / 2 && y <= topOf(lower) && from < leftOf(lower) + lower.width &&
            leftOf(lower) < to)
            return true;
    }
    return false;
}

// A rule drawn down the page between a caption and a control on its line: they lie in different boxes.
bool ruledApartAcross(const Form& form, const Control& label, const Control& control) {
    const bool labelFirst = leftOf(label) < leftOf(control);
    const Control& first = labelFirst ? label : control;
    const Control& second = labelFirst ? control : label;
    const int middle = topOf(control) + control.height / 2;
    for (const auto& owned : form.controls()) {
        const Control& line = *owned;
        if (line.kind != ControlKind::Line || line.left != line.x2 || pageOf(line) != pageOf(control))
            continue;
        const int x = originLeft(line) + line.left;
        const int from = originTop(line) + std::min(line.top, line.y2);
        const int to = originTop(line) + std::max(line.top, line.y2);
        if (x >= leftOf(first) + first.width - 15 && x <= leftOf(second) + 15 && from <= middle &&
            middle <= to)
            return true;
    }
    return false;
}

// A field stands within the width of the heading of its table column.
bool withinWidthOf(const Control& field, const Control& heading) {
    constexpr int kSlack = 60;
    return leftOf(field) >= leftOf(heading) - kSlack &&
           leftOf(field) + field.width <= leftOf(heading) + heading.width + kSlack;
}

// The nearest caption above the control in its column, within `reach`. Across a rule, only the heading
// of a table column names what stands below it; a heading of a box never names a caption of another.
enum class Across { ColumnHeadings, Never };

const Control* nearestAbove(const Form& form, const Control& control, int reach, bool numberedOnly,
                            int* gapFound, Across across = Across::ColumnHeadings) {
    const Control* best = nullptr;
    int bestGap = kNoGap;
    for (const auto& owned : form.controls()) {
        const Control& label = *owned;
        if (&label == &control || !isCaptionLabel(label) || !overlapsAcross(label, control)) continue;
        const int gap = topOf(control) - (topOf(label) + label.height);
        if (gap < -label.height / 2 || gap > reach || topOf(label) >= topOf(control)) continue;
        if (numberedOnly && !namesABox(label)) continue;
        if (gap >= bestGap) continue;
        if (ruledOff(form, label, control) && (across == Across::Never || !withinWidthOf(control, label)))
            continue;
        {
            best = &label;
            bestGap = gap;
        }
    }
    if (gapFound) *gapFound = bestGap;
    return best;
}

// The field of the same column right above this one, with no caption between them.
const Control* fieldRightAbove(const Form& form, const Control& field) {
    const Control* best = nullptr;
    int bestGap = kNoGap;
    for (const auto& owned : form.controls()) {
        const Control& other = *owned;
        if (&other == &field || !isField(other) || pageOf(other) != pageOf(field)) continue;
        if (std::abs(leftOf(other) - leftOf(field)) > kSameColumn ||
            std::abs(other.width - field.width) > kSameColumn)
            continue;
        const int gap = topOf(field) - (topOf(other) + other.height);
        if (gap < 0 || gap > kStackedReach || gap >= bestGap) continue;
        best = &other;
        bestGap = gap;
    }
    if (!best) return nullptr;
    int captionGap = kNoGap;
    nearestAbove(form, field, bestGap, false, &captionGap);
    return captionGap <= bestGap ? nullptr : best;
}

// A caption with a field of its own right under it.
bool headsFieldBelow(const Form& form, const Control& label) {
    constexpr int kUnder = 300;
    for (const auto& owned : form.controls()) {
        const Control& field = *owned;
        const bool entry = field.kind == ControlKind::TextBox || field.kind == ControlKind::ComboBox;
        if (!entry || !overlapsAcross(label, field)) continue;
        const int gap = topOf(field) - (topOf(label) + label.height);
        if (gap >= -label.height / 2 && gap <= kUnder && topOf(field) > topOf(label) &&
            !ruledOff(form, label, field))
            return true;
    }
    return false;
}

}  // namespace

std::string flattened(const std::string& caption) {
    std::string out;
    bool doubled = false;
    for (char c : caption) {
        if (isBlank(c)) {
            if (!out.empty() && out.back() != ' ') out.push_back(' ');
        } else if (c != '&' || doubled) {
            out.push_back(c);
            doubled = false;
        } else {
            doubled = true;  // "&&" shows one "&"; a single one marks the access key
        }
    }
    while (!out.empty() && out.back() == ' ') out.pop_back();
    return out;
}

std::string boxOf(const std::string& rawCaption, std::size_t& rest) {
    const std::string caption = flattened(rawCaption);
    // "Box 1. Name" says its box in words.
    const std::size_t start = text::startsWithNoCase(caption, "box ") && caption.size() > 4 &&
                                      std::isdigit(static_cast<unsigned char>(caption[4]))
                                  ? 4
                                  : 0;
    std::size_t i = start;
    while (i < caption.size() && std::isdigit(static_cast<unsigned char>(caption[i]))) ++i;
    const std::size_t digits = i - start;
    if (digits > 2) return {};
    if (digits == 0 && i < caption.size() && std::isupper(static_cast<unsigned char>(caption[i]))) {
        // An item of a K-1: a capital, perhaps a digit, then two blanks before its words.
        std::size_t end = 1;
        if (end < rawCaption.size() && std::isdigit(static_cast<unsigned char>(rawCaption[end]))) ++end;
        if (rawCaption.compare(0, end, caption, 0, end) != 0 || rawCaption.compare(end, 2, "  ") != 0)
            return {};
        rest = end + 1;
        return caption.substr(0, end);
    }
    if (i < caption.size() && std::islower(static_cast<unsigned char>(caption[i]))) ++i;
    if (i == start || (digits == 0 && i != start + 1) || (start > 0 && digits == 0)) return {};
    std::string box = caption.substr(start, i - start);
    if (i < caption.size() && caption[i] == '.') ++i;
    if (i < caption.size() && caption[i] != ' ') return {};
    while (i < caption.size() && caption[i] == ' ') ++i;
    rest = i;
    return box;
}

bool namesABox(const Control& label) {
    std::size_t rest = 0;
    return !boxOf(label.caption, rest).empty();
}

// Asked of every label for every field, so it reads the caption in place rather than flattening it.
bool isCaptionLabel(const Control& c) {
    if (c.kind != ControlKind::Label || !c.visible) return false;
    return hasWords(c.caption) && !text::equalsNoCase(c.name, "labelMisc") &&
           !text::equalsNoCase(c.name, "TaxYear");
}

int leftOf(const Control& c) { return formLeft(c); }
int topOf(const Control& c) { return formTop(c); }

const Control* captionAbove(const Form& form, const Control& field, int* gap) {
    const Control* top = &field;
    for (int hop = 0; hop < 64; ++hop) {
        const Control* above = fieldRightAbove(form, *top);
        if (!above) break;
        top = above;
    }
    return nearestAbove(form, *top, kReachAbove, false, gap);
}

const Control* headingOver(const Form& form, const Control& caption, bool numberedOnly) {
    return nearestAbove(form, caption, kReachForBox, numberedOnly, nullptr, Across::Never);
}

const Control* captionBeside(const Form& form, const Control& control, const Beside& how, int* gapFound) {
    const Control* best = nullptr;
    int bestGap = kNoGap;
    for (const auto& owned : form.controls()) {
        const Control& label = *owned;
        if (&label == &control || !isCaptionLabel(label) || !onTheLineOf(label, control)) continue;
        const int gap = how.toTheRight ? leftOf(label) - (leftOf(control) + control.width)
                                       : leftOf(control) - (leftOf(label) + label.width);
        // A caption may run a little into its field where the drawing is tight.
        if (gap < -120 || gap > how.reach || gap >= bestGap) continue;
        // The caption over a box's own fields is no caption of a field beside it in the next box.
        // A caption this close names its field whatever stands below it, unless a rule may part them.
        constexpr int kRightBeside = 150;
        const bool close = gap <= kRightBeside && !how.acrossRules;
        if (!how.headingsToo && !close && headsFieldBelow(form, label)) continue;
        if (!how.acrossRules && ruledApartAcross(form, label, control)) continue;
        best = &label;
        bestGap = gap;
    }
    if (gapFound) *gapFound = bestGap;
    return best;
}

const Control* checkBoxCaption(const Form& form, const Control& box) {
    int leftGap = 0;
    int rightGap = 0;
    const Control* left = captionBeside(form, box, Beside{false, 450, true}, &leftGap);
    const Control* right = captionBeside(form, box, Beside{true, 450, true}, &rightGap);
    // Words set flush right lead to the box after them.
    if (left && right && left->alignment == static_cast<int>(Alignment::Right)) return left;
    if (left && right) return leftGap < rightGap ? left : right;
    return left ? left : right;
}

const Control* numberedBeside(const Form& form, const Control& caption) {
    const Beside how{false, 600, true, true};
    const Control* left = &caption;
    for (int hop = 0; hop < 4 && (left = captionBeside(form, *left, how)); ++hop)
        if (namesABox(*left)) return left;
    return nullptr;
}

const Control* rowCaptionOf(const Form& form, const Control& field) {
    constexpr int kReachBeside = 450;
    constexpr int kCellsApart = 900;  // the cells of a row of months stand this far apart
    const Control* at = &field;
    for (int hop = 0; hop < 64; ++hop) {
        // A table keeps its rows' captions in a column of their own, ruled off from the cells.
        if (const Control* caption = captionBeside(form, *at, Beside{false, kReachBeside, false, true}))
            return caption;
        const Control* next = nullptr;
        int nextGap = kNoGap;
        for (const auto& owned : form.controls()) {
            const Control& other = *owned;
            if (&other == at || !isField(other) || other.container != at->container ||
                pageOf(other) != pageOf(*at))
                continue;
            const int middles = (topOf(other) + other.height / 2) - (topOf(*at) + at->height / 2);
            if (std::abs(middles) > kSameColumn) continue;
            const int gap = leftOf(*at) - (leftOf(other) + other.width);
            if (gap < 0 || gap > kCellsApart || gap >= nextGap) continue;
            next = &other;
            nextGap = gap;
        }
        if (!next) return nullptr;
        at = next;
    }
    return nullptr;
}

bool headsColumnOf(const Control& heading, const Control& field) { return withinWidthOf(field, heading); }

const Control* groupAround(const Form& form, const Control& control, bool captioned) {
    const Control* best = nullptr;
    long long bestArea = std::numeric_limits<long long>::max();
    for (const auto& owned : form.controls()) {
        const Control& group = *owned;
        const bool holder = group.kind == ControlKind::Frame || group.kind == ControlKind::Picture ||
                            group.kind == ControlKind::Shape;
        if (!holder || &group == &control || pageOf(group) != pageOf(control)) continue;
        const bool speaks = !group.spokenName.empty() ||
                            (captioned && group.kind == ControlKind::Frame && hasWords(group.caption));
        if (!speaks) continue;
        const bool inside = leftOf(control) >= leftOf(group) && topOf(control) >= topOf(group) &&
                            leftOf(control) + control.width <= leftOf(group) + group.width &&
                            topOf(control) + control.height <= topOf(group) + group.height;
        const long long area = static_cast<long long>(group.width) * group.height;
        if (inside && area < bestArea) {
            best = &group;
            bestArea = area;
        }
    }
    return best;
}

}  // namespace lw::captions
