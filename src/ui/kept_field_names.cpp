#include "ui/kept_field_names.h"

#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/containers.h"
#include "model/hash_mix.h"

namespace lw::ui {

namespace {

// Everything a name is found from: each control's kind, words, place, size and page.
std::size_t namingLookOf(const Form& form) {
    std::size_t look = std::hash<std::string>{}(form.name());
    for (const auto& owned : form.controls()) {
        const Control& c = *owned;
        mix(look, static_cast<int>(c.kind));
        mix(look, c.name);
        mix(look, c.index);
        mix(look, c.caption);
        mix(look, c.spokenName);
        mix(look, c.toolTipText);
        mix(look, c.tag);
        for (int number : {formLeft(c), formTop(c), c.width, c.height, pageOf(c)}) mix(look, number);
    }
    return look;
}

// A name by the places of its field and its box among the form's controls.
struct PlacedName {
    std::size_t field;
    std::string text;
    long box;  // -1 for none
};

struct KeptNames {
    std::size_t look = 0;
    std::vector<PlacedName> names;
};

}  // namespace

std::map<const Control*, FieldName> keptFieldNamesOf(const Form& form) {
    static std::unordered_map<std::string, KeptNames> kept;
    const auto& controls = form.controls();
    std::unordered_map<const Control*, std::size_t> placeOf;
    for (std::size_t i = 0; i < controls.size(); ++i) placeOf[controls[i].get()] = i;

    const std::size_t look = namingLookOf(form);
    KeptNames& known = kept[form.name()];
    if (known.look != look || known.names.empty()) {
        known.look = look;
        known.names.clear();
        for (const auto& [field, name] : fieldNamesOf(form))
            known.names.push_back({placeOf.at(field), name.text,
                                   name.box ? static_cast<long>(placeOf.at(name.box)) : -1L});
    }
    std::map<const Control*, FieldName> names;
    for (const PlacedName& placed : known.names)
        names[controls[placed.field].get()] =
            FieldName{placed.text, placed.box < 0 ? nullptr : controls[static_cast<std::size_t>(placed.box)].get()};
    return names;
}

}  // namespace lw::ui
