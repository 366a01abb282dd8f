#pragma once
// How the check boxes of a form answer a click: most toggle, some come in pairs where marking one
// clears the other, and some groups admit one mark at most.

#include <string_view>
#include <utility>
#include <vector>

namespace lw {

struct CheckRules {
    std::vector<std::pair<int, int>> pairs;
    std::vector<int> exclusiveGroup;  // the indexes of the one group whose boxes exclude each other
};

const CheckRules& checkRulesOf(std::string_view formName);

}  // namespace lw
