#include "test_program.h"

#include <cstdlib>

#include "diagnostics/error_report_form.h"
#include "diagnostics/message_box.h"
#include "model/app_error.h"
#include "shell/frame_window_model.h"
#include "text/case.h"
#include "text/pieces.h"

#ifndef LW_SOURCE_DIR
#error "LW_SOURCE_DIR names the source tree"
#endif

namespace lw::testing {

std::string shippedDataFolder() { return std::string(LW_SOURCE_DIR) + "/data"; }

void TestUi::runModal(Form& form) {
    if (auto* box = dynamic_cast<MessageBoxForm*>(&form)) {
        boxes.push_back(box->record().message);
        std::string caption;
        if (!answers.empty()) {
            caption = answers.front();
            answers.pop_front();
        } else if (Control* fallback = box->defaultButtonControl()) {
            caption = fallback->caption;
        } else {
            caption = box->cmd1.caption;
        }
        if (Control* button = box->buttonWithCaption(caption)) program().desktop.click(*button);
        return;
    }
    if (form.name() == "F6_K1Help") return answerK1List(form);
    if (form.name() == "F7_Save" && !saveFormPresses.empty()) {
        Control* button = form.find(saveFormPresses.front());
        saveFormPresses.pop_front();
        if (button) program().desktop.click(*button);
        return;
    }
    if (auto* report = dynamic_cast<ErrorReportForm*>(&form)) {
        reports.push_back(report->reportModule + ": " + report->reportErrorText);
        report->unload();
    }
}

void TestUi::answerK1List(Form& list) {
    Control* grid = list.find("Grid1");
    std::vector<std::string> shown{list.caption};
    if (grid) shown.insert(shown.end(), grid->items.begin(), grid->items.end());
    k1Lists.push_back(shown);
    std::string code = "cancel";
    if (!k1Answers.empty()) {
        code = k1Answers.front();
        k1Answers.pop_front();
    }
    if (grid && code != "cancel") {
        for (std::size_t row = 1; row < grid->items.size(); ++row) {
            const std::string& entry = grid->items[row];
            if (text::trim(entry.substr(0, entry.find('\t'))) != code) continue;
            program().desktop.choose(*grid, entry);
            return;
        }
    }
    if (Control* cancel = list.find("cmdCancel")) program().desktop.click(*cancel);
}

void TestUi::quit() {
    ended = true;
    throw ProgramEnded{};
}

TestProgram::TestProgram() {
    std::string pattern = (std::filesystem::temp_directory_path() / "lw-unit-XXXXXX").string();
    root = mkdtemp(pattern.data());
    platform.root = root.string();
    platform.appFolder = shippedDataFolder();
    program = std::make_unique<Program>(ui, platform);
    resetMessageBoxes();
}

TestProgram::~TestProgram() {
    program.reset();
    std::error_code ec;
    std::filesystem::remove_all(root, ec);
}

void TestProgram::start() {
    try {
        loadFrame();
    } catch (const ProgramEnded&) {
    }
}

Form& TestProgram::frame() { return *program->desktop.frame(); }

}  // namespace lw::testing
