// The list of K-1 codes: from the key in a code field to the code picked and the focus on its amount,
// through the reading of the shipped K1Help.inf and the building of the list.

#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>
#include <string>

#include "bench_program.h"
#include "forms/k1_help.h"
#include "forms/k1_help_form.h"
#include "model/form.h"
#include "ui/clipboard_picture.h"

namespace lw::bench {
namespace {

using Clock = std::chrono::steady_clock;

void OpenK1CodeList(benchmark::State& state, const std::string& section) {
    BenchProgram bench;
    if (!bench.start()) {
        state.SkipWithError("the program ended during start-up");
        return;
    }
    Desktop& desktop = bench.program->desktop;
    auto owned = std::make_unique<Form>("TF_K11065");
    Control& code = owned->add(ControlKind::TextBox, "Text2", 0);
    code.tag = "K1HELP\xB7" + section;
    owned->add(ControlKind::TextBox, "Text3", 0).tag = "MONEY";
    Form& form = desktop.load(std::move(owned));
    const K1DesignValues kept = keptDesignValues(form);
    const std::string& infFile = bench.program->parts.edition.k1HelpInfFile;
    K1HelpMembers members;
    for (auto _ : state) {
        code.text.clear();
        desktop.setFocus(code);
        const auto start = Clock::now();
        desktop.dispatch([&] { openK1CodeList(form, code, kept, infFile, members); });
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        if (code.text.empty()) {
            state.SkipWithError("no code was picked from the list");
            break;
        }
    }
}

// The list made and drawn whole, as the dialog paints it when it opens.
void DrawK1CodeList(benchmark::State& state, const std::string& section) {
    BenchProgram bench;
    if (!bench.start()) {
        state.SkipWithError("the program ended during start-up");
        return;
    }
    Desktop& desktop = bench.program->desktop;
    const std::string& infFile = bench.program->parts.edition.k1HelpInfFile;
    K1HelpMembers members;
    for (auto _ : state) {
        const auto start = Clock::now();
        members.listSectionKey = section;
        Form& list = desktop.load(std::make_unique<K1HelpForm>(members, infFile), false);
        const QImage picture = ui::renderForm(list);
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        desktop.unload(list);
        if (picture.isNull()) {
            state.SkipWithError("the list was not drawn");
            break;
        }
    }
}

}  // namespace

void registerK1HelpBenchmarks() {
    benchmark::RegisterBenchmark("DrawK1CodeList/K1-1065-Box20", DrawK1CodeList, std::string("K1-1065-Box20"))
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    for (const char* section : {"K1-1041-Box9", "K1-1065-Box15", "K1-1065-Box20", "K1-1120S-Box13"}) {
        benchmark::RegisterBenchmark((std::string("OpenK1CodeList/") + section).c_str(), OpenK1CodeList,
                                     std::string(section))
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
}

}  // namespace lw::bench
