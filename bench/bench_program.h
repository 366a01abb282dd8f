#pragma once
// A program for the benchmarks: ports that click the default button of every box, a clock that stands
// still, sleeps recorded but never slept, a fresh temporary root and the shipped data folder.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/ports.h"
#include "model/program.h"

namespace lw::bench {

class BenchUi : public UiPort {
public:
    void runModal(Form& form) override;
    // The picture drawn and put on the system clipboard, as the window does.
    void copyPictureToClipboard(Form& form) override;
    std::string clipboardText() override { return clipboard; }
    void setClipboardText(const std::string& text) override { clipboard = text; }
    bool openDocument(const std::string&) override { return true; }
    void quit() override;

    std::string clipboard;
    std::vector<std::string> reports;  // module and description of every error report
};

class BenchPlatform : public PlatformPort {
public:
    DateTime now() override { return DateTime{2025, 6, 10, 9, 0, 0}; }
    std::optional<std::string> environment(const std::string& name) override {
        if (name == "UserName") return std::string("BENCH");
        if (name == "ComputerName") return std::string("BENCHPC");
        return std::nullopt;
    }
    std::string executableName() override { return "Ledgerwick_Venturo"; }
    std::string executableFolder() override { return appFolder; }
    std::string commandLine() override { return {}; }
    std::string rootFolder() override { return root; }
    bool earlierInstanceRunning() override { return false; }
    void activateEarlierInstance(const std::string&) override {}
    void sleep(int milliseconds) override { slept += milliseconds; }  // counted, not slept
    std::vector<std::string> printers() override { return {}; }
    int screenWidthTwips() override { return 19200; }

    std::string appFolder;
    std::string root;
    long slept = 0;
};

// A program in a new temporary root, removed again with it. start() registers the forms and loads the frame.
class BenchProgram {
public:
    BenchProgram();
    ~BenchProgram();
    BenchProgram(const BenchProgram&) = delete;
    BenchProgram& operator=(const BenchProgram&) = delete;

    // False when the program ended during start-up.
    bool start();

    BenchUi ui;
    BenchPlatform platform;
    std::unique_ptr<Program> program;
    std::filesystem::path root;
};

// A form opened in a started program, or null with the benchmark failed.
struct OpenedForm {
    BenchProgram bench;
    Form* form = nullptr;

    OpenedForm(benchmark::State& state, const std::string& formName);
};

// The forms of the catalogue that have a drawing.
std::vector<std::string> drawnForms();

// Sets the withholding rates of the W-2 as a configured machine has them.
void setWithholdingRates(Globals& g);

}  // namespace lw::bench
