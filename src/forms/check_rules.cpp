#include "forms/check_rules.h"

#include <map>
#include <string>

#include "text/case.h"

namespace lw {

const CheckRules& checkRulesOf(std::string_view formName) {
    static const std::map<std::string, CheckRules> rules = {
        {"TF_1099K", {{{3, 4}, {5, 6}}, {}}},
        {"TF_1099LTC", {{{1, 2}, {4, 5}}, {}}},
        {"TF_1099B", {{{2, 3}, {6, 7}, {11, 12}}, {}}},
        {"TF_1099Q", {{}, {1, 2, 3}}},
        {"TF_1099SA", {{}, {2, 3, 4}}},
        {"TF_K11065", {{{3, 4}, {5, 6}, {9, 10}, {13, 14}}, {}}},
        {"TF_K11041", {{{4, 5}}, {}}},
    };
    static const CheckRules toggleOnly;
    for (const auto& entry : rules)
        if (text::equalsNoCase(entry.first, formName)) return entry.second;
    return toggleOnly;
}

}  // namespace lw
