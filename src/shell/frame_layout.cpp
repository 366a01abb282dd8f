// The frame's fixed controls: the eleven command buttons and the colour legend on picLegends, and the menus.
#include "shell/form_registry.h"
#include "shell/frame_command_hooks.h"
#include "shell/frame_form.h"
#include "shell/menu_table.h"

namespace lw {

namespace {

struct ButtonSpec {
    const char* caption;
    const char* icon;  // a name the window maps to a picture
};

constexpr ButtonSpec kButtons[kCommandButtonCount] = {
    {"Open", "open"},           {"Save", "save"},
    {"Clear", "clear"},         {"Close", "close"},
    {"Print", "print"},         {"Clip", "clip"},
    {"Load TP 1", "person"},    {"Load TP 2", "people"},
    {"Configure", "configure"}, {"Change Tax Yr", "calendar"},
    {"Quit", "quit"},
};

struct LegendSpec {
    const char* text;
    const char* tip;
    Color color;
};

constexpr LegendSpec kLegend[kLegendCount] = {
    {"Color Legend", "", 0x00C0C0C0},
    {"SS # & ITIN #", "Social Security Number", 0x00FFC0C0},
    {"EIN #", "Employer Identification Number", 0x00FFC0FF},
    {"Money", "Dollar Amount (Must be Positive Amount)", 0x0000FF00},
    {"Money (+ or -)", "Dollar Amount (Negative Amount is OK)", 0x00C0FFC0},
    {"Numeric", "Numeric", 0x00C0E0FF},
    {"Date Field", "Date MM/DD/YYYY", 0x00C0C0FF},
    {"Computed Field", "Computed Field (Can't be Entered)", 0x00E0E0E0},
    {"K1 Help F1-F12", "Help for Certain K1 Fields (Press F1)", 0x00FFFF00},
    {"Other Field", "", 0x0080FFFF},
};

constexpr int kPanelWidth = 1680;
constexpr int kButtonLeft = 120;
constexpr int kButtonWidth = 1440;
constexpr int kButtonHeight = 555;
constexpr int kButtonGap = 30;
constexpr int kLegendHeight = 270;

}  // namespace

FrameForm::FrameForm() : Form("F0_MDI") {
    isChild = false;
    caption = "Ledgerwick";
    width = 16500;
    height = 11020;
    buildPanel();
    buildMenus();
}

void FrameForm::buildPanel() {
    Control& panel = add(ControlKind::Picture, "picLegends");
    panel.left = 0;
    panel.top = 0;
    panel.width = kPanelWidth;
    panel.height = height;
    panel.backColor = kButtonFace;
    panel.tabStop = false;

    int top = 120;
    for (int i = 0; i < kCommandButtonCount; ++i) {
        Control& button = add(ControlKind::CommandButton, "cmdBtn", i);
        button.caption = kButtons[i].caption;
        button.picture = kButtons[i].icon;
        button.left = kButtonLeft;
        button.top = top;
        button.width = kButtonWidth;
        button.height = kButtonHeight;
        button.tabStop = false;
        top += kButtonHeight + kButtonGap;
    }
    top += 120;
    for (int i = 0; i < kLegendCount; ++i) {
        Control& legend = add(ControlKind::TextBox, "txtLegend", i);
        legend.text = kLegend[i].text;
        legend.toolTipText = kLegend[i].tip;
        legend.backColor = kLegend[i].color;
        legend.locked = true;
        legend.tabStop = false;
        legend.wordsOnly = true;
        legend.alignment = 2;
        legend.fontBold = i == 0;
        legend.left = kButtonLeft;
        legend.top = top;
        legend.width = kButtonWidth;
        legend.height = kLegendHeight;
        top += kLegendHeight;
    }
    panel.height = top + 120;
}

void FrameForm::buildMenus() {
    for (const MenuEntry& entry : menuTable()) {
        if (entry.item[0] == '\0') {
            menus.push_back(MenuItem{entry.menu, entry.caption, true, true, {}});
            continue;
        }
        menus.back().items.push_back(MenuItem{entry.item, entry.caption, true, true, {}});
    }
    refreshCommands();
}

// A command of the Control menu is offered when the part of the program that carries it out is there.
static bool commandBuilt(const std::string& itemName) {
    const FrameCommandHooks& hooks = frameCommandHooks();
    if (itemName == "mnuControlOpen") return static_cast<bool>(hooks.openFile);
    if (itemName == "mnuControlSave") return static_cast<bool>(hooks.saveFile);
    if (itemName == "mnuControlPrint") return static_cast<bool>(hooks.printForm);
    if (itemName == "mnuControlClip") return static_cast<bool>(hooks.mdiClip);
    return true;
}

void FrameForm::refreshCommands() {
    for (const MenuEntry& entry : menuTable()) {
        if (entry.item[0] == '\0' || entry.caption == std::string("-")) continue;
        MenuItem* item = findMenu(entry.item);
        if (!item) continue;
        item->enabled = entry.opensForm[0] != '\0' ? hasForm(entry.opensForm) : commandBuilt(entry.item);
    }
    if (Control* open = find("cmdBtn", 0)) open->enabled = static_cast<bool>(frameCommandHooks().openFile);
}

}  // namespace lw
