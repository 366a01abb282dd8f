// Fuzz target of whole operator sessions on the program with no screen, the engine the script runner
// drives: one of the two editions or the test path, a user, a day from 2018 to 2031, the printers, a user
// INF store and a K1Help.inf that are good, damaged or made up; then menus, clicks, typing, pasting, keys,
// the frame's buttons, data files of every shape picked in the open dialog, and codes picked from the
// K-1 lists. It stops on a fault that escapes the program's handling, on any error report that the
// program's rules do not call for (session_allowed_reports.txt), and on what the sanitizers see.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include "diagnostics/version.h"
#include "forms/register_forms.h"
#include "model/app_error.h"
#include "model/keys.h"
#include "model/program.h"
#include "session_files.h"
#include "session_input.h"
#include "session_ports.h"
#include "session_reports.h"
#include "session_texts.h"
#include "shell/frame_window_model.h"
#include "shell/menu_table.h"

namespace {

namespace fs = std::filesystem;
using lw::fuzz::SessionInput;
using lw::fuzz::SessionTrace;

std::vector<fs::path>& madeFolders() {
    static std::vector<fs::path> folders;
    return folders;
}

void removeMadeFolders() {
    std::error_code ec;
    for (const fs::path& folder : madeFolders()) fs::remove_all(folder, ec);
}

// A folder of its own in the temporary folder, removed when the fuzzer ends normally.
fs::path madeFolder(const char* name) {
    std::string pattern = (fs::temp_directory_path() / name).string() + "-XXXXXX";
    const fs::path folder(mkdtemp(pattern.data()));
    if (madeFolders().empty()) std::atexit(removeMadeFolders);
    madeFolders().push_back(folder);
    return folder;
}

// The folder of the executable: the shipped files, and the user guides when the session has them.
std::string appFolder(bool withGuide) {
    static const auto make = [](bool guide) {
        const fs::path folder =
            madeFolder(guide ? "ledgerwick-session-fuzz-app-guide" : "ledgerwick-session-fuzz-app");
        std::error_code ec;
        for (const auto& entry : fs::directory_iterator(LW_DATA_DIR, ec))
            if (entry.is_regular_file(ec)) fs::copy_file(entry.path(), folder / entry.path().filename(), ec);
        if (guide)
            for (const char* edition : {"Venturo", "OthAgcy"})
                lw::fuzz::writeFile(
                    (folder / ("Ledgerwick_V" + lw::versionMajorText() + "_" + edition + "_UserGuide.pdf"))
                        .string(),
                    "%PDF-1.4\n");
        return folder.string();
    };
    static const std::string plain = make(false);
    static const std::string guided = make(true);
    return withGuide ? guided : plain;
}

const char* const kExecutables[] = {"Ledgerwick_Venturo", "Ledgerwick_OthAgcy", "LEDGERWICK_VENTURO",
                                    "ledgerwick-dev"};
const char* const kCommandLines[] = {"", "", "taskbar", "F99"};

std::string upper(std::string text) {
    for (char& c : text)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return text;
}

// The machine of the session, and the files that lie on it before the program starts.
lw::fuzz::MachineSetup setUpMachine(SessionInput& in, SessionTrace& trace, const fs::path& root) {
    lw::fuzz::MachineSetup setup;
    setup.root = root.string();
    setup.executableName = kExecutables[in.pick(std::size(kExecutables))];
    const bool guide = in.oneIn(2);
    setup.executableFolder = appFolder(guide);
    switch (in.pick(4)) {
        case 0:
            setup.user = "Fuzz";
            break;
        case 1:
            setup.user = "Ann Lee";
            break;
        case 2:
            break;
        default:
            setup.user = std::string(35, 'L');
            break;
    }
    setup.today = lw::DateTime{static_cast<int>(2018 + in.pick(14)),
                               static_cast<int>(1 + in.pick(12)),
                               static_cast<int>(1 + in.pick(28)),
                               static_cast<int>(in.pick(24)),
                               0,
                               0};
    switch (in.pick(4)) {
        case 0:
            break;
        case 1:
            setup.printers = {"Office"};
            break;
        case 2:
            setup.printers = {"Office", "Back Room"};
            break;
        default:
            setup.printers = {"Back Room", "Office", "Office"};
            break;
    }
    setup.commandLine = kCommandLines[in.pick(std::size(kCommandLines))];
    trace.add("machine: " + setup.executableName + (guide ? " with its guide" : "") + ", user " +
              (setup.user ? "\"" + *setup.user + "\"" : "unset") + ", today " +
              std::to_string(setup.today.year) + "-" + std::to_string(setup.today.month) + "-" +
              std::to_string(setup.today.day) + ", " + std::to_string(setup.printers.size()) +
              " printers, command line \"" + setup.commandLine + "\"");

    const std::string inf = (root / "LedgerwickInfFiles").string();
    const std::string devInf =
        (root / "Apps" / ("Ledgerwick_" + lw::versionMajorText()) / "InfFiles").string();
    if (guide)
        for (const char* edition : {"Venturo", "OthAgcy"})
            lw::fuzz::writeFile(devInf + "/../Docs/PDFFiles/Ledgerwick_V" + lw::versionMajorText() + "_" +
                                    edition + "_UserGuide.pdf",
                                "%PDF-1.4\n");
    const std::string section = setup.user && setup.user->size() < 30 ? upper(*setup.user) : "";
    if (const auto store = lw::fuzz::userStore(in, section, setup.root)) {
        lw::fuzz::writeFile(inf + "/Venturo/UserVenturo.inf", *store);
        lw::fuzz::writeFile(inf + "/OthAgcy/UserOthAgcy.inf", *store);
        trace.add("user store of " + std::to_string(store->size()) + " bytes");
    }
    if (const auto k1Help = lw::fuzz::k1HelpFile(in)) {
        lw::fuzz::writeFile(inf + "/K1Help.inf", *k1Help);
        lw::fuzz::writeFile(devInf + "/K1Help.inf", *k1Help);
        trace.add("K1Help.inf of " + std::to_string(k1Help->size()) + " bytes of its own");
    }
    return setup;
}

const char* const kButtons[] = {"Open",      "Save",      "Clear",     "Close",         "Print", "Clip",
                                "Load TP 1", "Load TP 2", "Configure", "Change Tax Yr", "Quit"};

struct Key {
    int code, shift, ascii;
    const char* name;
};
const Key kKeys[] = {
    {lw::keys::kTab, 0, 0, "Tab"},
    {lw::keys::kTab, lw::keys::kShiftMask, 0, "Shift+Tab"},
    {lw::keys::kEnter, 0, lw::keys::kEnter, "Enter"},
    {lw::keys::kBackspace, 0, lw::keys::kBackspace, "Backspace"},
    {lw::keys::kDelete, 0, 0, "Delete"},
    {lw::keys::kHome, 0, 0, "Home"},
    {lw::keys::kEnd, lw::keys::kShiftMask, 0, "Shift+End"},
    {lw::keys::kLeft, 0, 0, "Left"},
    {lw::keys::kEscape, 0, lw::keys::kEscape, "Escape"},
    {'C', lw::keys::kCtrlMask, lw::keys::kCtrlC, "Ctrl+C"},
    {'V', lw::keys::kCtrlMask, lw::keys::kCtrlV, "Ctrl+V"},
    {'X', lw::keys::kCtrlMask, lw::keys::kCtrlX, "Ctrl+X"},
};

lw::Control* anyControl(SessionInput& in, bool textBoxOnly) {
    lw::Form* form = lw::program().desktop.inputForm();
    if (!form) return nullptr;
    std::vector<lw::Control*> controls;
    for (const auto& owned : form->controls())
        if (!textBoxOnly || (owned->isTextBox() && owned->visible && owned->enabled))
            controls.push_back(owned.get());
    return controls.empty() ? nullptr : controls[in.pick(controls.size())];
}

std::string nameOf(const lw::Control& control) {
    return control.index == lw::kNoIndex ? control.name
                                         : control.name + "(" + std::to_string(control.index) + ")";
}

void chooseMenu(SessionInput& in, SessionTrace& trace) {
    const auto& items = lw::menuTable();
    const lw::MenuEntry& entry = items[in.pick(items.size())];
    lw::Form* frame = lw::program().desktop.frame();
    lw::MenuItem* item = frame && entry.item[0] ? frame->findMenu(entry.item) : nullptr;
    if (!item || !item->enabled || !item->visible) return;
    trace.add(std::string("menu ") + entry.item);
    lw::program().desktop.chooseMenu(item->name);
}

void clickControl(SessionInput& in, SessionTrace& trace, bool textBoxOnly) {
    lw::Control* control = anyControl(in, textBoxOnly);
    if (!control) return;
    const auto button = textBoxOnly ? lw::MouseButton::Left : static_cast<lw::MouseButton>(in.pick(3));
    trace.add("click " + nameOf(*control) + (button == lw::MouseButton::Left ? "" : " with another button"));
    lw::program().desktop.click(*control, button);
}

void pressFrameButton(SessionInput& in, SessionTrace& trace) {
    lw::Form* frame = lw::program().desktop.frame();
    const char* caption = kButtons[in.pick(std::size(kButtons))];
    if (!frame) return;
    for (lw::Control* button : frame->arrayOf("cmdBtn")) {
        if (button->caption != caption || !button->enabled) continue;
        trace.add(std::string("press ") + caption);
        lw::program().desktop.click(*button);
        return;
    }
}

void typeText(SessionInput& in, SessionTrace& trace) {
    const std::string text = lw::fuzz::fieldText(in);
    trace.add("type \"" + lw::fuzz::printable(text) + "\"");
    for (char c : text) lw::program().desktop.typeCharacter(c);
}

void pressKey(SessionTrace& trace, const Key& key) {
    trace.add(std::string("key ") + key.name);
    lw::program().desktop.pressKey(key.code, key.shift, key.ascii);
}

// A form of the menus, as a tester opens one to work on it.
void openForm(SessionInput& in, SessionTrace& trace) {
    std::vector<const lw::MenuEntry*> forms;
    for (const lw::MenuEntry& entry : lw::menuTable())
        if (entry.opensForm[0] != '\0') forms.push_back(&entry);
    const lw::MenuEntry& entry = *forms[in.pick(forms.size())];
    lw::Form* frame = lw::program().desktop.frame();
    lw::MenuItem* item = frame ? frame->findMenu(entry.item) : nullptr;
    if (!item || !item->enabled || !item->visible) return;
    trace.add(std::string("menu ") + entry.item);
    lw::program().desktop.chooseMenu(item->name);
}

// A K-1 code field, where a function key (F1 on every form) brings the list of the box's codes.
void askForCodes(SessionInput& in, SessionTrace& trace) {
    lw::Form* form = lw::program().desktop.inputForm();
    if (!form) return;
    std::vector<lw::Control*> coded;
    for (const auto& owned : form->controls())
        if (owned->isTextBox() && owned->visible && owned->enabled && owned->tag.size() >= 6 &&
            (owned->tag.compare(0, 6, "K1HELP") == 0 || owned->tag.compare(0, 6, "K1Help") == 0))
            coded.push_back(owned.get());
    if (coded.empty()) return;
    lw::Control& field = *coded[in.pick(coded.size())];
    trace.add("click " + nameOf(field));
    lw::program().desktop.click(field);
    const int key = in.oneIn(2) ? lw::keys::kF1 : lw::keys::kF1 + static_cast<int>(in.pick(12));
    trace.add("key F" + std::to_string(key - lw::keys::kF1 + 1));
    lw::program().desktop.pressKey(key, 0, 0);
}

void act(SessionInput& in, SessionTrace& trace) {
    switch (in.pick(24)) {
        case 0:
        case 1:
        case 2:
            return chooseMenu(in, trace);
        case 3:
        case 4:
        case 5:
            return clickControl(in, trace, false);
        case 6:
        case 7:
            return clickControl(in, trace, true);
        case 8:
        case 9:
        case 10:
            return typeText(in, trace);
        case 11: {
            const std::string text = lw::fuzz::fieldText(in);
            trace.add("paste \"" + lw::fuzz::printable(text) + "\"");
            return lw::program().desktop.paste(text);
        }
        case 12:
        case 13:
            return pressKey(trace, kKeys[in.pick(std::size(kKeys))]);
        case 14: {
            // A function key in a field.
            clickControl(in, trace, true);
            const int key = lw::keys::kF1 + static_cast<int>(in.pick(12));
            trace.add("key F" + std::to_string(key - lw::keys::kF1 + 1));
            return lw::program().desktop.pressKey(key, 0, 0);
        }
        case 20:
            return openForm(in, trace);
        case 21:
            return askForCodes(in, trace);
        case 22:
        case 23:
            // A field filled and left, as a tester goes through a form.
            clickControl(in, trace, true);
            typeText(in, trace);
            return pressKey(trace, kKeys[0]);
        default:
            return pressFrameButton(in, trace);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    static const fs::path root = madeFolder("ledgerwick-session-fuzz");
    lw::fuzz::allowedReports();
    SessionInput in(bytes, size);
    SessionTrace trace;
    // Each session starts on a machine of its own: nothing one session saved steers the next.
    std::error_code ec;
    fs::remove_all(root, ec);
    fs::create_directories(root / "forms", ec);
    lw::fuzz::writeFile((root / "a_file").string(), "not a folder\n");
    const lw::fuzz::MachineSetup setup = setUpMachine(in, trace, root);
    lw::fuzz::SessionUi ui(in, trace, root.string());
    ui.setNoPrinter(setup.printers.empty());
    lw::fuzz::SessionMachine machine(setup);
    try {
        lw::Program program(ui, machine);
        lw::registerAllForms();
        lw::loadFrame();
        for (int step = 0; step < 64 && !in.exhausted(); ++step) act(in, trace);
    } catch (const lw::ProgramEnded&) {
        // Quit, the close box or a refused start: the session is over, as it may be.
    } catch (...) {
        std::fprintf(stderr, "\nA fault escaped the program's own handling.\n");
        trace.print();
        std::abort();
    }
    // To see what a seed or a found input does: LW_SESSION_TRACE=1 session_fuzz <file>.
    if (std::getenv("LW_SESSION_TRACE")) trace.print();
    return 0;
}
