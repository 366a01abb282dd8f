#include "catalogue/field_names.h"

#include <cctype>
#include <limits>

#include "model/containers.h"
#include "text/case.h"

namespace lw {

namespace {

// How far a caption may stand from the box it names, in twips.
constexpr int kReachAbove = 1200;
constexpr int kReachBeside = 450;
constexpr int kReachForBox = 100;  // a sub-caption stands right under its box's caption

std::string flattened(const std::string& caption) {
    std::string out;
    for (char c : caption) {
        const bool blank = c == '\r' || c == '\n' || c == '|' || c == '\t' || c == ' ';
        if (blank) {
            if (!out.empty() && out.back() != ' ') out.push_back(' ');
        } else if (c != '&') {
            out.push_back(c);
        }
    }
    while (!out.empty() && out.back() == ' ') out.pop_back();
    return out;
}

// "12a." or "e" at the start of a caption: the box it names.
std::string boxOf(const std::string& caption, std::size_t& rest) {
    std::size_t i = 0;
    while (i < caption.size() && std::isdigit(static_cast<unsigned char>(caption[i]))) ++i;
    const std::size_t digits = i;
    if (digits > 2) return {};
    if (i < caption.size() && std::islower(static_cast<unsigned char>(caption[i]))) ++i;
    if (i == 0 || (digits == 0 && i != 1)) return {};
    std::string box = caption.substr(0, i);
    if (i < caption.size() && caption[i] == '.') ++i;
    if (i < caption.size() && caption[i] != ' ') return {};
    while (i < caption.size() && caption[i] == ' ') ++i;
    rest = i;
    return box;
}

// A label with words of its own, not a lone "$"; asked of every label for every field, so it reads the
// caption in place rather than flattening it.
bool isCaptionLabel(const Control& c) {
    if (c.kind != ControlKind::Label || !c.visible) return false;
    std::size_t shown = 0;
    bool loneDollar = false;
    for (char ch : c.caption) {
        if (ch == '\r' || ch == '\n' || ch == '|' || ch == '\t' || ch == ' ' || ch == '&') continue;
        loneDollar = ++shown == 1 && ch == '$';
        if (shown > 1) break;
    }
    if (shown == 0 || (shown == 1 && loneDollar)) return false;
    return !text::equalsNoCase(c.name, "labelMisc") && !text::equalsNoCase(c.name, "TaxYear");
}

// Places on the form, whatever panels or tab pages the controls lie in.
int leftOf(const Control& c) { return formLeft(c); }
int topOf(const Control& c) { return formTop(c); }

// A caption names only a field of its own page of a tab control.
bool overlapsAcross(const Control& a, const Control& b) {
    return pageOf(a) == pageOf(b) && leftOf(a) < leftOf(b) + b.width && leftOf(b) < leftOf(a) + a.width;
}

bool overlapsDown(const Control& a, const Control& b) {
    return pageOf(a) == pageOf(b) && topOf(a) < topOf(b) + b.height && topOf(b) < topOf(a) + a.height;
}

// The nearest caption above the control in its column, within `reach`; with `numbered`, one that
// names a box.
const Control* captionAbove(const Form& form, const Control& control, int reach, bool numbered) {
    const Control* best = nullptr;
    int bestGap = std::numeric_limits<int>::max();
    for (const auto& owned : form.controls()) {
        const Control& label = *owned;
        if (!isCaptionLabel(label) || !overlapsAcross(label, control)) continue;
        const int gap = topOf(control) - (topOf(label) + label.height);
        if (gap < -label.height / 2 || gap > reach || topOf(label) >= topOf(control)) continue;
        std::size_t rest = 0;
        if (numbered && boxOf(flattened(label.caption), rest).empty()) continue;
        if (gap < bestGap) {
            best = &label;
            bestGap = gap;
        }
    }
    return best;
}

// The nearest caption on the control's line, to its right for a check box, else to its left.
const Control* captionBeside(const Form& form, const Control& control, bool toTheRight,
                             int* gapFound = nullptr, int reach = kReachBeside) {
    const Control* best = nullptr;
    int bestGap = std::numeric_limits<int>::max();
    for (const auto& owned : form.controls()) {
        const Control& label = *owned;
        if (!isCaptionLabel(label) || !overlapsDown(label, control)) continue;
        const int gap = toTheRight ? leftOf(label) - (leftOf(control) + control.width)
                                   : leftOf(control) - (leftOf(label) + label.width);
        if (gap < -60 || gap > reach) continue;
        if (gap < bestGap) {
            best = &label;
            bestGap = gap;
        }
    }
    if (gapFound) *gapFound = bestGap;
    return best;
}

// The caption of a check box: the nearer of those on its line, left or right.
const Control* checkBoxCaption(const Form& form, const Control& box) {
    int leftGap = 0;
    int rightGap = 0;
    const Control* left = captionBeside(form, box, false, &leftGap);
    const Control* right = captionBeside(form, box, true, &rightGap);
    if (left && right) return leftGap < rightGap ? left : right;
    return left ? left : right;
}

// A caption that names a box to the left of another caption on its line, as "13." before "Statutory"
// and "Retirement"; the captions between may name no box.
const Control* numberedBeside(const Form& form, const Control& caption) {
    const Control* left = &caption;
    for (int hop = 0; hop < 4 && (left = captionBeside(form, *left, false)); ++hop) {
        std::size_t rest = 0;
        if (!boxOf(flattened(left->caption), rest).empty()) return left;
    }
    return nullptr;
}

// A cell of a grid far below its column's heading, as a month of the 1095-A's line 26: the caption of its
// row at the start of its line, then the heading of its column.
std::string gridCellName(const Form& form, const Control& control) {
    constexpr int kAnyDistance = std::numeric_limits<int>::max() / 2;
    const Control* column = captionAbove(form, control, kAnyDistance, false);
    const Control* row = captionBeside(form, control, false, nullptr, kAnyDistance);
    if (!column || !row) return {};
    return spokenCaption(row->caption) + ", " + spokenCaption(column->caption);
}

}  // namespace

std::string spokenCaption(const std::string& caption) {
    const std::string text = flattened(caption);
    std::size_t rest = 0;
    const std::string box = boxOf(text, rest);
    if (box.empty()) return text;
    return rest < text.size() ? "Box " + box + ", " + text.substr(rest) : "Box " + box;
}

std::string accessibleNameOf(const Form& form, const Control& control) {
    if (control.kind == ControlKind::CommandButton || control.kind == ControlKind::OptionButton) {
        const std::string own = flattened(control.caption);
        if (!own.empty()) return own;
    }
    // A check box is captioned on its line; a field by the caption of its box above.
    const bool checkBox = control.kind == ControlKind::CheckLabel;
    const Control* caption = checkBox ? checkBoxCaption(form, control) : nullptr;
    if (!caption) caption = captionAbove(form, control, kReachAbove, false);
    if (!caption) caption = captionBeside(form, control, false);
    if (caption) {
        std::string name = spokenCaption(caption->caption);
        // A caption without a box under a numbered one, as "Code" under "12a": the box comes first.
        if (name.rfind("Box ", 0) != 0) {
            const Control* box = numberedBeside(form, *caption);
            if (!box) box = captionAbove(form, *caption, kReachForBox, true);
            if (box) {
                std::size_t rest = 0;
                name = "Box " + boxOf(flattened(box->caption), rest) + ", " + name;
            }
        }
        return name;
    }
    if (!control.toolTipText.empty()) return flattened(control.toolTipText);
    return gridCellName(form, control);
}

}  // namespace lw
