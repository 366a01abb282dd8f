#include "session_ports.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "diagnostics/error_report_form.h"
#include "model/app_error.h"
#include "model/program.h"
#include "session_files.h"
#include "session_texts.h"

namespace lw::fuzz {

namespace {

namespace fs = std::filesystem;

std::vector<Control*> visibleOf(const Form& form, ControlKind kind) {
    std::vector<Control*> found;
    for (const auto& owned : form.controls())
        if (owned->kind == kind && owned->visible && owned->enabled) found.push_back(owned.get());
    return found;
}

void click(Control& control) { program().desktop.click(control); }

void type(const std::string& text) {
    for (char c : text) program().desktop.typeCharacter(c);
}

bool startsWith(const std::string& text, const std::string& lead) {
    return text.compare(0, lead.size(), lead) == 0;
}

}  // namespace

void SessionTrace::print() const {
    std::fprintf(stderr, "The session, step by step:\n");
    for (const std::string& line : lines_) std::fprintf(stderr, "  %s\n", line.c_str());
}

void SessionUi::runModal(Form& form) {
    if (form.name() == "F8_ErrLog") {
        judgeReport(form);
        answerReport(form);
    } else if (form.name() == "F6_K1Help") {
        answerCodeList(form);
    } else {
        answerAnyBox(form);
    }
    // A box whose answer left it open (a list row that chooses nothing, a copy with no description)
    // is answered again; the desktop closes one that is still open after that.
    for (int again = 0; again < 3 && form.isLoaded(); ++again) answerAnyBox(form);
}

void SessionUi::judgeReport(Form& form) {
    const auto& report = dynamic_cast<const ErrorReportForm&>(form);
    const ShownReport seen{report.reportModule, std::atoi(report.reportErrorNumber.c_str()),
                           report.reportErrorText};
    const AllowedReport* entry = allowingEntry(seen, facts_);
    trace_.add("error report: " + printable(seen.module) + " error " + report.reportErrorNumber + ": " +
               printable(seen.description) + (entry ? " (allowed: " + entry->rule + ")" : ""));
    if (entry) return;
    std::fprintf(stderr,
                 "\nAn error report that no rule of the program calls for:\n  %s error %s: %s\n  form: %s\n",
                 printable(seen.module).c_str(), report.reportErrorNumber.c_str(),
                 printable(seen.description).c_str(), printable(report.reportFormName).c_str());
    trace_.print();
    std::abort();
}

void SessionUi::answerReport(Form& report) {
    Control* description = report.find("Text1");
    switch (in_.pick(4)) {
        case 0:
            if (description) {
                click(*description);
                type(anyText(in_, 30));
            }
            [[fallthrough]];
        case 1:
            trace_.add("  copy the report");
            if (Control* copy = report.find("cmdClip")) click(*copy);
            break;
        default:
            break;
    }
    if (report.isLoaded())
        if (Control* exit = report.find("cmdExit")) click(*exit);
}

// A tester picks a code of the list, the header row, or Cancel.
void SessionUi::answerCodeList(Form& list) {
    Control* grid = list.find("Grid1");
    const std::size_t rows = grid ? grid->items.size() : 0;
    const std::size_t row = in_.pick(rows + 1);
    if (row < rows) {
        trace_.add("  pick row " + std::to_string(row) + " of the code list: " + printable(grid->items[row]));
        program().desktop.choose(*grid, grid->items[row]);
        return;
    }
    trace_.add("  cancel the code list");
    if (Control* cancel = list.find("cmdCancel")) click(*cancel);
}

void SessionUi::answerAnyBox(Form& box) {
    if (!box.isLoaded()) return;
    const std::vector<Control*> fields = visibleOf(box, ControlKind::TextBox);
    if (!fields.empty() && in_.oneIn(3)) {
        Control& field = *fields[in_.pick(fields.size())];
        // A box's input may name a file: it takes letters and digits only, so it stays in its folder.
        const std::string text = safeName(in_, 16);
        trace_.add("  type \"" + text + "\" into " + box.name() + "." + field.name);
        click(field);
        type(text);
    }
    const std::vector<Control*> buttons = visibleOf(box, ControlKind::CommandButton);
    if (buttons.empty() || !box.isLoaded()) return;
    Control& pressed = *buttons[in_.pick(buttons.size())];
    trace_.add("  press " + printable(pressed.caption) + " on " + box.name());
    click(pressed);
}

bool SessionUi::printForm(const Form& form, const std::string& printer) {
    const bool taken = !noPrinter_ && !in_.oneIn(5);
    facts_.printerRefused = !taken;
    trace_.add("  print " + form.name() + " on \"" + printable(printer) +
               "\": " + (taken ? "taken" : "refused"));
    return taken;
}

bool SessionUi::openDocument(const std::string& path) {
    const bool opened = !in_.oneIn(3);
    facts_.guideRefused = !opened;
    trace_.add("  open document " + printable(path) + ": " + (opened ? "opened" : "refused"));
    return opened;
}

std::optional<std::string> SessionUi::fileDialog(const FileDialogRequest& request) {
    if (in_.oneIn(6)) {
        trace_.add(std::string("  cancel the ") + (request.save ? "save" : "open") + " dialog");
        return std::nullopt;
    }
    const std::string path = request.save ? savePath(request) : openPath(request);
    trace_.add(std::string("  ") + (request.save ? "save as " : "open ") + printable(path));
    return path;
}

// In the folder the dialog starts in when that is one of the session's, else in the session's own.
std::string SessionUi::savePath(const FileDialogRequest& request) {
    std::error_code ec;
    const std::string folder =
        startsWith(request.startFolder, root_ + "/") && fs::is_directory(request.startFolder, ec)
            ? request.startFolder
            : root_ + "/forms";
    std::string name;
    switch (in_.pick(4)) {
        case 0: {
            // A file that is there already: the program asks what to do with it.
            std::vector<std::string> files;
            for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec))
                if (it->is_regular_file(ec)) files.push_back(it->path().filename().string());
            if (!files.empty()) name = files[in_.pick(files.size())];
            break;
        }
        case 1: {
            static const char* const kExtensions[] = {".venturo", ".taxForm", ".txt", ""};
            name = safeName(in_, 12) + kExtensions[in_.pick(4)];
            break;
        }
        default:
            break;
    }
    if (name.empty()) name = request.proposedName;
    for (char& c : name)
        if (c == '/' || c == '\0') c = '_';
    if (name.empty() || name == "." || name == "..") name = "F";
    return folder + "/" + name;
}

// Any file of the session's disk, the INF files included, or a data file made up from the input.
std::string SessionUi::openPath(const FileDialogRequest&) {
    std::string path;
    if (in_.oneIn(3)) {
        std::vector<std::string> files;
        std::error_code ec;
        for (fs::recursive_directory_iterator it(root_, ec), end; !ec && it != end; it.increment(ec))
            if (it->is_regular_file(ec)) files.push_back(it->path().string());
        if (!files.empty()) path = files[in_.pick(files.size())];
    }
    if (path.empty()) {
        path = root_ + "/forms/opened_" + std::to_string(++openedFiles_) +
               (in_.oneIn(2) ? ".venturo" : ".taxForm");
        const std::string bytes = dataFile(in_);
        writeFile(path, bytes);
        trace_.add("  a data file of " + std::to_string(bytes.size()) +
                   " bytes: " + printable(bytes.substr(0, 300)));
    }
    facts_.lastOpenedFile = path;
    return path;
}

void SessionUi::quit() { throw ProgramEnded{}; }

std::optional<std::string> SessionMachine::environment(const std::string& name) {
    if (name == "UserName") return setup_.user;
    if (name == "ComputerName") return std::string("FUZZPC");
    return std::nullopt;
}

}  // namespace lw::fuzz
