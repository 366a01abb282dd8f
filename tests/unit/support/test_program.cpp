#include "test_program.h"

#include <cstdlib>

#include "diagnostics/error_report_form.h"
#include "diagnostics/message_box.h"
#include "model/app_error.h"
#include "shell/frame_window_model.h"
#include "text/case.h"

#ifndef LW_SOURCE_DIR
#error "LW_SOURCE_DIR names the source tree"
#endif

namespace lw::testing {

std::string shippedDataFolder() { return std::string(LW_SOURCE_DIR) + "/data"; }

void TestUi::runModal(Form& form) {
    if (auto* box = dynamic_cast<F9_MBX*>(&form)) {
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
    if (auto* report = dynamic_cast<F8_ErrLog*>(&form)) {
        reports.push_back(report->F8_Module + ": " + report->F8_ErrDesc);
        report->unload();
    }
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
