#pragma once
// Ports for the field tests: the screen answers message boxes by clicking the queued caption (the
// default button when none is queued) and closes error reports; the machine has a fixed clock.

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "diagnostics/message_box.h"
#include "fixed_platform.h"
#include "model/ports.h"

namespace lw::test {

class FakeUi : public UiPort {
public:
    // The next message box is answered by pressing the visible button with this caption.
    void queueAnswer(const std::string& caption) { answers_.push_back(caption); }

    void runModal(Form& form) override;
    void copyPictureToClipboard(Form&) override {}
    std::string clipboardText() override { return clipboard; }
    void setClipboardText(const std::string& text) override { clipboard = text; }
    bool openDocument(const std::string&) override { return false; }
    void quit() override {}
    void refresh() override { ++refreshes; }

    std::vector<MessageBoxRecord> boxes;  // as answered
    std::vector<std::string> modalForms;  // names in the order shown
    std::string clipboard;
    int refreshes = 0;

private:
    std::deque<std::string> answers_;
};

// The fixed machine of every unit test, with this suite's clock.
struct FakePlatform : lw::testing::FixedPlatform {
    FakePlatform() { clock = DateTime{2025, 3, 7, 14, 5, 9}; }
};

}  // namespace lw::test
