#include "catalogue/field_names.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "catalogue/field_captions.h"
#include "model/containers.h"
#include "text/case.h"

namespace lw {

namespace {

using namespace captions;

// A caption above a field that also has one on its line heads the field's column only when this near.
constexpr int kColumnHeadingReach = 300;
constexpr int kSameLine = 30;  // fields of one line or one column may stand this far out of true

// A name in parts, the first of them saying the box.
struct Parts {
    const Control* box = nullptr;
    std::vector<std::string> words;
    std::string joined() const {
        std::string out;
        for (const std::string& w : words) {
            if (w.empty()) continue;
            if (!out.empty()) out += ", ";
            out += w;
        }
        return out;
    }
};

// Leader dots and the arrow that points at a field are drawn, not said; nor is a closing colon.
std::string withoutLeaders(const std::string& words) {
    std::string out;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool leader =
            words[i] == '.' && i > 0 && words[i - 1] == ' ' && (i + 1 == words.size() || words[i + 1] == ' ');
        if (!leader) out.push_back(words[i]);
    }
    std::string tidy;
    for (char c : out)
        if (c != ' ' || (!tidy.empty() && tidy.back() != ' ')) tidy.push_back(c);
    while (!tidy.empty() && (tidy.back() == ':' || tidy.back() == ' ' || tidy.back() == '>')) tidy.pop_back();
    return tidy;
}

// "Box 12b" or "Item J": the box of a numbered caption, without its words.
std::string designationOf(const Control& label) {
    std::size_t rest = 0;
    const std::string box = boxOf(label.caption, rest);
    return (std::isupper(static_cast<unsigned char>(box.front())) ? "Item " : "Box ") + box;
}

// The field's own caption, the numbered heading over it when it is a sub-caption, as "Box 12a, Code".
Parts namedByCaption(const Form& form, const Control& caption) {
    if (namesABox(caption)) return {&caption, {spokenWordsOf(caption)}};
    const Control* heading = headingOver(form, caption, true);
    if (!heading) heading = numberedBeside(form, caption);
    if (heading) return {heading, {designationOf(*heading), spokenWordsOf(caption)}};
    return {&caption, {spokenWordsOf(caption)}};
}

// A cell of a table: the caption of its row on its left, the heading of its column above.
Parts namedAsCell(const Form& form, const Control& row, const Control& column) {
    if (namesABox(row)) return {&row, {spokenWordsOf(row), spokenWordsOf(column)}};
    if (namesABox(column)) return {&column, {spokenWordsOf(column), spokenWordsOf(row)}};
    if (const Control* heading = headingOver(form, column, true))
        return {heading, {designationOf(*heading), spokenWordsOf(row), spokenWordsOf(column)}};
    return {&column, {spokenWordsOf(column), spokenWordsOf(row)}};
}

Parts baseNameOf(const Form& form, const Control& field) {
    if (!field.spokenName.empty()) return {nullptr, {field.spokenName}};
    if (field.kind == ControlKind::CommandButton || field.kind == ControlKind::OptionButton)
        return {nullptr, {flattened(field.caption)}};
    if (field.kind == ControlKind::CheckLabel) {
        const Control* caption = checkBoxCaption(form, field);
        if (!caption) caption = captionAbove(form, field);
        if (caption) return namedByCaption(form, *caption);
    } else {
        int aboveGap = 0;
        const Control* above = captionAbove(form, field, &aboveGap);
        const Control* beside = captionBeside(form, field, Beside{});
        if (above && beside && aboveGap <= kColumnHeadingReach && headsColumnOf(*above, field))
            return namedAsCell(form, *beside, *above);
        if (beside) return namedByCaption(form, *beside);
        if (above) return namedByCaption(form, *above);
    }
    if (!field.toolTipText.empty()) return {nullptr, {flattened(field.toolTipText)}};
    // A cell of a long table, far from its row's caption and its column's heading.
    const Control* row = rowCaptionOf(form, field);
    const Control* column = captionAbove(form, field);
    if (row && column) return namedAsCell(form, *row, *column);
    return {};
}

// Ranks of places along one axis: places within kSameLine of each other share a rank, from 1.
std::map<const Control*, int> ranksOf(const std::vector<const Control*>& fields,
                                      const std::function<int(const Control&)>& place) {
    std::vector<int> places;
    for (const Control* f : fields) places.push_back(place(*f));
    std::sort(places.begin(), places.end());
    std::vector<int> distinct;
    for (int p : places)
        if (distinct.empty() || p - distinct.back() > kSameLine) distinct.push_back(p);
    std::map<const Control*, int> ranks;
    for (const Control* f : fields) {
        const int p = place(*f);
        int rank = 0;
        while (rank + 1 < static_cast<int>(distinct.size()) && p - distinct[rank + 1] >= -kSameLine) ++rank;
        ranks[f] = rank + 1;
    }
    return ranks;
}

// What a column of amounts, codes or dates holds, from the kind of field it is.
std::string columnNoun(const Control& field) {
    std::string tag = text::toUpper(field.tag);
    if (!tag.empty() && (tag.front() == '-' || tag.front() == '+')) tag.erase(0, 1);
    if (tag == "MONEY" || tag == "SMONEY") return "amount";
    if (tag == "K1" || tag == "K1HELP") return "code";
    if (tag == "DATE") return "date";
    if (tag == "%") return "percent";
    return {};
}

using Names = std::map<const Control*, Parts>;
using Step = std::function<void(const Form&, const std::vector<const Control*>&, Names&)>;

// The frames whose captions tell fields of one name apart, as "Taxpayer 2 Information, SS/ITIN No.":
// they then come before the name of every field inside them, so that the fields of a frame sound alike.
std::set<const Control*> framesTellingApart(const Form& form, const std::vector<const Control*>& same) {
    std::set<const Control*> frames;
    for (const Control* f : same) frames.insert(groupAround(form, *f, true));
    if (frames.size() < 2) return {};
    frames.erase(nullptr);
    return frames;
}

void sayFrames(const Form& form, const std::set<const Control*>& frames, Names& names) {
    for (auto& [field, parts] : names) {
        const Control* frame = groupAround(form, *field, true);
        if (!frame || !frames.count(frame) || !frame->spokenName.empty()) continue;
        parts.words.insert(parts.words.begin(), spokenWordsOf(*frame));
        if (!parts.box) parts.box = frame;
    }
}

// The titles of the parts of a form that repeats a statement, as the two of the railroad form: the
// nearest title above each field, set large.
const Control* titleAbove(const Form& form, const Control& field) {
    constexpr double kTitleSize = 10;
    const Control* best = nullptr;
    for (const auto& owned : form.controls()) {
        const Control& label = *owned;
        if (!isCaptionLabel(label) || label.fontSize < kTitleSize || pageOf(label) != pageOf(field)) continue;
        if (topOf(label) + label.height > topOf(field)) continue;
        if (!best || topOf(label) > topOf(*best)) best = &label;
    }
    return best;
}

void bySection(const Form& form, const std::vector<const Control*>& same, Names& names) {
    std::set<const Control*> titles;
    for (const Control* f : same) titles.insert(titleAbove(form, *f));
    if (titles.size() < 2 || titles.count(nullptr)) return;
    for (const Control* f : same)
        names[f].words.insert(names[f].words.begin(), spokenWordsOf(*titleAbove(form, *f)));
}

// The captions of their rows, far to the left on their lines: "Box 16, A. Covered individual name".
void byRowCaption(const Form& form, const std::vector<const Control*>& same, Names& names) {
    std::map<const Control*, const Control*> rows;
    std::set<const Control*> distinct;
    for (const Control* f : same) {
        const Control* row = rowCaptionOf(form, *f);
        if (!row || row == names[f].box) continue;
        rows[f] = row;
        distinct.insert(row);
    }
    if (distinct.size() < 2) return;
    for (const auto& [f, row] : rows) {
        Parts& parts = names[f];
        if (namesABox(*row) && !(parts.box && namesABox(*parts.box))) {
            parts.words.insert(parts.words.begin(), spokenWordsOf(*row));
            parts.box = row;
        } else {
            parts.words.insert(parts.words.begin() + (parts.words.empty() ? 0 : 1), spokenWordsOf(*row));
        }
    }
}

void byLine(const Form&, const std::vector<const Control*>& same, Names& names) {
    const auto ranks = ranksOf(same, [](const Control& c) { return topOf(c) + c.height / 2; });
    std::set<int> lines;
    for (const auto& [f, rank] : ranks) lines.insert(rank);
    if (lines.size() < 2) return;
    for (const auto& [f, rank] : ranks) names[f].words.push_back("line " + std::to_string(rank));
}

// Columns tell apart by what they hold ("amount", "code"), else by their order.
void byColumn(const Form&, const std::vector<const Control*>& same, Names& names) {
    const auto ranks = ranksOf(same, [](const Control& c) { return leftOf(c); });
    std::set<int> columns;
    std::set<std::string> nouns;
    std::map<int, std::set<std::string>> nounsOfColumn;
    for (const auto& [f, rank] : ranks) {
        columns.insert(rank);
        nounsOfColumn[rank].insert(columnNoun(*f));
    }
    if (columns.size() < 2) return;
    bool nounsTellApart = true;
    for (const auto& [rank, held] : nounsOfColumn) {
        if (held.size() != 1 || !nouns.insert(*held.begin()).second) nounsTellApart = false;
    }
    for (const auto& [f, rank] : ranks) {
        const std::string noun = columnNoun(*f);
        if (nounsTellApart && !noun.empty())
            names[f].words.push_back(noun);
        else if (!nounsTellApart)
            names[f].words.push_back("column " + std::to_string(rank));
    }
}

// A box whose caption is its number alone, as "12b.", and that holds more than one field: its amount is
// said to be one, as "Box 12b, amount" beside "Box 12b, Code".
void sayWhatBareBoxesHold(Names& names) {
    std::map<const Control*, int> fieldsOfBox;
    for (const auto& [field, parts] : names)
        if (parts.box) ++fieldsOfBox[parts.box];
    for (auto& [field, parts] : names) {
        const bool bare = parts.box && parts.words.size() == 1 && namesABox(*parts.box) &&
                          parts.words.front() == designationOf(*parts.box);
        const std::string noun = columnNoun(*field);
        if (bare && !noun.empty() && fieldsOfBox[parts.box] > 1) parts.words.push_back(noun);
    }
}

// Fields of the same name, in the order of the form.
std::vector<std::vector<const Control*>> namesakes(const Form& form, const Names& names) {
    std::map<std::string, std::vector<const Control*>> byName;
    for (const auto& owned : form.controls())
        if (auto found = names.find(owned.get()); found != names.end())
            byName[found->second.joined()].push_back(owned.get());
    std::vector<std::vector<const Control*>> groups;
    for (auto& [name, fields] : byName)
        if (fields.size() > 1 && !name.empty()) groups.push_back(std::move(fields));
    return groups;
}

}  // namespace

bool isNamedField(const Control& c) {
    if (c.wordsOnly) return false;
    switch (c.kind) {
        case ControlKind::TextBox:
        case ControlKind::CheckLabel:
        case ControlKind::ComboBox:
        case ControlKind::OptionButton:
        case ControlKind::CommandButton:
            return true;
        default:
            return false;
    }
}

std::string spokenCaption(const std::string& caption) {
    const std::string text = flattened(caption);
    std::size_t rest = 0;
    const std::string box = boxOf(caption, rest);
    if (box.empty()) return text;
    const std::string kind = std::isupper(static_cast<unsigned char>(box.front())) ? "Item " : "Box ";
    return rest < text.size() ? kind + box + ", " + text.substr(rest) : kind + box;
}

std::string spokenWordsOf(const Control& box) {
    if (!box.spokenName.empty()) return box.spokenName;
    return withoutLeaders(spokenCaption(box.caption));
}

std::map<const Control*, FieldName> fieldNamesOf(const Form& form) {
    Names names;
    for (const auto& owned : form.controls()) {
        const Control& field = *owned;
        if (!isNamedField(field)) continue;
        Parts parts = baseNameOf(form, field);
        // A frame or panel with words of its own says them before every field inside it.
        if (const Control* group = groupAround(form, field, false); group && !group->spokenName.empty()) {
            parts.words.insert(parts.words.begin(), group->spokenName);
            if (!parts.box) parts.box = group;
        }
        names[&field] = std::move(parts);
    }
    std::set<const Control*> frames;
    for (const auto& same : namesakes(form, names)) frames.merge(framesTellingApart(form, same));
    sayFrames(form, frames, names);
    for (const Step& step : {Step(bySection), Step(byRowCaption), Step(byLine), Step(byColumn)})
        for (const auto& same : namesakes(form, names)) step(form, same, names);
    sayWhatBareBoxesHold(names);
    std::map<const Control*, FieldName> out;
    for (const auto& [field, parts] : names) out[field] = FieldName{parts.joined(), parts.box};
    return out;
}

std::string accessibleNameOf(const Form& form, const Control& control) {
    const auto names = fieldNamesOf(form);
    const auto found = names.find(&control);
    return found == names.end() ? std::string() : found->second.text;
}

}  // namespace lw
