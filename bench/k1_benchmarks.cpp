// The K-1 forms: the page follows the focus, so a Tab across the limit of a column turns the page.

#include <benchmark/benchmark.h>

#include "bench_program.h"
#include "model/containers.h"
#include "model/desktop.h"
#include "model/program.h"

namespace lw::bench {
namespace {

// Tab from the last row of the Top page to the first of the Bottom page and Shift+Tab back: each step
// validates the field left, turns the page and gives the new field its focus look.
void K1TabAcrossPages(benchmark::State& state, const std::string& formName, int lastTopRow) {
    OpenedForm opened(state, formName);
    if (!opened.form) return;
    Desktop& desktop = opened.bench.program->desktop;
    Control& tabs = opened.form->at("SSTab1");
    desktop.setFocus(opened.form->at("Text3", lastTopRow));
    for (auto _ : state) {
        desktop.tab(false);
        if (tabOf(tabs) != 1) {
            state.SkipWithError("Tab did not turn to the Bottom page");
            break;
        }
        desktop.tab(true);
        if (tabOf(tabs) != 0) {
            state.SkipWithError("Shift+Tab did not turn back to the Top page");
            break;
        }
    }
    // Two page turns an iteration.
    state.counters["turns"] = benchmark::Counter(2.0 * static_cast<double>(state.iterations()),
                                                 benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

}  // namespace

void registerK1Benchmarks() {
    for (const char* name : {"TF_K11041", "TF_K11065", "TF_K11120S"})
        benchmark::RegisterBenchmark((std::string("K1TabAcrossPages/") + name).c_str(), K1TabAcrossPages,
                                     std::string(name), 13)
            ->Unit(benchmark::kMicrosecond);
}

}  // namespace lw::bench
