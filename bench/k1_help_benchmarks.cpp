// The list of K-1 codes: from the key in a code field to the code picked and the focus on its amount,
// through the reading of the shipped K1Help.inf and the building of the list.

#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>
#include <string>

#include "bench_program.h"
#include "forms/k1_help.h"
#include "model/form.h"

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
    K1_SaveInfo(form);
    for (auto _ : state) {
        code.text.clear();
        desktop.setFocus(code);
        const auto start = Clock::now();
        desktop.dispatch([&] { K1_Help_KeyDown(form, code); });
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        if (code.text.empty()) {
            state.SkipWithError("no code was picked from the list");
            break;
        }
    }
}

}  // namespace

void registerK1HelpBenchmarks() {
    for (const char* section : {"K1-1041-Box9", "K1-1065-Box15", "K1-1065-Box20", "K1-1120S-Box13"}) {
        benchmark::RegisterBenchmark((std::string("OpenK1CodeList/") + section).c_str(), OpenK1CodeList,
                                     std::string(section))
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
}

}  // namespace lw::bench
