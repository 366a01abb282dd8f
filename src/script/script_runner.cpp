#include "script/script_runner.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "model/app_error.h"
#include "model/keys.h"
#include "model/program.h"
#include "script/script_platform.h"
#include "script/script_ui.h"
#include "text/words.h"
#include "ui/clipboard_picture.h"
#include "forms/register_forms.h"
#include "shell/form_registry.h"
#include "shell/frame_form.h"
#include "shell/frame_window_model.h"
#include "shell/menu_table.h"
#include "store/inf_store.h"
#include "text/case.h"
#include "text/cp1252.h"

namespace lw::script {

namespace {

bool isSetUpCommand(const std::string& word) {
    static const char* const setUp[] = {"root", "edition", "args", "user", "computer", "today", "printers", "running"};
    for (const char* name : setUp)
        if (word == name) return true;
    return false;
}

bool isAnswerCommand(const std::string& word) {
    return word == "answer" || word == "file" || word == "filesave" || word == "k1" || word == "report";
}

std::string codePage(const std::string& utf8) {
    auto converted = text::utf8ToCp1252(utf8);
    if (!converted) throw ScriptError("the text \"" + utf8 + "\" holds a character outside the code page");
    return *converted;
}

std::string utf8(const std::string& cp1252) { return text::cp1252ToUtf8(cp1252); }

// Line ends shown as \r and \n, so that a failure stays on one line of the output.
std::string escapeLineEnds(const std::string& text) {
    std::string out;
    for (char c : text) {
        if (c == '\r')
            out += "\\r";
        else if (c == '\n')
            out += "\\n";
        else
            out.push_back(c);
    }
    return out;
}

std::string flag(bool value) { return value ? "True" : "False"; }

std::string number(double value) {
    std::ostringstream s;
    s << value;
    return s.str();
}

struct ControlReference {
    std::string name;
    int index = kNoIndex;
    std::string property;
};

ControlReference parseReference(const std::string& word) {
    ControlReference ref;
    std::string rest = word;
    std::size_t close = rest.rfind(')');
    std::size_t dot = rest.find('.', close == std::string::npos ? 0 : close);
    if (dot != std::string::npos) {
        ref.property = rest.substr(dot + 1);
        rest.erase(dot);
    }
    std::size_t open = rest.find('(');
    if (open != std::string::npos) {
        if (rest.back() != ')') throw ScriptError("bad control name " + word);
        std::string digits = rest.substr(open + 1, rest.size() - open - 2);
        if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos)
            throw ScriptError("bad control index in " + word);
        ref.index = std::stoi(digits);
        rest.erase(open);
    }
    if (rest.empty()) throw ScriptError("bad control name " + word);
    ref.name = rest;
    return ref;
}

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

std::optional<DateTime> parseToday(const std::vector<std::string>& words) {
    DateTime t;
    char dash1 = 0, dash2 = 0;
    std::istringstream date(words.at(1));
    if (!(date >> t.year >> dash1 >> t.month >> dash2 >> t.day) || dash1 != '-' || dash2 != '-')
        throw ScriptError("bad date " + words[1] + ", want YYYY-MM-DD");
    if (words.size() > 2) {
        char c1 = 0, c2 = 0;
        std::istringstream time(words[2]);
        if (!(time >> t.hour >> c1 >> t.minute >> c2 >> t.second) || c1 != ':' || c2 != ':')
            throw ScriptError("bad time " + words[2] + ", want HH:MM:SS");
    }
    if (t.month < 1 || t.month > 12 || t.day < 1 || t.day > 31 || t.hour > 23 || t.minute > 59 || t.second > 59)
        throw ScriptError("bad date " + words[1]);
    return t;
}

void need(const std::vector<std::string>& words, std::size_t count, const char* usage) {
    if (words.size() < count) throw ScriptError(std::string("usage: ") + usage);
}

}  // namespace

ScriptRunner::ScriptRunner(std::ostream& out, std::string executableFolder) : out_(out) {
    session_.out = &out_;
    session_.executableFolder = std::move(executableFolder);
}

ScriptRunner::~ScriptRunner() {
    program_.reset();
    platform_.reset();
    ui_.reset();
}

int ScriptRunner::run(std::istream& script) {
    int status = 0;
    std::string raw;
    while (std::getline(script, raw)) {
        ++line_;
        if (!raw.empty() && raw.back() == '\r') raw.pop_back();
        lineText_ = raw;
        try {
            std::vector<std::string> words = text::splitWords(raw);
            if (words.empty()) continue;
            lineText_ = raw.substr(raw.find_first_not_of(" \t"));
            execute(words);
            if (session_.scriptError) {
                auto [line, why] = *session_.scriptError;
                session_.scriptError.reset();
                throw ScriptError(why + (line ? " (answer of line " + std::to_string(line) + ")" : ""));
            }
        } catch (const text::WordsError& e) {
            out_ << "ERROR line " << line_ << ": " << e.what() << "\n";
            status = 2;
            break;
        } catch (const ScriptError& e) {
            out_ << "ERROR line " << line_ << ": " << e.what() << "\n";
            status = 2;
            break;
        } catch (const AppError& e) {
            out_ << "ERROR line " << line_ << ": the program faulted outside its error handling: " << e.number()
                 << " " << utf8(e.description()) << "\n";
            status = 2;
            break;
        } catch (const std::exception& e) {
            out_ << "ERROR line " << line_ << ": the program faulted: " << e.what() << "\n";
            status = 2;
            break;
        }
    }
    out_ << passed_ << " passed, " << failed_ << " failed\n";
    if (status == 0 && failed_ > 0) status = 1;
    return status;
}

void ScriptRunner::execute(const std::vector<std::string>& words) {
    const std::string& command = words[0];
    if (isSetUpCommand(command)) return setUp(words);
    if (command == "start") {
        if (started_) throw ScriptError("the program has started already");
        return start();
    }
    if (isAnswerCommand(command)) return queueAnswer(words);
    if (command == "write" || command == "remove" || command == "mkdir") return prepareFile(words);
    if (!started_) start();
    if (command == "expect") return check(words);
    if (command == "show" || command == "dump" || command == "save-clipboard" || command == "print-to" ||
        command == "snapshot")
        return showValue(words);
    act(words);
}

void ScriptRunner::setUp(const std::vector<std::string>& words) {
    if (started_) throw ScriptError(words[0] + " must come before start");
    const std::string& command = words[0];
    if (command == "running") {
        session_.running = true;
        return;
    }
    if (command == "printers") {
        session_.printers.assign(words.begin() + 1, words.end());
        for (const auto& printer : session_.printers) codePage(printer);
        return;
    }
    need(words, 2, (command + " VALUE").c_str());
    if (command == "root") session_.root = words[1];
    if (command == "edition") session_.edition = words[1];
    if (command == "args") session_.args = words[1];
    if (command == "user") session_.user = words[1];
    if (command == "computer") session_.computer = words[1];
    if (command == "today") session_.today = parseToday(words);
}

void ScriptRunner::ensureRoot() {
    if (session_.root.empty()) {
        std::string pattern = (std::filesystem::temp_directory_path() / "ledgerwick-script-XXXXXX").string();
        if (!mkdtemp(pattern.data())) throw ScriptError("cannot make a temporary root folder");
        session_.root = pattern;
    }
    std::error_code ec;
    std::filesystem::create_directories(session_.root, ec);
    if (ec) throw ScriptError("cannot make the root folder " + session_.root + ": " + ec.message());
}

// Lays out files as a test needs them: a user INF file of an earlier run, a file where a folder belongs.
void ScriptRunner::prepareFile(const std::vector<std::string>& words) {
    ensureRoot();
    need(words, 2, (words[0] + " PATH").c_str());
    std::filesystem::path target = path(words[1]);
    std::error_code ec;
    if (words[0] == "remove") {
        std::filesystem::remove_all(target, ec);
    } else if (words[0] == "mkdir") {
        std::filesystem::create_directories(target, ec);
    } else {
        need(words, 3, "write PATH \"CONTENT\"");
        if (target.has_parent_path()) std::filesystem::create_directories(target.parent_path(), ec);
        std::ofstream file(target, std::ios::binary | std::ios::trunc);
        std::string bytes = codePage(words[2]);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!file) throw ScriptError("cannot write " + words[1]);
        return;
    }
    if (ec) throw ScriptError("cannot " + words[0] + " " + words[1] + ": " + ec.message());
}

void ScriptRunner::start() {
    started_ = true;
    ensureRoot();
    out_ << "start " << session_.edition << " in " << session_.root << "\n";
    ui_ = std::make_unique<ScriptUi>(session_);
    platform_ = std::make_unique<ScriptPlatform>(session_);
    program_ = std::make_unique<Program>(*ui_, *platform_);
    registerAllForms();
    try {
        loadFrame();
    } catch (const ProgramEnded&) {
        session_.ended = true;
    }
    if (session_.ended) out_ << "the program ended\n";
}

void ScriptRunner::requireRunning(const std::string& what) const {
    if (session_.ended) throw ScriptError("the program has ended; it cannot " + what);
}

void ScriptRunner::queueAnswer(const std::vector<std::string>& words) {
    QueuedAnswer answer{line_, words[0], {}};
    for (std::size_t i = 1; i < words.size(); ++i) answer.words.push_back(codePage(words[i]));
    if (words[0] == "answer") need(words, 2, "answer \"CAPTION\"");
    if (words[0] == "file") need(words, 2, "file \"PATH\" or file cancel");
    if (words[0] == "filesave") {
        need(words, 2, "filesave save [\"NEW NAME\"] | sequence | exit");
        if (words[1] != "save" && words[1] != "sequence" && words[1] != "exit")
            throw ScriptError("filesave takes save, sequence or exit");
    }
    if (words[0] == "k1") need(words, 2, "k1 \"CODE\" or k1 cancel");
    if (words[0] == "report") {
        need(words, 2, "report \"DESCRIPTION\" [clip/exit]");
        if (words.size() > 2 && words[2] != "clip" && words[2] != "exit")
            throw ScriptError("report takes clip or exit after the description");
    }
    if (words[0] == "file" && words[1] != "cancel") answer.words[0] = codePage(path(words[1]));
    session_.answers.push_back(std::move(answer));
}

Form& ScriptRunner::inputForm() const {
    Form* form = program_->desktop.inputForm();
    if (!form) throw ScriptError("no form is on the screen");
    return *form;
}

Control& ScriptRunner::control(const std::string& reference) const {
    ControlReference ref = parseReference(reference);
    Desktop& desktop = program_->desktop;
    for (Form* form : {desktop.topModal(), desktop.activeChild(), desktop.frame()}) {
        if (!form) continue;
        if (Control* found = form->find(ref.name, ref.index)) return *found;
    }
    throw ScriptError("no control " + reference + " on the screen");
}

void ScriptRunner::act(const std::vector<std::string>& words) {
    const std::string& command = words[0];
    requireRunning(command);
    Desktop& desktop = program_->desktop;
    try {
        if (command == "menu") {
            need(words, 2, "menu ITEM");
            auto* frame = dynamic_cast<F0_MDI*>(desktop.frame());
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
            desktop.chooseMenu(item->name);
        } else if (command == "button") {
            need(words, 2, "button CAPTION");
            Form* frame = desktop.frame();
            Control* pressed = nullptr;
            for (Control* button : frame ? frame->arrayOf("cmdBtn") : std::vector<Control*>{})
                if (text::equalsNoCase(button->caption, codePage(words[1]))) pressed = button;
            if (!pressed) throw ScriptError("no button " + words[1] + " on the frame");
            if (!pressed->enabled) throw ScriptError("the button " + words[1] + " is not available yet");
            desktop.click(*pressed);
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
            desktop.click(control(words[1]), words.size() > 2 ? mouseButton(words[2]) : MouseButton::Left);
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

void ScriptRunner::expectThat(bool held, const std::string& got) {
    if (held) {
        ++passed_;
        return;
    }
    ++failed_;
    out_ << "FAIL line " << line_ << ": " << lineText_ << ": got " << got << "\n";
}

std::string ScriptRunner::path(const std::string& word) const {
    if (word.rfind("~root/", 0) == 0) return session_.root + "/" + word.substr(6);
    if (word == "~root") return session_.root;
    return word;
}

std::string ScriptRunner::property(const Control& c, const std::string& name) const {
    auto is = [&](const char* p) { return text::equalsNoCase(name, p); };
    if (is("Text")) return utf8(c.text);
    if (is("Caption")) return utf8(c.caption);
    if (is("Tag")) return utf8(c.tag);
    if (is("ToolTipText")) return utf8(c.toolTipText);
    if (is("BackColor")) return std::to_string(c.backColor);
    if (is("ForeColor")) return std::to_string(c.foreColor);
    if (is("Visible")) return flag(c.visible);
    if (is("Enabled")) return flag(c.enabled);
    if (is("Locked")) return flag(c.locked);
    if (is("TabStop")) return flag(c.tabStop);
    if (is("TabIndex")) return std::to_string(c.tabIndex);
    if (is("Alignment")) return std::to_string(c.alignment);
    if (is("MaxLength")) return std::to_string(c.maxLength);
    if (is("SelStart")) return std::to_string(c.selStart);
    if (is("SelLength")) return std::to_string(c.selLength);
    if (is("Left")) return std::to_string(c.left);
    if (is("Top")) return std::to_string(c.top);
    if (is("Width")) return std::to_string(c.width);
    if (is("Height")) return std::to_string(c.height);
    if (is("FontName")) return utf8(c.fontName);
    if (is("FontSize")) return number(c.fontSize);
    if (is("FontBold")) return flag(c.fontBold);
    if (is("Value")) return flag(c.value);
    if (is("ListIndex")) return std::to_string(c.listIndex);
    throw ScriptError("unknown property " + name);
}

std::string ScriptRunner::global(const std::string& name) const {
    const Globals& g = program_->g;
    auto is = [&](const char* n) { return text::equalsNoCase(name, n); };
    if (text::startsWithNoCase(name, "TaxYears(") && name.back() == ')') {
        std::string digits = name.substr(9, name.size() - 10);
        if (digits.size() != 1 || digits[0] < '0' || digits[0] > '3') throw ScriptError("bad index in " + name);
        return utf8(g.TaxYears[digits[0] - '0']);
    }
    if (text::startsWithNoCase(name, "LegendColors(") && name.back() == ')') {
        std::string digits = name.substr(13, name.size() - 14);
        if (digits.size() != 1 || !std::isdigit(static_cast<unsigned char>(digits[0])))
            throw ScriptError("bad index in " + name);
        return std::to_string(g.LegendColors[digits[0] - '0']);
    }
    if (is("FormKey")) return utf8(g.FormKey);
    if (is("CurrentFileName")) return utf8(g.CurrentFileName);
    if (is("TaxYearIndex")) return std::to_string(g.TaxYearIndex);
    if (is("SSRate")) return utf8(g.SSRate);
    if (is("SSMax")) return utf8(g.SSMax);
    if (is("MCInitRate")) return utf8(g.MCInitRate);
    if (is("MCChgRateAfter")) return utf8(g.MCChgRateAfter);
    if (is("MCRateAfter")) return utf8(g.MCRateAfter);
    if (is("MCPartBPremium")) return utf8(g.MCPartBPremium);
    if (is("MCPartBIncome")) return utf8(g.MCPartBIncome);
    if (is("FilingStatus")) return utf8(g.FilingStatus);
    if (is("LastFieldKey")) return utf8(g.LastFieldKey);
    if (is("UserNameUC")) return utf8(g.UserNameUC);
    if (is("ComputerNameUC")) return utf8(g.ComputerNameUC);
    if (is("UserInfFile")) return utf8(g.UserInfFile);
    if (is("FormsInfFile")) return utf8(g.FormsInfFile);
    if (is("SSMCInfFile")) return utf8(g.SSMCInfFile);
    if (is("K1HelpInfFile")) return utf8(g.K1HelpInfFile);
    if (is("PicturesFolder")) return utf8(g.PicturesFolder);
    if (is("UserGuideFile")) return utf8(g.UserGuideFile);
    if (is("FileExtension")) return utf8(g.FileExtension);
    if (is("FileFilter")) {
        std::string shown = g.FileFilter;
        for (char& c : shown)
            if (c == '\0') c = '|';
        return utf8(shown);
    }
    if (is("LastOpenFolder")) return utf8(g.LastOpenFolder);
    if (is("LastSaveFolder")) return utf8(g.LastSaveFolder);
    if (is("bDebug")) return flag(g.bDebug);
    if (is("bStartup")) return flag(g.bStartup);
    if (is("bQuitting")) return flag(g.bQuitting);
    if (is("CommandWords")) return utf8(g.CommandWords);
    if (is("FormRecord")) return utf8(g.FormRecord);
    if (is("SaveResult")) return utf8(g.SaveResult);
    if (is("CurrentForm")) return g.CurrentForm ? g.CurrentForm->name() : "";
    if (auto* frame = dynamic_cast<F0_MDI*>(program_->desktop.frame())) {
        if (is("VersionMajor")) return frame->VersionMajor;
        if (is("VersionFull")) return frame->VersionFull;
        if (is("TaxFormsFolder")) return utf8(frame->TaxFormsFolder);
        if (is("IconFile")) return utf8(frame->IconFile);
        if (is("DevAppFolder")) return utf8(frame->DevAppFolder);
        if (is("DevSharedFolder")) return utf8(frame->DevSharedFolder);
        if (is("FrameCaption")) return utf8(frame->caption);
        if (is("bTaskbarHidden")) return flag(frame->bTaskbarHidden);
    }
    throw ScriptError("unknown global " + name);
}

void ScriptRunner::check(const std::vector<std::string>& words) {
    need(words, 2, "expect ...");
    const std::string& what = words[1];
    auto contains = [](const std::string& hay, const std::string& part) { return hay.find(part) != std::string::npos; };

    if (what == "quit") return expectThat(session_.ended, session_.ended ? "ended" : "still running");
    if (what == "clipboard")
        return expectThat(session_.clipboardPicture.has_value(),
                          session_.clipboardPicture ? "a picture" : "no picture");
    if (what == "exists" || what == "missing") {
        need(words, 3, "expect exists|missing PATH");
        std::error_code ec;
        bool there = std::filesystem::exists(path(words[2]), ec);
        return expectThat(there == (what == "exists"), there ? "it exists" : "it is missing");
    }
    if (what == "file") {
        need(words, 4, "expect file PATH \"CONTENT\"");
        std::ifstream in(path(words[2]), std::ios::binary);
        if (!in) return expectThat(false, "no such file");
        std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        std::string shown = utf8(bytes);
        return expectThat(shown == words[3], "\"" + shown + "\"");
    }
    if (what == "ini") {
        need(words, 6, "expect ini PATH SECTION KEY \"VALUE\"");
        std::string value = utf8(store::ReadINF(codePage(words[3]), codePage(words[4]), "", path(words[2])));
        return expectThat(value == words[5], "\"" + value + "\"");
    }
    if (what == "any-message") {
        need(words, 3, "expect any-message \"PART\"");
        bool held = false;
        for (std::size_t i = session_.boxesSeen; i < session_.boxes.size(); ++i)
            held = held || contains(session_.boxes[i].text, words[2]);
        std::size_t shown = session_.boxes.size() - session_.boxesSeen;
        session_.boxesSeen = session_.boxes.size();
        return expectThat(held, std::to_string(shown) + " boxes, none with that text");
    }
    if (what == "message" || what == "no-message") {
        bool shownSince = session_.boxes.size() > session_.boxesSeen;
        std::string last = shownSince ? escapeLineEnds(session_.boxes.back().text) : "";
        session_.boxesSeen = session_.boxes.size();
        if (what == "no-message") return expectThat(!shownSince, "a box \"" + last + "\"");
        need(words, 3, "expect message \"PART\"");
        return expectThat(shownSince && contains(session_.boxes.back().text, words[2]),
                          shownSince ? "\"" + last + "\"" : "no box");
    }
    if (what == "title") {
        need(words, 3, "expect title \"PART\"");
        std::string title = session_.lastBox ? session_.lastBox->title : "";
        return expectThat(session_.lastBox && contains(title, words[2]),
                          session_.lastBox ? "\"" + title + "\"" : "no box");
    }
    if (what == "dialog") {
        need(words, 3, "expect dialog \"PART\"");
        std::string dialog = session_.lastDialog.value_or("");
        return expectThat(session_.lastDialog && contains(dialog, words[2]),
                          session_.lastDialog ? "\"" + dialog + "\"" : "no dialog");
    }
    if (what == "report") {
        need(words, 3, "expect report \"PART\"");
        if (session_.reports.empty()) return expectThat(false, "no report");
        std::string all;
        for (const ShownReport& r : session_.reports) {
            if (contains(utf8(r.module), words[2]) || contains(utf8(r.number), words[2]) ||
                contains(utf8(r.description), words[2]))
                return expectThat(true, "");
            all += (all.empty() ? "" : "; ") + utf8(r.module) + " " + utf8(r.number) + " " + utf8(r.description);
        }
        return expectThat(false, "\"" + all + "\"");
    }
    if (!program_) throw ScriptError("the program is not running");
    if (what == "menu") {
        need(words, 4, "expect menu ITEM.Enabled|Visible|Caption VALUE");
        auto dot = words[2].find('.');
        if (dot == std::string::npos) throw ScriptError("expect menu needs ITEM.PROP");
        auto* frame = program_->desktop.frame();
        MenuItem* item = frame ? frame->findMenu(words[2].substr(0, dot)) : nullptr;
        if (!item) throw ScriptError("no menu item " + words[2].substr(0, dot));
        std::string prop = words[2].substr(dot + 1);
        std::string value = text::equalsNoCase(prop, "Enabled")   ? flag(item->enabled)
                            : text::equalsNoCase(prop, "Visible") ? flag(item->visible)
                            : text::equalsNoCase(prop, "Caption") ? utf8(item->caption)
                                                                  : throw ScriptError("unknown menu property " + prop);
        return expectThat(value == words[3], "\"" + value + "\"");
    }
    if (what == "form") {
        need(words, 3, "expect form NAME");
        Form* active = program_->desktop.activeChild();
        std::string name = active ? active->name() : "none";
        return expectThat(text::equalsNoCase(name, words[2]), name);
    }
    if (what == "focus") {
        need(words, 3, "expect focus CTL");
        Control& wanted = control(words[2]);
        Control* focused = program_->desktop.focus();
        return expectThat(focused == &wanted, focused ? focused->key() : "nothing");
    }
    if (what == "global") {
        need(words, 4, "expect global NAME VALUE");
        std::string value = global(words[2]);
        return expectThat(value == words[3], "\"" + value + "\"");
    }
    need(words, 3, "expect CTL \"TEXT\" or expect CTL.PROP VALUE");
    ControlReference ref = parseReference(what);
    Control& c = control(what);
    std::string value = ref.property.empty() ? utf8(c.shownText()) : property(c, ref.property);
    bool held = value == words[2];
    if (!held && (text::equalsNoCase(ref.property, "BackColor") || text::equalsNoCase(ref.property, "ForeColor"))) {
        char* end = nullptr;
        unsigned long wanted = std::strtoul(words[2].c_str(), &end, 0);
        held = end && *end == '\0' && std::to_string(wanted) == value;
    }
    expectThat(held, "\"" + value + "\"");
}

void ScriptRunner::showValue(const std::vector<std::string>& words) {
    const std::string& command = words[0];
    if (command == "print-to") {
        need(words, 2, "print-to PATH");
        session_.printTo = path(words[1]);
        return;
    }
    if (command == "save-clipboard") {
        need(words, 2, "save-clipboard PATH");
        if (!session_.clipboardPicture) throw ScriptError("the clipboard holds no picture");
        if (!session_.clipboardPicture->save(QString::fromStdString(path(words[1])), "PNG"))
            throw ScriptError("cannot write " + words[1]);
        return;
    }
    requireRunning(command);
    if (command == "snapshot") {
        need(words, 2, "snapshot PATH [ZOOM]");
        double zoom = words.size() > 2 ? std::atof(words[2].c_str()) : 1.0;
        if (zoom <= 0 || zoom > 8) throw ScriptError("the zoom must lie between 0 and 8");
        QImage picture = ui::renderForm(inputForm(), zoom);
        if (!picture.save(QString::fromStdString(path(words[1])), "PNG")) throw ScriptError("cannot write " + words[1]);
        return;
    }
    if (command == "dump") {
        Form& form = inputForm();
        out_ << "form " << form.name() << " \"" << utf8(form.caption) << "\"\n";
        for (const auto& c : form.controls()) {
            out_ << "  " << c->key() << " " << controlKindName(c->kind) << " \"" << utf8(c->shownText()) << "\"";
            if (!c->tag.empty()) out_ << " tag \"" << utf8(c->tag) << "\"";
            out_ << "\n";
        }
        return;
    }
    need(words, 2, "show CTL[.PROP]");
    ControlReference ref = parseReference(words[1]);
    Control& c = control(words[1]);
    out_ << words[1] << " = \"" << (ref.property.empty() ? utf8(c.shownText()) : property(c, ref.property))
         << "\"\n";
}

}  // namespace lw::script
