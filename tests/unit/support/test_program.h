#pragma once
// A program for unit tests: ports that answer boxes from a queue, a fixed clock, a temporary root with
// the shipped INF files, and the frame with its legend.

#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "fixed_platform.h"
#include "model/ports.h"
#include "model/program.h"

namespace lw::testing {

class TestUi : public UiPort {
public:
    void runModal(Form& form) override;
    void copyPictureToClipboard(Form& form) override { pictures.push_back(form.name()); }
    std::string clipboardText() override { return clipboard; }
    void setClipboardText(const std::string& text) override { clipboard = text; }
    bool openDocument(const std::string& path) override {
        opened.push_back(path);
        return true;
    }
    void quit() override;
    // The next queued answer of the file dialogs: a path, or nothing for Cancel; Cancel when none is queued.
    std::optional<std::string> fileDialog(const FileDialogRequest& request) override {
        fileDialogs.push_back(request);
        if (fileAnswers.empty()) return std::nullopt;
        std::optional<std::string> answer = fileAnswers.front();
        fileAnswers.pop_front();
        return answer;
    }

    std::deque<std::optional<std::string>> fileAnswers;
    std::vector<FileDialogRequest> fileDialogs;  // every open or save dialog asked for, in turn
    std::deque<std::string> answers;  // captions, taken by the boxes in turn; the default button otherwise
    // Codes, taken by the lists of K-1 codes in turn: the row with that code is clicked; "cancel" or no
    // answer presses Cancel.
    std::deque<std::string> k1Answers;
    // Buttons (cmdSave, cmdNewSequence, cmdExit), pressed on the forms for a file that exists in turn; with
    // none queued the form is left without a button.
    std::deque<std::string> saveFormPresses;
    // Every list of K-1 codes shown: its caption, then its rows (header first), cells joined by tabs.
    std::vector<std::vector<std::string>> k1Lists;
    std::vector<std::string> boxes;    // the text of every box shown
    std::vector<std::string> reports;  // module and description of every error report
    std::vector<std::string> pictures;
    std::vector<std::string> opened;
    std::string clipboard;
    bool ended = false;

private:
    void answerK1List(Form& list);
};

using TestPlatform = FixedPlatform;

// A started program: the frame is loaded (with whatever forms are registered), in a fresh root.
class TestProgram {
public:
    TestProgram();
    ~TestProgram();

    // Starts the frame; call after setting the clock, the user or the printers.
    void start();
    Form& frame();

    TestUi ui;
    TestPlatform platform;
    std::unique_ptr<Program> program;
    std::filesystem::path root;
};

// The folder of the shipped data files of the source tree.
std::string shippedDataFolder();

}  // namespace lw::testing
