#pragma once
// The screen and the machine of a fuzzed session. The screen answers every box, list and dialog from the
// input as a tester would, and judges each error report it is shown against the allowed list; the
// machine is one day, one user, a set of printers and one of the two editions (or the test path).

#include <optional>
#include <string>
#include <vector>

#include "model/ports.h"
#include "session_input.h"
#include "session_reports.h"

namespace lw::fuzz {

// What happened in the session, step by step, for the message of a fault found.
class SessionTrace {
public:
    void add(const std::string& line) { lines_.push_back(line); }
    // Writes the steps to stderr.
    void print() const;

private:
    std::vector<std::string> lines_;
};

class SessionUi : public UiPort {
public:
    SessionUi(SessionInput& in, SessionTrace& trace, const std::string& root)
        : in_(in), trace_(trace), root_(root) {}

    void runModal(Form& form) override;
    void copyPictureToClipboard(Form&) override {}
    bool printForm(const Form& form, const std::string& printer) override;
    std::string clipboardText() override { return clipboard_; }
    void setClipboardText(const std::string& text) override { clipboard_ = text; }
    bool openDocument(const std::string& path) override;
    std::optional<std::string> fileDialog(const FileDialogRequest& request) override;
    void quit() override;

    // The machine has no printer: a page never reaches one.
    void setNoPrinter(bool none) {
        facts_.printerRefused = none;
        noPrinter_ = none;
    }

private:
    void judgeReport(Form& report);
    void answerReport(Form& report);
    void answerCodeList(Form& list);
    void answerAnyBox(Form& box);
    std::string savePath(const FileDialogRequest& request);
    std::string openPath(const FileDialogRequest& request);

    SessionInput& in_;
    SessionTrace& trace_;
    std::string root_;
    std::string clipboard_;
    SessionFacts facts_;
    bool noPrinter_ = false;
    int openedFiles_ = 0;
};

struct MachineSetup {
    std::string executableName;
    std::string executableFolder;
    std::optional<std::string> user;
    DateTime today;
    std::vector<std::string> printers;
    std::string commandLine;
    std::string root;
};

class SessionMachine : public PlatformPort {
public:
    explicit SessionMachine(MachineSetup setup) : setup_(std::move(setup)) {}

    DateTime now() override { return setup_.today; }
    std::optional<std::string> environment(const std::string& name) override;
    std::string executableName() override { return setup_.executableName; }
    std::string executableFolder() override { return setup_.executableFolder; }
    std::string commandLine() override { return setup_.commandLine; }
    std::string rootFolder() override { return setup_.root; }
    bool earlierInstanceRunning() override { return false; }
    void activateEarlierInstance(const std::string&) override {}
    void sleep(int) override {}
    std::vector<std::string> printers() override { return setup_.printers; }
    int screenWidthTwips() override { return 19200; }

private:
    MachineSetup setup_;
};

}  // namespace lw::fuzz
