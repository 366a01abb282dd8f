#pragma once
// Which controls of a form look different since the last time a view asked: a view mirrors and repaints
// those alone. A control's look is every property the screen shows of it.

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "model/form.h"

namespace lw {

// A fingerprint of everything the screen shows of a control.
std::size_t lookOf(const Control& control);

class LookTracker {
public:
    // The controls of the form whose look changed since the last call (all of them the first time), in
    // the order of the form's controls. Controls that have gone are forgotten.
    std::vector<Control*> changedSince(const Form& form);
    // Forgets everything: the next call reports every control.
    void reset() { seen_.clear(); }

private:
    std::unordered_map<const Control*, std::size_t> seen_;
};

}  // namespace lw
