// The lists a script prints for tools that drive the program: the menu items that open forms, and the
// controls of the form on the screen with what it takes to fill them.
#include "model/containers.h"
#include "model/program.h"
#include "script/script_runner.h"
#include "script/script_words.h"
#include "shell/frame_form.h"
#include "shell/menu_table.h"

namespace lw::script {

namespace {

// Shown when its tab is on show: neither the control nor a container of it is hidden.
bool visibleOnItsPage(const Control& c) {
    for (const Control* up = &c; up; up = up->container)
        if (!up->visible) return false;
    return true;
}

}  // namespace

void ScriptRunner::list(const std::vector<std::string>& words) {
    need(words, 2, "list menu|controls");
    requireRunning(words[0]);
    if (words[1] == "menu") return listMenu();
    if (words[1] == "controls") return listControls();
    throw ScriptError("list menu or list controls, not list " + words[1]);
}

void ScriptRunner::listMenu() {
    auto* frame = dynamic_cast<FrameForm*>(program_->desktop.frame());
    if (!frame) throw ScriptError("the frame is not open");
    for (const MenuEntry& entry : menuTable()) {
        if (entry.item[0] == '\0' || entry.opensForm[0] == '\0') continue;
        const MenuItem* item = frame->findMenu(entry.item);
        if (!item || !item->visible) continue;
        out_ << "menu " << entry.item << " " << entry.opensForm << " enabled " << flag(item->enabled) << " "
             << quoted(utf8(item->caption)) << "\n";
    }
}

void ScriptRunner::listControls() {
    const Form& form = inputForm();
    out_ << "form " << form.name() << "\n";
    for (const auto& owned : form.controls()) {
        const Control& c = *owned;
        out_ << "control " << c.key() << " " << controlKindName(c.kind) << " page " << pageOf(c)
             << " visible " << flag(visibleOnItsPage(c)) << " enabled " << flag(c.enabled) << " locked "
             << flag(c.locked) << " tabstop " << flag(c.tabStop) << " multiline " << flag(c.multiLine)
             << " maxlength " << c.maxLength << " left " << formLeft(c) << " top " << formTop(c) << " width "
             << c.width << " height " << c.height << " items " << c.items.size() << " tag "
             << quoted(utf8(c.tag)) << " tip " << quoted(utf8(c.toolTipText)) << " text "
             << quoted(utf8(c.shownText())) << "\n";
    }
}

}  // namespace lw::script
