#pragma once
// FrameForm, the frame: menu bar, the panel of command buttons and the colour legend, and the one child form.

#include <string>

#include "model/form.h"

namespace lw {

class FrameForm : public Form {
public:
    FrameForm();

    // Members that other parts of the program read.
    std::string versionMajor;
    std::string versionFull;
    std::string devAppFolder;
    std::string devSharedFolder;
    std::string devFormsFolder;
    std::string devInfFolder;
    std::string iconFile;
    std::string taxFormsFolder;
    bool taskbarHidden = false;

    void onLoad() override;
    void onClick(Control& control, MouseButton button) override;
    void onMenu(const std::string& itemName) override;
    void onQueryUnload(bool& cancel) override;
    void onUnload(bool& cancel) override;

    // Enables the menu items and buttons whose forms and commands the program has.
    void refreshCommands();

private:
    void buildMenus();
    void buildPanel();
};

constexpr int kCommandButtonCount = 11;
constexpr int kLegendCount = 10;

}  // namespace lw
