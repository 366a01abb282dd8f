#include "headless/headless_ui.h"

#include <algorithm>

#include "diagnostics/message_box.h"
#include "headless/form_pictures.h"
#include "model/app_error.h"
#include "model/program.h"
#include "text/case.h"
#include "text/cp1252.h"
#include "text/pieces.h"

namespace lw::headless {

namespace {

std::string forOutput(const std::string& cp1252) {
    std::string utf8 = text::cp1252ToUtf8(cp1252);
    std::string out;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        if (utf8[i] == '\r' && i + 1 < utf8.size() && utf8[i + 1] == '\n') continue;
        if (utf8[i] == '\r' || utf8[i] == '\n')
            out += "\\n";
        else
            out.push_back(utf8[i]);
    }
    return out;
}

Control* visibleButton(Form& form, const std::string& caption) {
    for (const auto& control : form.controls()) {
        if (control->kind == ControlKind::CommandButton && control->visible && control->caption == caption)
            return control.get();
    }
    return nullptr;
}

}  // namespace

void HeadlessUi::runModal(Form& form) {
    if (text::equalsNoCase(form.name(), "F9_MBX")) return answerMessageBox(form);
    if (text::equalsNoCase(form.name(), "F8_ErrLog")) return answerErrorReport(form);
    if (text::equalsNoCase(form.name(), "F7_Save")) return answerSaveForm(form);
    if (text::equalsNoCase(form.name(), "F6_K1Help")) return answerK1List(form);
    *session_.out << "form " << form.name() << " closed: the script has no answers for it\n";
}

void HeadlessUi::pressButton(Form& form, const std::string& caption, int line) {
    Control* button = visibleButton(form, caption);
    if (!button) {
        if (!session_.scriptError)
            session_.scriptError = {line, "the box has no button \"" + text::cp1252ToUtf8(caption) + "\""};
        return;
    }
    program().desktop.click(*button);
}

void HeadlessUi::answerMessageBox(Form& box) {
    auto* mbx = dynamic_cast<MessageBoxForm*>(&box);
    if (!mbx) return;
    const MessageBoxRecord shown = mbx->record();
    ShownBox record{text::cp1252ToUtf8(shown.title), shown.number, text::cp1252ToUtf8(shown.message), ""};

    int line = 0;
    std::string caption;
    if (auto answer = session_.takeAnswer("answer")) {
        line = answer->line;
        caption = answer->words.empty() ? "" : answer->words[0];
    } else {
        // With no queued answer the default button is pressed; a default that no button bears leaves the
        // first.
        Control* fallback = mbx->defaultButtonControl();
        if (!fallback) fallback = mbx->button(1);
        caption = fallback ? fallback->caption : "";
    }
    record.answer = text::cp1252ToUtf8(caption);
    *session_.out << "box \"" << forOutput(shown.title) << "\"";
    if (shown.number != 800) *session_.out << " #" << shown.number;
    *session_.out << ": " << forOutput(shown.message) << " -> " << record.answer << "\n";
    session_.boxes.push_back(record);
    session_.lastBox = record;
    pressButton(box, caption, line);
}

void HeadlessUi::answerErrorReport(Form& report) {
    auto label = [&](int index) {
        Control* c = report.find("Label2", index);
        return c ? c->caption : std::string();
    };
    ShownReport shown{label(1), label(3), label(4)};
    session_.reports.push_back(shown);
    *session_.out << "report \"" << forOutput(report.caption) << "\" module " << forOutput(shown.module)
                  << " error " << forOutput(shown.number) << ": " << forOutput(shown.description);

    auto answer = session_.takeAnswer("report");
    if (!answer) {
        *session_.out << " -> Exit\n";
        pressButton(report, "Exit", 0);
        return;
    }
    std::string description = answer->words.empty() ? "" : answer->words[0];
    bool clip = answer->words.size() > 1 && text::equalsNoCase(answer->words[1], "clip");
    *session_.out << " -> " << (clip ? "Copy to Clipboard" : "Exit") << "\n";
    if (Control* box = report.find("Text1")) {
        program().desktop.click(*box);
        for (char c : description) program().desktop.typeCharacter(c);
    }
    if (clip) {
        if (Control* button = report.find("cmdClip")) program().desktop.click(*button);
    }
    // The report stays open after a copy; the operator leaves it with Exit.
    if (report.isLoaded()) pressButton(report, "Exit", answer->line);
}

// The form for a file that exists: keep the name (or type a new one), take the next number, or leave.
void HeadlessUi::answerSaveForm(Form& save) {
    auto answer = session_.takeAnswer("filesave");
    std::string choice = answer && !answer->words.empty() ? answer->words[0] : "exit";
    Control* name = save.find("Text1");
    *session_.out << "file exists form for \"" << forOutput(name ? name->text : "") << "\" -> " << choice;
    if (answer && answer->words.size() > 1) *session_.out << " \"" << forOutput(answer->words[1]) << "\"";
    *session_.out << "\n";
    const char* button = choice == "save" ? "cmdSave" : choice == "sequence" ? "cmdNewSequence" : "cmdExit";
    if (choice == "save" && answer->words.size() > 1 && name) {
        program().desktop.click(*name);
        name->select(0, static_cast<int>(name->text.size()));
        for (char c : answer->words[1]) program().desktop.typeCharacter(c);
    }
    if (Control* pressed = save.find(button)) program().desktop.click(*pressed);
}

// The list of K-1 codes: the row of the queued code is clicked; "cancel", no answer or a code the list
// does not hold press Cancel, the last being a fault of the script.
void HeadlessUi::answerK1List(Form& list) {
    Control* grid = list.find("Grid1");
    ShownK1List shown{text::cp1252ToUtf8(list.caption), {}};
    std::vector<std::string> codes;
    const std::size_t rows = grid ? grid->items.size() : 0;
    for (std::size_t row = 1; row < rows; ++row) {
        std::vector<std::string> cells = text::split(grid->items[row], "\t");
        cells.resize(4);
        shown.rows.push_back(text::cp1252ToUtf8(cells[0] + "|" + cells[1] + "|" + cells[2] + "|" + cells[3]));
        codes.push_back(text::trim(cells[0]));
    }
    session_.lastK1List = shown;

    auto answer = session_.takeAnswer("k1");
    const std::string code = answer && !answer->words.empty() ? answer->words[0] : "cancel";
    const auto chosen = std::find(codes.begin(), codes.end(), code);
    const bool cancel = code == "cancel" || chosen == codes.end();
    *session_.out << "k1 list \"" << forOutput(list.caption) << "\" with " << codes.size() << " codes:";
    for (const std::string& each : codes) *session_.out << " " << forOutput(each);
    *session_.out << " -> " << (cancel ? "cancel" : forOutput(code)) << "\n";
    if (cancel && code != "cancel" && !session_.scriptError)
        session_.scriptError = {answer->line, "the list has no code \"" + text::cp1252ToUtf8(code) + "\""};
    if (!cancel) {
        const std::size_t row = static_cast<std::size_t>(chosen - codes.begin()) + 1;
        return program().desktop.choose(*grid, grid->items[row]);
    }
    if (Control* button = list.find("cmdCancel")) program().desktop.click(*button);
}

void HeadlessUi::copyPictureToClipboard(Form& form) {
    session_.clipboardPicture = drawForm(form);
    *session_.out << "clipboard picture of " << form.name() << " " << session_.clipboardPicture->width()
                  << "x" << session_.clipboardPicture->height() << "\n";
}

// The printer is a file: each page is counted, and written as a PDF where the script asked for one.
bool HeadlessUi::printForm(const Form& form, const std::string& printer) {
    ++session_.printedPages;
    session_.printedPicture = drawForm(form);
    *session_.out << "printed " << form.name() << " on \"" << forOutput(printer) << "\"\n";
    if (session_.printTo.empty()) return true;
    return printFormToPdf(form, session_.printTo);
}

std::optional<std::string> HeadlessUi::fileDialog(const FileDialogRequest& request) {
    auto answer = session_.takeAnswer("file");
    const bool cancel = !answer || answer->words.empty() || answer->words[0] == "cancel";
    session_.lastDialog =
        text::cp1252ToUtf8(request.title) + " | " + text::cp1252ToUtf8(request.proposedName);
    *session_.out << (request.save ? "save" : "open") << " dialog \"" << forOutput(request.title) << "\"";
    if (!request.proposedName.empty())
        *session_.out << " proposing \"" << forOutput(request.proposedName) << "\"";
    if (!request.startFolder.empty()) *session_.out << " in " << forOutput(request.startFolder);
    if (cancel) {
        *session_.out << " -> cancel\n";
        return std::nullopt;
    }
    std::string chosen = answer->words[0];
    if (chosen == "proposed" && answer->words.size() > 1)
        chosen = answer->words[1] + "/" + request.proposedName;
    *session_.out << " -> " << forOutput(chosen) << "\n";
    return chosen;
}

bool HeadlessUi::openDocument(const std::string& path) {
    *session_.out << "open document " << text::cp1252ToUtf8(path) << "\n";
    return true;
}

void HeadlessUi::quit() {
    session_.ended = true;
    throw ProgramEnded{};
}

void HeadlessUi::inputRefused(const std::string& why) { *session_.out << "input refused: " << why << "\n"; }

}  // namespace lw::headless
