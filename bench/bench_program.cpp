#include "bench_program.h"

#include <cstdlib>

#include "diagnostics/error_report_form.h"
#include "diagnostics/message_box.h"
#include "forms/register_forms.h"
#include "model/app_error.h"
#include "shell/form_lifecycle.h"
#include "shell/frame_window_model.h"
#include "ui/clipboard_picture.h"

#ifndef LW_SOURCE_DIR
#error "LW_SOURCE_DIR names the source tree"
#endif

namespace lw::bench {

void BenchUi::copyPictureToClipboard(Form& form) { ui::copyFormPicture(form); }

void BenchUi::runModal(Form& form) {
    if (auto* box = dynamic_cast<MessageBoxForm*>(&form)) {
        Control* button = box->defaultButtonControl();
        if (!button) button = &box->cmd1;
        program().desktop.click(*button);
        return;
    }
    // The list of K-1 codes: the first code is clicked.
    if (form.name() == "F6_K1Help") {
        Control* grid = form.find("Grid1");
        if (grid && grid->items.size() > 1) program().desktop.choose(*grid, grid->items[1]);
        return;
    }
    if (auto* report = dynamic_cast<ErrorReportForm*>(&form)) {
        reports.push_back(report->reportModule + ": " + report->reportErrorText);
        report->unload();
    }
}

void BenchUi::quit() { throw ProgramEnded{}; }

BenchProgram::BenchProgram() {
    std::string pattern = (std::filesystem::temp_directory_path() / "lw-bench-XXXXXX").string();
    root = mkdtemp(pattern.data());
    platform.root = root.string();
    platform.appFolder = std::string(LW_SOURCE_DIR) + "/data";
    program = std::make_unique<Program>(ui, platform);
    resetMessageBoxes();
}

BenchProgram::~BenchProgram() {
    program.reset();
    std::error_code ec;
    std::filesystem::remove_all(root, ec);
}

bool BenchProgram::start() {
    registerAllForms();
    try {
        return loadFrame() != nullptr;
    } catch (const ProgramEnded&) {
        return false;
    }
}

void setWithholdingRates(Globals& g) {
    g.rates.set(RateItem::SocialSecurityRate, "6.2");
    g.rates.set(RateItem::SocialSecurityWageBase, "168,600");
    g.rates.set(RateItem::MedicareRate, "1.45");
    g.rates.set(RateItem::MedicareChangePoint, "200,000");
    g.rates.set(RateItem::MedicareRateAfter, "2.35");
}

OpenedForm::OpenedForm(benchmark::State& state, const std::string& formName) {
    if (!bench.start()) {
        state.SkipWithError("the program ended during start-up");
        return;
    }
    setWithholdingRates(bench.program->g);
    form = openCatalogueForm(formName);
    if (!form) state.SkipWithError("the form did not open");
}

}  // namespace lw::bench
