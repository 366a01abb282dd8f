// Fuzz target of whole operator sessions on the program with no screen: a day from 2018 to 2031, then
// menus, clicks into any control, typing and pasting any Windows-1252 text, keys, the frame's buttons and
// the answers to the boxes they bring. No fault may escape the program's own handling, and the
// sanitizers watch everything else.
#include <fuzzer/FuzzedDataProvider.h>

#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "forms/register_forms.h"
#include "model/app_error.h"
#include "model/keys.h"
#include "model/ports.h"
#include "model/program.h"
#include "shell/frame_window_model.h"
#include "shell/menu_table.h"

namespace {

namespace fs = std::filesystem;

// The screen of a session: each box or dialog is answered by the next byte of the input.
class SessionUi : public lw::UiPort {
public:
    explicit SessionUi(FuzzedDataProvider& data) : data_(data) {}

    void runModal(lw::Form& form) override {
        std::vector<lw::Control*> buttons;
        for (const auto& owned : form.controls())
            if (owned->kind == lw::ControlKind::CommandButton && owned->visible && owned->enabled)
                buttons.push_back(owned.get());
        if (buttons.empty()) return;  // the desktop closes a box its driver leaves open
        lw::Control* pressed = buttons[data_.ConsumeIntegralInRange<std::size_t>(0, buttons.size() - 1)];
        lw::program().desktop.click(*pressed);
    }
    void copyPictureToClipboard(lw::Form&) override {}
    std::string clipboardText() override { return clipboard_; }
    void setClipboardText(const std::string& text) override { clipboard_ = text; }
    bool openDocument(const std::string&) override { return data_.ConsumeBool(); }
    std::optional<std::string> fileDialog(const lw::FileDialogRequest&) override {
        if (data_.ConsumeBool()) return std::nullopt;
        // Any name the input likes, but always a file of the session's own folder.
        std::string name = data_.ConsumeRandomLengthString(12);
        for (char& c : name)
            if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
        return folder_ + "/" + name + ".venturo";
    }
    bool printForm(const lw::Form&, const std::string&) override { return data_.ConsumeBool(); }
    void quit() override { throw lw::ProgramEnded{}; }

    void setFolder(const std::string& folder) { folder_ = folder; }

private:
    FuzzedDataProvider& data_;
    std::string clipboard_;
    std::string folder_;
};

class SessionMachine : public lw::PlatformPort {
public:
    SessionMachine(const std::string& root, int year, int month, int day)
        : root_(root), today_{year, month, day, 10, 0, 0} {}

    lw::DateTime now() override { return today_; }
    std::optional<std::string> environment(const std::string& name) override {
        if (name == "UserName") return std::string("FUZZ");
        if (name == "ComputerName") return std::string("FUZZPC");
        return std::nullopt;
    }
    std::string executableName() override { return "Ledgerwick_Venturo"; }
    std::string executableFolder() override { return LW_DATA_DIR; }
    std::string commandLine() override { return {}; }
    std::string rootFolder() override { return root_; }
    bool earlierInstanceRunning() override { return false; }
    void activateEarlierInstance(const std::string&) override {}
    void sleep(int) override {}
    std::vector<std::string> printers() override { return {"Office"}; }
    int screenWidthTwips() override { return 19200; }

private:
    std::string root_;
    lw::DateTime today_;
};

const char* const kButtons[] = {"Open",      "Save",      "Clear",     "Close",         "Print", "Clip",
                                "Load TP 1", "Load TP 2", "Configure", "Change Tax Yr", "Quit"};

struct Key {
    int code, shift, ascii;
};
const Key kKeys[] = {
    {lw::keys::kTab, 0, 0},
    {lw::keys::kTab, lw::keys::kShiftMask, 0},
    {lw::keys::kEnter, 0, lw::keys::kEnter},
    {lw::keys::kBackspace, 0, lw::keys::kBackspace},
    {lw::keys::kDelete, 0, 0},
    {lw::keys::kHome, 0, 0},
    {lw::keys::kEnd, lw::keys::kShiftMask, 0},
    {lw::keys::kEscape, 0, lw::keys::kEscape},
    {lw::keys::kF1, 0, 0},
    {lw::keys::kF1 + 11, 0, 0},
    {'C', lw::keys::kCtrlMask, lw::keys::kCtrlC},
    {'V', lw::keys::kCtrlMask, lw::keys::kCtrlV},
};

// Any byte but NUL is a Windows-1252 character the edge could hand in.
std::string cp1252Text(FuzzedDataProvider& data) {
    std::string text = data.ConsumeRandomLengthString(40);
    for (char& c : text)
        if (c == '\0') c = ' ';
    return text;
}

lw::Control* anyControl(FuzzedDataProvider& data) {
    lw::Form* form = lw::program().desktop.inputForm();
    if (!form || form->controls().empty()) return nullptr;
    return form->controls()[data.ConsumeIntegralInRange<std::size_t>(0, form->controls().size() - 1)].get();
}

void act(FuzzedDataProvider& data) {
    lw::Desktop& desktop = lw::program().desktop;
    switch (data.ConsumeIntegralInRange(0, 6)) {
        case 0: {
            const auto& items = lw::menuTable();
            const lw::MenuEntry& entry = items[data.ConsumeIntegralInRange<std::size_t>(0, items.size() - 1)];
            lw::Form* frame = desktop.frame();
            lw::MenuItem* item = frame && entry.item[0] ? frame->findMenu(entry.item) : nullptr;
            if (item && item->enabled && item->visible) desktop.chooseMenu(item->name);
            break;
        }
        case 1:
            if (lw::Control* control = anyControl(data)) desktop.click(*control);
            break;
        case 2:
            for (char c : cp1252Text(data)) desktop.typeCharacter(c);
            break;
        case 3:
            desktop.paste(cp1252Text(data));
            break;
        case 4: {
            const Key& key = kKeys[data.ConsumeIntegralInRange<std::size_t>(0, std::size(kKeys) - 1)];
            desktop.pressKey(key.code, key.shift, key.ascii);
            break;
        }
        default: {
            lw::Form* frame = desktop.frame();
            const char* caption =
                kButtons[data.ConsumeIntegralInRange<std::size_t>(0, std::size(kButtons) - 1)];
            if (!frame) break;
            for (lw::Control* button : frame->arrayOf("cmdBtn"))
                if (button->caption == caption && button->enabled) desktop.click(*button);
            break;
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    FuzzedDataProvider data(bytes, size);
    static const fs::path root = [] {
        std::string pattern = (fs::temp_directory_path() / "ledgerwick-session-fuzz-XXXXXX").string();
        return fs::path(mkdtemp(pattern.data()));
    }();
    // Each session starts on a machine of its own: nothing one session saved steers the next.
    std::error_code ec;
    fs::remove_all(root, ec);
    fs::create_directories(root / "forms", ec);
    const int year = data.ConsumeIntegralInRange(2018, 2031);
    const int month = data.ConsumeIntegralInRange(1, 12);
    const int day = data.ConsumeIntegralInRange(1, 28);
    SessionUi ui(data);
    ui.setFolder((root / "forms").string());
    SessionMachine machine(root.string(), year, month, day);
    try {
        lw::Program program(ui, machine);
        lw::registerAllForms();
        lw::loadFrame();
        for (int step = 0; step < 64 && data.remaining_bytes() > 0; ++step) act(data);
    } catch (const lw::ProgramEnded&) {
        // Quit, the close box or a refused start: the session is over, as it may be.
    } catch (...) {
        // Any other fault escaped the program's own handling.
        std::abort();
    }
    return 0;
}
