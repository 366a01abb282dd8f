#pragma once
// Ports for the diagnostics tests: the screen answers modal boxes from a queue, as the script runner does,
// and the machine has a fixed clock, a settable command line and recorded sleeps.

#include <array>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "diagnostics/message_box.h"
#include "fixed_platform.h"
#include "model/ports.h"

namespace lw::test {

// A message box as the screen found it when it was shown.
struct SeenBox {
    MessageBoxRecord record;
    int height = 0;
    int labelHeight = 0;
    int text1Top = 0;
    bool text1Visible = false;
    std::string text1Text;
    std::array<int, 4> buttonTops{};
    std::array<bool, 4> buttonVisible{};
    std::array<Color, 4> buttonColors{};
    std::array<bool, 4> buttonIsDefault{};
    Color dummyColor = 0;
    std::string icon;
};

// A picture put on the clipboard, with the report form's values at that moment.
struct Picture {
    std::string formName;
    std::vector<std::string> label2Captions;
};

class FakeUi : public UiPort {
public:
    using Action = std::function<void(Form&)>;

    // The next message box is answered by pressing the visible button with this caption.
    void queueAnswer(const std::string& caption);
    // The next report form gets the description typed and the button ("clip", "exit", "document") pressed;
    // after "clip" the form is left with Exit.
    void queueReport(const std::string& description, const std::string& button);
    // The next modal form is handled by this action; it may leave the form open.
    void queue(Action action);

    // Presses a button as the operator's click does.
    static void press(Control& button);
    // Clicks into a field and types the text key by key.
    static void type(Control& field, const std::string& text);

    void runModal(Form& form) override;
    void copyPictureToClipboard(Form& form) override;
    std::string clipboardText() override { return clipboardText_; }
    void setClipboardText(const std::string& text) override { clipboardText_ = text; }
    bool openDocument(const std::string&) override { return false; }
    void quit() override { quitCalled = true; }

    std::vector<std::string> modalForms;  // names in the order shown
    std::vector<SeenBox> boxes;
    std::vector<Picture> pictures;
    bool quitCalled = false;
    // Thrown from runModal for the next showing of a form of this name, then forgotten.
    std::string failNextShowingOf;
    std::string failureText = "no screen";

private:
    std::deque<Action> actions_;
    std::string clipboardText_;
};

// The fixed machine of every unit test, with this suite's clock.
struct FakePlatform : lw::testing::FixedPlatform {
    FakePlatform() { clock = DateTime{2025, 3, 7, 14, 5, 9}; }
};

}  // namespace lw::test
