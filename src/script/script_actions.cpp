// The operator's actions of a script: menus, buttons, focus, keys, typing, pastes, clicks, the close box.
#include <algorithm>

#include "model/app_error.h"
#include "model/containers.h"
#include "model/keys.h"
#include "model/program.h"
#include "script/script_runner.h"
#include "script/script_words.h"
#include "shell/form_registry.h"
#include "shell/frame_form.h"
#include "shell/frame_window_model.h"
#include "shell/menu_table.h"
#include "text/case.h"
#include "text/cp1252.h"

namespace lw::script {

namespace {

struct KeyStroke {
    int keyCode;
    int shift;
    int keyAscii;
};

KeyStroke keyStroke(const std::string& name) {
    using namespace keys;
    static const struct {
        const char* name;
        KeyStroke key;
    } table[] = {
        {"Tab", {kTab, 0, 0}},
        {"Shift+Tab", {kTab, kShiftMask, 0}},
        {"Enter", {kEnter, 0, kEnter}},
        {"Backspace", {kBackspace, 0, kBackspace}},
        {"Delete", {kDelete, 0, 0}},
        {"Escape", {kEscape, 0, kEscape}},
        {"Home", {kHome, 0, 0}},
        {"End", {kEnd, 0, 0}},
        {"Left", {kLeft, 0, 0}},
        {"Right", {kRight, 0, 0}},
        {"Shift+Home", {kHome, kShiftMask, 0}},
        {"Shift+End", {kEnd, kShiftMask, 0}},
        {"Ctrl+C", {'C', kCtrlMask, kCtrlC}},
        {"Ctrl+V", {'V', kCtrlMask, kCtrlV}},
        {"Ctrl+X", {'X', kCtrlMask, kCtrlX}},
    };
    for (const auto& entry : table)
        if (text::equalsNoCase(entry.name, name)) return entry.key;
    if (name.size() >= 2 && (name[0] == 'F' || name[0] == 'f')) {
        std::string digits = name.substr(1);
        if (digits.find_first_not_of("0123456789") == std::string::npos && digits.size() <= 2) {
            int n = std::stoi(digits);
            if (n >= 1 && n <= 12) return KeyStroke{kF1 + n - 1, 0, 0};
        }
    }
    throw ScriptError("unknown key " + name);
}

MouseButton mouseButton(const std::string& word) {
    if (word == "left") return MouseButton::Left;
    if (word == "right") return MouseButton::Right;
    if (word == "middle") return MouseButton::Middle;
    throw ScriptError("unknown mouse button " + word);
}

}  // namespace

// A click on a tab control lands on one of its tabs: the one named by its number or caption, or with
// none named, the tab after the one on show (with two tabs, the other one).
void ScriptRunner::clickTab(Control& tabs, const std::string& which) {
    // Only the left button turns a page.
    if (which == "right" || which == "middle") return;
    const int count = static_cast<int>(tabs.items.size());
    int tab = (tabOf(tabs) + 1) % count;
    if (!which.empty() && which != "left") {
        const std::string caption = codePage(which);
        auto named = std::find(tabs.items.begin(), tabs.items.end(), caption);
        if (named != tabs.items.end()) {
            tab = static_cast<int>(named - tabs.items.begin());
        } else if (which.size() == 1 && which[0] >= '0' && which[0] - '0' < count) {
            tab = which[0] - '0';
        } else {
            throw ScriptError(tabs.key() + " has no tab " + which);
        }
    }
    program_->desktop.choose(tabs, tabs.items[static_cast<std::size_t>(tab)]);
}

// A menu item that cannot be chosen is a fault of the script, named with the reason.
void ScriptRunner::chooseMenuItem(const std::vector<std::string>& words) {
    need(words, 2, "menu ITEM");
    auto* frame = dynamic_cast<FrameForm*>(program_->desktop.frame());
    MenuItem* item = frame ? frame->findMenu(words[1]) : nullptr;
    if (!item) throw ScriptError("no menu item " + words[1]);
    if (!item->enabled || !item->visible) {
        for (const MenuEntry& entry : menuTable()) {
            if (text::equalsNoCase(entry.item, words[1]) && entry.opensForm[0] != '\0' &&
                !hasForm(entry.opensForm))
                throw ScriptError("menu item " + words[1] + " opens " + entry.opensForm +
                                  ", which this program does not have yet");
        }
        throw ScriptError("menu item " + words[1] + " is " + (item->visible ? "disabled" : "hidden"));
    }
    program_->desktop.chooseMenu(item->name);
}

void ScriptRunner::pressFrameButton(const std::vector<std::string>& words) {
    need(words, 2, "button CAPTION");
    Form* frame = program_->desktop.frame();
    Control* pressed = nullptr;
    for (Control* button : frame ? frame->arrayOf("cmdBtn") : std::vector<Control*>{})
        if (text::equalsNoCase(button->caption, codePage(words[1]))) pressed = button;
    if (!pressed) throw ScriptError("no button " + words[1] + " on the frame");
    if (!pressed->enabled) throw ScriptError("the button " + words[1] + " is not available yet");
    program_->desktop.click(*pressed);
}

void ScriptRunner::act(const std::vector<std::string>& words) {
    const std::string& command = words[0];
    requireRunning(command);
    Desktop& desktop = program_->desktop;
    try {
        if (command == "menu") {
            chooseMenuItem(words);
        } else if (command == "button") {
            pressFrameButton(words);
        } else if (command == "focus") {
            need(words, 2, "focus CTL");
            desktop.click(control(words[1]));
        } else if (command == "type") {
            need(words, 2, "type \"TEXT\"");
            for (char c : codePage(words[1])) desktop.typeCharacter(c);
        } else if (command == "key") {
            need(words, 2, "key KEY");
            KeyStroke key = keyStroke(words[1]);
            desktop.pressKey(key.keyCode, key.shift, key.keyAscii);
        } else if (command == "paste") {
            need(words, 2, "paste \"TEXT\"");
            auto converted = text::utf8ToCp1252(words[1]);
            if (!converted)
                program_->ui.inputRefused("The pasted text holds characters that a form cannot keep.");
            else
                desktop.paste(*converted);
        } else if (command == "click") {
            need(words, 2, "click CTL [left/right/middle]");
            Control& clicked = control(words[1]);
            if (clicked.kind == ControlKind::TabControl && !clicked.items.empty())
                clickTab(clicked, words.size() > 2 ? words[2] : std::string());
            else
                desktop.click(clicked, words.size() > 2 ? mouseButton(words[2]) : MouseButton::Left);
        } else if (command == "choose") {
            need(words, 3, "choose CTL \"TEXT\"");
            Control& list = control(words[1]);
            std::string entry = codePage(words[2]);
            if (std::find(list.items.begin(), list.items.end(), entry) == list.items.end())
                throw ScriptError(words[1] + " has no entry \"" + words[2] + "\"");
            desktop.choose(list, entry);
        } else if (command == "close") {
            closeFrame();
        } else {
            throw ScriptError("unknown command " + command);
        }
    } catch (const ProgramEnded&) {
        session_.ended = true;
        out_ << "the program ended\n";
    }
}

}  // namespace lw::script
