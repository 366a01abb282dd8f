// The 1095-A's own work: F12 in a month, which validates it, copies it down its column and adds the
// column up, and leaving a month, which adds its column up.

#include <benchmark/benchmark.h>

#include "bench_program.h"
#include "forms/form_1095a.h"
#include "model/form.h"
#include "model/keys.h"

namespace lw::bench {
namespace {

Form1095A* the1095A(OpenedForm& opened, benchmark::State& state) {
    auto* form = dynamic_cast<Form1095A*>(opened.form);
    if (!form) state.SkipWithError("TF_1095A did not open as itself");
    return form;
}

// F12 on January of column A: eleven months filled from it, and the total of all twelve.
void CopyDown1095A(benchmark::State& state) {
    OpenedForm opened(state, "TF_1095A");
    if (!opened.form) return;
    Form1095A* form = the1095A(opened, state);
    if (!form) return;
    Control& january = form->at("Text1", Form1095A::kColumnA.first);
    opened.bench.program->desktop.setFocus(january);
    for (auto _ : state) {
        january.text = "1,234.56";
        int key = keys::kF12;
        form->onKeyDown(january, key, 0);
        if (form->at("Text1", Form1095A::kColumnA.total).text != "$14,814.72") {
            state.SkipWithError("the total is wrong");
            break;
        }
    }
}
BENCHMARK(CopyDown1095A)->Unit(benchmark::kMicrosecond);

// Leaving December of column C with every month filled: the money edit and the column added up.
void LeaveMonth1095A(benchmark::State& state) {
    OpenedForm opened(state, "TF_1095A");
    if (!opened.form) return;
    Form1095A* form = the1095A(opened, state);
    if (!form) return;
    for (int i = Form1095A::kColumnC.first; i <= Form1095A::kColumnC.last; ++i)
        form->at("Text1", i).text = "$99.99";
    Control& december = form->at("Text1", Form1095A::kColumnC.last);
    for (auto _ : state) {
        december.text = "99.99";
        bool cancel = false;
        form->onValidate(december, cancel);
        if (cancel) {
            state.SkipWithError("the edit refused the amount");
            break;
        }
        benchmark::DoNotOptimize(form->at("Text1", Form1095A::kColumnC.total).text);
    }
}
BENCHMARK(LeaveMonth1095A)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lw::bench
