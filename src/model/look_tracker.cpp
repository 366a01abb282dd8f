#include "model/look_tracker.h"

#include "model/containers.h"
#include "model/hash_mix.h"

#include <functional>
#include <string>

namespace lw {

std::size_t lookOf(const Control& c) {
    std::size_t seed = static_cast<std::size_t>(c.kind);
    mix(seed, c.text);
    mix(seed, c.caption);
    mix(seed, c.toolTipText);
    mix(seed, c.picture);
    mix(seed, c.fontName);
    mix(seed, c.fontSize);
    for (const std::string& item : c.items) mix(seed, item);
    for (int number : {c.left, c.top, c.width, c.height, c.x2, c.y2, c.alignment, c.maxLength, c.selStart(),
                       c.selLength(), c.borderStyle, c.borderWidth, c.listIndex, c.tabIndex, c.tabHeight})
        mix(seed, number);
    for (Color colour : {c.backColor, c.foreColor, c.borderColor}) mix(seed, colour);
    for (bool flag : {c.visible, c.enabled, c.locked, c.multiLine, c.wordWrap, c.opaque, c.fontBold,
                      c.fontItalic, c.value, c.isDefault, isShown(c)})
        mix(seed, flag);
    return seed;
}

std::vector<Control*> LookTracker::changedSince(const Form& form) {
    std::vector<Control*> changed;
    std::unordered_map<const Control*, std::size_t> now;
    now.reserve(form.controls().size());
    for (const auto& owned : form.controls()) {
        Control* control = owned.get();
        const std::size_t look = lookOf(*control);
        now.emplace(control, look);
        auto before = seen_.find(control);
        if (before == seen_.end() || before->second != look) changed.push_back(control);
    }
    seen_.swap(now);
    return changed;
}

}  // namespace lw
