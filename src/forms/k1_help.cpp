#include "forms/k1_help.h"

#include <memory>

#include "diagnostics/error_tail.h"
#include "forms/k1_help_form.h"
#include "model/desktop.h"
#include "text/case.h"

namespace lw {

namespace {

// "K1HELP" and the middle dot stand before the section name in a coded field's Tag.
constexpr std::size_t kSectionStart = 7;

std::vector<std::string> keep(const Form& form, const char* name, bool tags) {
    const std::vector<Control*> fields = form.arrayOf(name);
    std::vector<std::string> kept(fields.size());
    for (const Control* field : fields)
        kept.at(static_cast<std::size_t>(field->index)) = tags ? field->tag : field->text;
    return kept;
}

}  // namespace

K1DesignValues keptDesignValues(const Form& form) {
    return {keep(form, "Text2", false), keep(form, "Text3", true), keep(form, "Text4", false),
            keep(form, "Text5", true)};
}

void restoreK1DesignValues(Form& form, const K1DesignValues& kept) {
    const auto restore = [&form](const char* name, const std::vector<std::string>& values, bool tags) {
        for (Control* field : form.arrayOf(name)) {
            const std::size_t i = static_cast<std::size_t>(field->index);
            if (i >= values.size()) continue;
            (tags ? field->tag : field->text) = values[i];
        }
    };
    restore("Text2", kept.text2, false);
    restore("Text3", kept.tag3, true);
    restore("Text4", kept.text4, false);
    restore("Text5", kept.tag5, true);
}

void openK1CodeList(Form& form, Control& field, const K1DesignValues& kept, const std::string& infFile,
                    K1HelpMembers& members) {
    runGuarded("M3_Ledgerwick:K1_Help_KeyDown", [&] {
        const std::string name = text::toUpper(field.name);
        const int index = field.index;
        const std::string before = field.text;
        const std::string key = field.tag.size() > kSectionStart ? field.tag.substr(kSectionStart) : "";
        if (key.empty()) return;

        members.listSectionKey = key;
        members.chosenCode.clear();
        members.chosenOverride.clear();
        members.listCancelled = false;
        if (!form.desktop()) return;
        Desktop& desktop = *form.desktop();
        Form& list = desktop.load(std::make_unique<K1HelpForm>(members, infFile), false);
        if (list.isLoaded()) desktop.showModal(list);

        if (!members.chosenCode.empty()) {
            field.text = members.chosenCode;
            const bool left = name == "TEXT2";
            Control& amount = form.at(left ? "Text3" : "Text5", index);
            // A code picked earlier for the row may have lifted the money check: it comes back first.
            const std::vector<std::string>& designTags = left ? kept.tag3 : kept.tag5;
            amount.tag = designTags.at(static_cast<std::size_t>(index));
            if (members.chosenOverride == "X") amount.tag.clear();
            desktop.setFocus(amount);
            return;
        }
        field.text = before;
        if (Form* open = desktop.findForm("F6_K1Help")) desktop.unload(*open);
        desktop.setFocus(field);
    });
}

}  // namespace lw
