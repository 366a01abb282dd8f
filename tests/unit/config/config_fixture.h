#pragma once

#include "fixed_platform.h"
// A fresh program on fake ports for each test of the configuration layer: the screen answers boxes from
// a queue (or with their default button) and leaves report forms by Exit; the machine has a fixed clock
// and a settable list of printers; the INF files lie in a scratch folder.

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <deque>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "diagnostics/error_report_form.h"
#include "diagnostics/message_box.h"
#include "model/program.h"
#include "store/inf_store.h"

namespace lw::test {

class ConfigUi : public UiPort {
public:
    // The next message box is answered with the button of this caption.
    void queueAnswer(const std::string& caption) { answers_.push_back(caption); }

    void runModal(Form& form) override {
        if (auto* box = dynamic_cast<MessageBoxForm*>(&form)) {
            Control* button = box->defaultButtonControl();
            if (!answers_.empty()) {
                button = box->buttonWithCaption(answers_.front());
                answers_.pop_front();
            }
            if (button) program().desktop.click(*button);
            return;
        }
        if (auto* report = dynamic_cast<ErrorReportForm*>(&form)) program().desktop.click(report->cmdExit);
    }
    void copyPictureToClipboard(Form&) override {}
    std::string clipboardText() override { return {}; }
    void setClipboardText(const std::string&) override {}
    bool openDocument(const std::string&) override { return false; }
    void quit() override { ++quitCalls; }

    int quitCalls = 0;

private:
    std::deque<std::string> answers_;
};

// The fixed machine of every unit test, with this suite's clock.
struct ConfigPlatform : lw::testing::FixedPlatform {
    ConfigPlatform() { clock = DateTime{2025, 6, 15, 10, 0, 0}; }
};

// Figures of three years, as the shipped file lays them out.
inline const char* const kTestSSMC =
    "[2025]\r\nSSRate=6.2\r\nSSMax=176100\r\nMCInitRate=1.45\r\nMCChgRateAfterSingle=200000\r\n"
    "MCChgRateAfterMFS=125000\r\nMCChgRateAfterMFJ=250000\r\nMCChangeRateAfter=200000\r\nMCRateAfter=2.35\r\n"
    "MCPartBPremium=2220.00\r\nMCPartBIncome=106000\r\n"
    "[2026]\r\nSSRate=6.2\r\nSSMax=184500\r\nMCInitRate=1.45\r\nMCChgRateAfterSingle=200000\r\n"
    "MCChgRateAfterMFS=125000\r\nMCChgRateAfterMFJ=250000\r\nMCChangeRateAfter=200000\r\nMCRateAfter=2.35\r\n"
    "MCPartBPremium=2434.80\r\nMCPartBIncome=109000\r\n"
    "[20XX]\r\nSSRate=7.65\r\nSSMax=190000\r\nMCInitRate=1.5\r\nMCChgRateAfterSingle=210000\r\n"
    "MCChgRateAfterMFS=130000\r\nMCChgRateAfterMFJ=260000\r\nMCChangeRateAfter=210000\r\nMCRateAfter=2.4\r\n"
    "MCPartBPremium=2500.00\r\nMCPartBIncome=110000\r\n";

// The text of a Data Error's box, as the logger lays it out.
inline std::string dataErrorText(const std::string& proc, int number, const std::string& description) {
    return "Procedure Name:        " + proc + "\r" + "Error Number:          " + std::to_string(number) +
           "\r" + "Error Description:     " + description + "\r";
}

class ConfigTest : public ::testing::Test {
protected:
    void SetUp() override {
        static std::atomic<int> counter{0};
        folder_ =
            std::filesystem::temp_directory_path() /
            ("lw_config_" + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()) +
             "_" + std::to_string(counter++));
        std::filesystem::create_directories(folder_);
        resetMessageBoxes();
        resetErrorReports();
        boxObserver_ = addMessageBoxObserver([this](const MessageBoxRecord& box) { boxes.push_back(box); });
        reportObserver_ =
            addErrorReportObserver([this](const ErrorReportRecord& r) { reports.push_back(r); });
        program_ = std::make_unique<Program>(ui, platform);
        Globals& globals = g();
        globals.process.userNameUpper = "TESTER";
        globals.edition.userInfFile = file("UserVenturo.inf");
        globals.edition.ssmcInfFile = file("SSMC.inf");
        globals.edition.formsInfFile = file("Forms.inf");
        globals.edition.fileExtension = ".venturo";
        writeFile(globals.edition.ssmcInfFile, kTestSSMC);
    }

    void TearDown() override {
        program_.reset();
        removeMessageBoxObserver(boxObserver_);
        removeErrorReportObserver(reportObserver_);
        std::error_code ec;
        std::filesystem::remove_all(folder_, ec);
    }

    Globals& g() { return program_->g; }
    Desktop& desktop() { return program_->desktop; }
    std::string file(const std::string& name) const { return (folder_ / name).string(); }

    static void writeFile(const std::string& path, const std::string& bytes) {
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        out << bytes;
    }
    static std::string readFile(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }

    std::string userInf(const std::string& key) {
        return store::readInfValue("TESTER", key, "", g().edition.userInfFile);
    }
    void setUserInf(const std::string& key, const std::string& value) {
        store::writeInfValue("TESTER", key, value, g().edition.userInfFile);
    }
    std::string ssmc(const std::string& year, const std::string& key) {
        return store::readInfValue(year, key, "", g().edition.ssmcInfFile);
    }

    ConfigUi ui;
    ConfigPlatform platform;
    std::vector<MessageBoxRecord> boxes;
    std::vector<ErrorReportRecord> reports;

private:
    std::filesystem::path folder_;
    std::unique_ptr<Program> program_;
    int boxObserver_ = 0;
    int reportObserver_ = 0;
};

}  // namespace lw::test
