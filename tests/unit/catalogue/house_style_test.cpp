// The information returns are drawn in one style, as the paper forms are: a heavy rule across the top and
// the foot of the box grid and thin rules everywhere else; the title flush right in bold in the top right
// box; "Copy B" in bold above the copy's notice, flush right under it. And in every drawing the fields of
// one box start at the same place, whatever they hold.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "catalogue/definitions.h"
#include "model/form.h"

namespace lw {
namespace {

struct Drawn {
    explicit Drawn(const char* name) : form(name) { realizeDefinition(*findDefinition(name), form); }
    Form form;
};

bool isRule(const Control& c) { return c.kind == ControlKind::Line && c.borderStyle != 0; }
bool isLevel(const Control& c) { return c.top == c.y2; }
bool isUpright(const Control& c) { return c.left == c.x2; }

// The information returns are the drawings whose title is a long text of the catalogue.
bool isInformationReturn(const Form& form) {
    const Control* title = form.find("RTL2");
    return title && title->kind == ControlKind::Label;
}

TEST(HouseStyle, HeavyRulesOnlyCrossTheTopAndTheFootOfTheGrid) {
    int forms = 0;
    for (const EmbeddedDefinition& embedded : embeddedDefinitions()) {
        Drawn drawn(embedded.formName);
        if (!isInformationReturn(drawn.form)) continue;
        ++forms;
        std::set<int> heavy;
        for (const auto& owned : drawn.form.controls()) {
            const Control& c = *owned;
            if (!isRule(c) || c.borderWidth < 2) continue;
            EXPECT_TRUE(isLevel(c)) << embedded.formName << ": the upright rule " << c.key() << " is heavy";
            heavy.insert(c.top);
        }
        ASSERT_EQ(heavy.size(), 2u) << embedded.formName << ": heavy rules at more than the top and the foot";
        for (const auto& owned : drawn.form.controls()) {
            const Control& c = *owned;
            if (!isRule(c) || !isLevel(c) || c.borderWidth >= 2) continue;
            EXPECT_TRUE(c.top > *heavy.begin() && c.top < *heavy.rbegin())
                << embedded.formName << ": the thin rule " << c.key() << " lies outside the grid";
        }
    }
    EXPECT_GT(forms, 15);
}

TEST(HouseStyle, TheTitleAndTheCopyStandFlushRightInTheTopRightBox) {
    const Control* first = nullptr;
    const Control* firstCopy = nullptr;
    std::vector<std::unique_ptr<Drawn>> all;
    for (const EmbeddedDefinition& embedded : embeddedDefinitions()) {
        all.push_back(std::make_unique<Drawn>(embedded.formName));
        const Form& form = all.back()->form;
        if (!isInformationReturn(form)) continue;
        const Control& title = form.at("RTL2");
        const Control& notice = form.at("RTL3");
        const Control* copy = nullptr;
        for (const auto& owned : form.controls())
            if (owned->kind == ControlKind::Label && owned->caption == "Copy B") copy = owned.get();
        ASSERT_NE(copy, nullptr) << embedded.formName << ": no \"Copy B\"";
        if (!first) first = &title, firstCopy = copy;
        for (const Control* c : {&title, copy, &notice})
            EXPECT_EQ(c->alignment, 1) << embedded.formName << ": " << c->key() << " is not flush right";
        EXPECT_TRUE(title.fontBold) << embedded.formName;
        EXPECT_TRUE(copy->fontBold) << embedded.formName;
        EXPECT_EQ(title.fontSize, first->fontSize) << embedded.formName << ": the title's size";
        EXPECT_EQ(copy->fontSize, firstCopy->fontSize) << embedded.formName << ": the size of \"Copy B\"";
        // The title's box is the top right one: nothing of the grid stands right of it, and the copy
        // stands under it, flush with it.
        EXPECT_LT(title.top, copy->top) << embedded.formName;
        EXPECT_LT(copy->top, notice.top) << embedded.formName;
        EXPECT_EQ(title.left + title.width, copy->left + copy->width) << embedded.formName;
        EXPECT_EQ(title.left + title.width, notice.left + notice.width) << embedded.formName;
        for (const auto& owned : form.controls()) {
            const Control& c = *owned;
            if (!isRule(c) || !isUpright(c)) continue;
            const bool beside =
                std::min(c.top, c.y2) < title.top + title.height && std::max(c.top, c.y2) > title.top;
            EXPECT_FALSE(beside && c.left > title.left + title.width)
                << embedded.formName << ": the rule " << c.key() << " stands right of the title";
        }
    }
    EXPECT_NE(first, nullptr);
}

// The upright rule nearest to the left of a field's middle, and the one nearest to its right.
std::pair<int, int> boxAround(const Form& form, const Control& field) {
    const int middle = field.top + field.height / 2;
    int left = -1;
    int right = -1;
    for (const auto& owned : form.controls()) {
        const Control& c = *owned;
        if (!isRule(c) || !isUpright(c) || c.container || middle < std::min(c.top, c.y2) ||
            middle > std::max(c.top, c.y2))
            continue;
        if (c.left <= field.left && c.left > left) left = c.left;
        if (c.left >= field.left + field.width && (right < 0 || c.left < right)) right = c.left;
    }
    return {left, right};
}

TEST(HouseStyle, TheFieldsOfOneBoxStartAtOnePlace) {
    for (const EmbeddedDefinition& embedded : embeddedDefinitions()) {
        Drawn drawn(embedded.formName);
        const Form& form = drawn.form;
        std::vector<const Control*> fields;
        for (const auto& owned : form.controls()) {
            const Control& c = *owned;
            // A field whose box prints a sign beside it leaves room for the sign.
            if (c.isTextBox() && !c.container && c.visible && c.tag != "SMONEY") fields.push_back(&c);
        }
        for (const Control* a : fields) {
            const auto box = boxAround(form, *a);
            if (box.first < 0 || box.second < 0) continue;
            for (const Control* b : fields) {
                if (b == a || boxAround(form, *b) != box) continue;
                // Fields side by side in a box start where they must; those under one another line up.
                if (b->top + b->height <= a->top || a->top + a->height <= b->top) {
                    if (a->left - box.first < 300 && b->left - box.first < 300)
                        EXPECT_EQ(a->left, b->left) << embedded.formName << ": " << a->key() << " (" << a->tag
                                                    << ") and " << b->key() << " (" << b->tag << ")";
                }
            }
        }
    }
}

}  // namespace
}  // namespace lw
