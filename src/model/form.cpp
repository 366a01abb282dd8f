#include "model/form.h"

#include <algorithm>

#include "model/app_error.h"
#include "model/desktop.h"
#include "text/case.h"

namespace lw {

Form::Form(std::string name) : name_(std::move(name)) {}
Form::~Form() = default;

Control& Form::add(ControlKind kind, const std::string& name, int index) {
    auto control = std::make_unique<Control>();
    control->kind = kind;
    control->name = name;
    control->index = index;
    control->form = this;
    control->tabIndex = static_cast<int>(controls_.size());
    controls_.push_back(std::move(control));
    return *controls_.back();
}

namespace {

// Whether the tab indexes run 0 to n-1 without a gap or a double, as every setTabIndex leaves them.
bool runWithoutGap(const std::vector<std::unique_ptr<Control>>& controls) {
    std::vector<bool> taken(controls.size(), false);
    for (const auto& c : controls) {
        if (c->tabIndex < 0 || c->tabIndex >= static_cast<int>(controls.size()) || taken[c->tabIndex])
            return false;
        taken[c->tabIndex] = true;
    }
    return true;
}

}  // namespace

void Form::setTabIndex(Control& control, int tabIndex) {
    // In an order without gaps, only the controls between the old place and the new move, one step: a
    // form that orders a hundred fields on loading does so without sorting them a hundred times.
    if (runWithoutGap(controls_)) {
        const int from = control.tabIndex;
        const int to = std::clamp(tabIndex, 0, static_cast<int>(controls_.size()) - 1);
        for (const auto& c : controls_) {
            if (c.get() == &control) continue;
            if (from < to && c->tabIndex > from && c->tabIndex <= to) --c->tabIndex;
            if (to < from && c->tabIndex >= to && c->tabIndex < from) ++c->tabIndex;
        }
        control.tabIndex = to;
        return;
    }
    std::vector<Control*> order;
    order.reserve(controls_.size());
    for (const auto& c : controls_)
        if (c.get() != &control) order.push_back(c.get());
    std::stable_sort(order.begin(), order.end(),
                     [](const Control* a, const Control* b) { return a->tabIndex < b->tabIndex; });
    const auto at = static_cast<std::size_t>(std::clamp(tabIndex, 0, static_cast<int>(order.size())));
    order.insert(order.begin() + static_cast<std::ptrdiff_t>(at), &control);
    for (std::size_t i = 0; i < order.size(); ++i) order[i]->tabIndex = static_cast<int>(i);
}

Control* Form::find(std::string_view name, int index) const {
    for (const auto& control : controls_) {
        if (control->index == index && text::equalsNoCase(control->name, name)) return control.get();
    }
    return nullptr;
}

Control& Form::at(std::string_view name, int index) const {
    if (Control* control = find(name, index)) return *control;
    if (index != kNoIndex && !arrayOf(name).empty())
        throw AppError(err::kControlArrayElementMissing,
                       "Control array element '" + std::to_string(index) + "' doesn't exist");
    throw AppError(err::kObjectRequired, "Object required: " + std::string(name) + " on " + name_);
}

std::vector<Control*> Form::arrayOf(std::string_view name) const {
    std::vector<Control*> elements;
    for (const auto& control : controls_) {
        if (control->index != kNoIndex && text::equalsNoCase(control->name, name))
            elements.push_back(control.get());
    }
    std::sort(elements.begin(), elements.end(),
              [](const Control* a, const Control* b) { return a->index < b->index; });
    return elements;
}

namespace {
MenuItem* findIn(std::vector<MenuItem>& items, std::string_view name) {
    for (auto& item : items) {
        if (text::equalsNoCase(item.name, name)) return &item;
        if (MenuItem* found = findIn(item.items, name)) return found;
    }
    return nullptr;
}
}  // namespace

MenuItem* Form::findMenu(std::string_view name) { return findIn(menus, name); }

void Form::setFocus(Control& control) {
    if (desktop_) desktop_->setFocus(control);
}

void Form::unload() {
    if (desktop_) desktop_->unload(*this);
}

}  // namespace lw
