// The checks of a script: one function for each kind of `expect`, found in a table by the word that
// follows `expect`.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "model/program.h"
#include "output/form_print.h"
#include "script/script_runner.h"
#include "script/script_words.h"
#include "shell/frame_form.h"
#include "store/inf_store.h"
#include "text/case.h"

namespace lw::script {

namespace {

bool contains(const std::string& hay, const std::string& part) { return hay.find(part) != std::string::npos; }

// A report as a failure names it: its module, number and description.
std::string shownReport(const headless::ShownReport& report) {
    return utf8(report.module) + " " + utf8(report.number) + " " + utf8(report.description);
}

bool isColour(const std::string& property) {
    return text::equalsNoCase(property, "BackColor") || text::equalsNoCase(property, "ForeColor");
}

// A colour may be written in any base the C library reads (0x00BBGGRR), and is compared as a number.
bool sameColour(const std::string& decimal, const std::string& written) {
    char* end = nullptr;
    unsigned long wanted = std::strtoul(written.c_str(), &end, 0);
    return end && *end == '\0' && std::to_string(wanted) == decimal;
}

std::string menuProperty(const MenuItem& item, const std::string& property) {
    if (text::equalsNoCase(property, "Enabled")) return flag(item.enabled);
    if (text::equalsNoCase(property, "Visible")) return flag(item.visible);
    if (text::equalsNoCase(property, "Caption")) return utf8(item.caption);
    throw ScriptError("unknown menu property " + property);
}

// What a check found: whether it held, and what was there when it did not.
struct Finding {
    bool held;
    std::string got;
};

}  // namespace

// The kinds of `expect`: each says what it found, and the runner counts it and names a failure.
class ScriptRunner::Checks {
public:
    Checks(ScriptRunner& runner, const std::vector<std::string>& words)
        : runner_(runner), session_(runner.session_), words_(words) {}

    Finding run();

private:
    using Check = Finding (Checks::*)();
    struct Kind {
        const char* word;
        Check check;
        bool needsProgram;  // it looks at the program's forms, not only at what the program has shown
    };
    static const Kind* kindNamed(const std::string& word);

    Finding quit();
    Finding clipboard();
    Finding clipboardSize();
    Finding clipboardPixel();
    Finding printedPixel();
    Finding pixel(const std::shared_ptr<const headless::FormPicture>& picture);
    Finding printed();
    Finding exists();
    Finding missing();
    Finding file();
    Finding ini();
    Finding anyMessage();
    Finding message();
    Finding noMessage();
    Finding title();
    Finding dialog();
    Finding k1List();
    Finding report();
    Finding noReport();
    Finding menu();
    Finding printer();
    Finding form();
    Finding focus();
    Finding global();
    Finding controlOrForm();

    static Finding quotedValue(const std::string& value, const std::string& wanted) {
        return {value == wanted, "\"" + value + "\""};
    }
    Desktop& desktop() const { return runner_.program_->desktop; }

    ScriptRunner& runner_;
    headless::Session& session_;
    const std::vector<std::string>& words_;
};

const ScriptRunner::Checks::Kind* ScriptRunner::Checks::kindNamed(const std::string& word) {
    static const Kind kinds[] = {
        {"quit", &Checks::quit, false},
        {"clipboard", &Checks::clipboard, false},
        {"clipboard-size", &Checks::clipboardSize, false},
        {"clipboard-pixel", &Checks::clipboardPixel, false},
        {"printed-pixel", &Checks::printedPixel, false},
        {"printed", &Checks::printed, false},
        {"exists", &Checks::exists, false},
        {"missing", &Checks::missing, false},
        {"file", &Checks::file, false},
        {"ini", &Checks::ini, false},
        {"any-message", &Checks::anyMessage, false},
        {"message", &Checks::message, false},
        {"no-message", &Checks::noMessage, false},
        {"title", &Checks::title, false},
        {"dialog", &Checks::dialog, false},
        {"k1list", &Checks::k1List, false},
        {"report", &Checks::report, false},
        {"no-report", &Checks::noReport, false},
        {"menu", &Checks::menu, true},
        {"printer", &Checks::printer, true},
        {"form", &Checks::form, true},
        {"focus", &Checks::focus, true},
        {"global", &Checks::global, true},
    };
    for (const Kind& kind : kinds)
        if (word == kind.word) return &kind;
    return nullptr;
}

// A word that names no kind of check names a control, or a form with one of its properties.
Finding ScriptRunner::Checks::run() {
    const Kind* kind = kindNamed(words_[1]);
    if ((!kind || kind->needsProgram) && !runner_.program_) throw ScriptError("the program is not running");
    return kind ? (this->*kind->check)() : controlOrForm();
}

Finding ScriptRunner::Checks::quit() { return {session_.ended, session_.ended ? "ended" : "still running"}; }

Finding ScriptRunner::Checks::clipboard() {
    const bool held = session_.clipboardPicture != nullptr;
    return {held, held ? "a picture" : "no picture"};
}

Finding ScriptRunner::Checks::clipboardSize() {
    need(words_, 3, "expect clipboard-size WIDTHxHEIGHT");
    const auto& picture = session_.clipboardPicture;
    const std::string size =
        picture ? std::to_string(picture->width()) + "x" + std::to_string(picture->height()) : "no picture";
    return {size == words_[2], size};
}

Finding ScriptRunner::Checks::clipboardPixel() { return pixel(session_.clipboardPicture); }

Finding ScriptRunner::Checks::printedPixel() { return pixel(session_.printedPicture); }

Finding ScriptRunner::Checks::pixel(const std::shared_ptr<const headless::FormPicture>& picture) {
    need(words_, 5, "expect clipboard-pixel|printed-pixel X Y \"#RRGGBB\"");
    const int x = std::atoi(words_[2].c_str());
    const int y = std::atoi(words_[3].c_str());
    if (!picture) return {false, "no picture"};
    const std::optional<std::string> colour = picture->colourAt(x, y);
    if (!colour) return {false, "a point outside the picture"};
    return {*colour == text::toUpper(words_[4]), *colour};
}

Finding ScriptRunner::Checks::printed() {
    need(words_, 3, "expect printed N");
    const std::string pages = std::to_string(session_.printedPages);
    return {pages == words_[2], pages + " pages"};
}

Finding ScriptRunner::Checks::exists() {
    need(words_, 3, "expect exists|missing PATH");
    std::error_code ec;
    const bool there = std::filesystem::exists(runner_.path(words_[2]), ec);
    return {there, there ? "it exists" : "it is missing"};
}

Finding ScriptRunner::Checks::missing() {
    const Finding there = exists();
    return {!there.held, there.got};
}

Finding ScriptRunner::Checks::file() {
    need(words_, 4, "expect file PATH \"CONTENT\"");
    std::ifstream in(runner_.path(words_[2]), std::ios::binary);
    if (!in) return {false, "no such file"};
    const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return quotedValue(utf8(bytes), words_[3]);
}

Finding ScriptRunner::Checks::ini() {
    need(words_, 6, "expect ini PATH SECTION KEY \"VALUE\"");
    const std::string value =
        store::readInfValue(codePage(words_[3]), codePage(words_[4]), "", runner_.path(words_[2]));
    return quotedValue(utf8(value), words_[5]);
}

// Any box since the last message check may hold the text, not only the last one.
Finding ScriptRunner::Checks::anyMessage() {
    need(words_, 3, "expect any-message \"PART\"");
    bool held = false;
    for (std::size_t i = session_.boxesSeen; i < session_.boxes.size(); ++i)
        held = held || contains(session_.boxes[i].text, words_[2]);
    const std::size_t shown = session_.boxes.size() - session_.boxesSeen;
    session_.boxesSeen = session_.boxes.size();
    return {held, std::to_string(shown) + " boxes, none with that text"};
}

Finding ScriptRunner::Checks::message() {
    const bool shownSince = session_.boxes.size() > session_.boxesSeen;
    session_.boxesSeen = session_.boxes.size();
    need(words_, 3, "expect message \"PART\"");
    if (!shownSince) return {false, "no box"};
    const std::string& last = session_.boxes.back().text;
    return {contains(last, words_[2]), "\"" + escapeLineEnds(last) + "\""};
}

Finding ScriptRunner::Checks::noMessage() {
    const bool shownSince = session_.boxes.size() > session_.boxesSeen;
    const std::string last = shownSince ? escapeLineEnds(session_.boxes.back().text) : "";
    session_.boxesSeen = session_.boxes.size();
    return {!shownSince, "a box \"" + last + "\""};
}

Finding ScriptRunner::Checks::title() {
    need(words_, 3, "expect title \"PART\"");
    if (!session_.lastBox) return {false, "no box"};
    const std::string& shown = session_.lastBox->title;
    return {contains(shown, words_[2]), "\"" + shown + "\""};
}

Finding ScriptRunner::Checks::dialog() {
    need(words_, 3, "expect dialog \"PART\"");
    if (!session_.lastDialog) return {false, "no dialog"};
    const std::string& shown = *session_.lastDialog;
    return {contains(shown, words_[2]), "\"" + shown + "\""};
}

Finding ScriptRunner::Checks::k1List() {
    need(words_, 3, "expect k1list \"PART\"");
    if (!session_.lastK1List) return {false, "no list"};
    const headless::ShownK1List& list = *session_.lastK1List;
    bool held = contains(list.caption, words_[2]);
    for (const std::string& row : list.rows) held = held || contains(row, words_[2]);
    return {held, "\"" + list.caption + "\" with " + std::to_string(list.rows.size()) +
                      " rows, none with that text"};
}

// Any report since the start may hold the text, not only those since the last check.
Finding ScriptRunner::Checks::report() {
    need(words_, 3, "expect report \"PART\"");
    session_.reportsSeen = session_.reports.size();
    if (session_.reports.empty()) return {false, "no report"};
    std::string all;
    for (const headless::ShownReport& r : session_.reports) {
        if (contains(utf8(r.module), words_[2]) || contains(utf8(r.number), words_[2]) ||
            contains(utf8(r.description), words_[2]))
            return {true, ""};
        all += (all.empty() ? "" : "; ") + shownReport(r);
    }
    return {false, "\"" + all + "\""};
}

Finding ScriptRunner::Checks::noReport() {
    std::string since;
    for (std::size_t i = session_.reportsSeen; i < session_.reports.size(); ++i)
        since += (since.empty() ? "" : "; ") + shownReport(session_.reports[i]);
    session_.reportsSeen = session_.reports.size();
    return {since.empty(), "a report \"" + since + "\""};
}

Finding ScriptRunner::Checks::menu() {
    need(words_, 4, "expect menu ITEM.Enabled|Visible|Caption VALUE");
    const std::size_t dot = words_[2].find('.');
    if (dot == std::string::npos) throw ScriptError("expect menu needs ITEM.PROP");
    const std::string name = words_[2].substr(0, dot);
    Form* frame = desktop().frame();
    MenuItem* item = frame ? frame->findMenu(name) : nullptr;
    if (!item) throw ScriptError("no menu item " + name);
    return quotedValue(menuProperty(*item, words_[2].substr(dot + 1)), words_[3]);
}

Finding ScriptRunner::Checks::printer() {
    need(words_, 3, "expect printer \"NAME\"");
    const Program& running = *runner_.program_;
    return quotedValue(utf8(currentPrinter(running.g.choices, running.platform)), words_[2]);
}

Finding ScriptRunner::Checks::form() {
    need(words_, 3, "expect form NAME");
    Form* active = desktop().activeChild();
    const std::string name = active ? active->name() : "none";
    return {text::equalsNoCase(name, words_[2]), name};
}

Finding ScriptRunner::Checks::focus() {
    need(words_, 3, "expect focus CTL");
    Control& wanted = runner_.control(words_[2]);
    Control* focused = desktop().focus();
    return {focused == &wanted, focused ? focused->key() : "nothing"};
}

Finding ScriptRunner::Checks::global() {
    need(words_, 4, "expect global NAME VALUE");
    return quotedValue(runner_.global(words_[2]), words_[3]);
}

Finding ScriptRunner::Checks::controlOrForm() {
    need(words_, 3, "expect CTL \"TEXT\" or expect CTL.PROP VALUE");
    const ControlReference ref = parseReference(words_[1]);
    if (ref.index == kNoIndex && !ref.property.empty() && runner_.isFormName(ref.name))
        return quotedValue(runner_.formProperty(ref.name, ref.property), words_[2]);
    Control& c = runner_.control(words_[1]);
    const std::string value = ref.property.empty() ? utf8(c.shownText()) : runner_.property(c, ref.property);
    const bool held = value == words_[2] || (isColour(ref.property) && sameColour(value, words_[2]));
    return {held, "\"" + value + "\""};
}

void ScriptRunner::check(const std::vector<std::string>& words) {
    need(words, 2, "expect ...");
    const Finding found = Checks(*this, words).run();
    expectThat(found.held, found.got);
}

}  // namespace lw::script
