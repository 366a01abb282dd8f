// The measured operations. Each benchmark starts its own program (one runs per process at a time).

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>
#include <vector>

#include "bench_program.h"
#include "catalogue/catalogue_table.h"
#include "catalogue/definitions.h"
#include "documents/record.h"
#include "model/form.h"
#include "shell/form_lifecycle.h"
#include "store/atomic_file.h"

namespace lw::bench {
namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// A fresh program, the forms registered and the frame loaded, in a new root each time.
void StartUp(benchmark::State& state) {
    for (auto _ : state) {
        const auto start = Clock::now();
        auto bench = std::make_unique<BenchProgram>();
        const bool started = bench->start();
        state.SetIterationTime(secondsSince(start));
        if (!started) {
            state.SkipWithError("the program ended during start-up");
            break;
        }
        bench.reset();  // not timed: the clean-up of the temporary root
    }
}
BENCHMARK(StartUp)->UseManualTime()->Unit(benchmark::kMillisecond);

// Opening a form by name, from not loaded to placed in the frame.
void OpenForm(benchmark::State& state, const std::string& formName) {
    BenchProgram bench;
    if (!bench.start()) {
        state.SkipWithError("the program ended during start-up");
        return;
    }
    for (auto _ : state) {
        const auto start = Clock::now();
        Form* form = openCatalogueForm(formName);
        state.SetIterationTime(secondsSince(start));
        if (!form) {
            state.SkipWithError("the form did not open");
            break;
        }
        form->unload();
    }
}

// Leaving the social security wages of the W-2: the money edit and the withholding worked out.
void LeaveField(benchmark::State& state) {
    OpenedForm opened(state, "TF_W2");
    if (!opened.form) return;
    Control& wages = opened.form->at("Text1", 5);
    for (auto _ : state) {
        wages.text = "1234.56";
        bool cancel = false;
        opened.form->onValidate(wages, cancel);
        if (cancel) {
            state.SkipWithError("the edit refused the amount");
            break;
        }
        benchmark::DoNotOptimize(opened.form->at("Text1", 6).text);
    }
}
BENCHMARK(LeaveField)->Unit(benchmark::kMicrosecond);

// Leaving box 4 of the SSA-1099: the money edit, the claim number, and the statement worked out and
// written back in every amount field (budget: under 1 ms).
void LeaveSSAField(benchmark::State& state) {
    OpenedForm opened(state, "TF_SSA1099");
    if (!opened.form) return;
    Form& form = *opened.form;
    form.at("Text1", 1).text = "123-45-6789";
    form.at("Text1", 2).text = "$18,000.00";
    form.at("Text1", 6).text = "$2,000.00";
    form.at("Text1", 9).text = "$1,500.25";
    Control& repaid = form.at("Text1", 3);
    for (auto _ : state) {
        repaid.text = "1234.56";
        bool cancel = false;
        form.onValidate(repaid, cancel);
        if (cancel || form.at("Text1", 5).text != "$14,765.44") {
            state.SkipWithError("the statement did not come out as expected");
            break;
        }
        benchmark::DoNotOptimize(form.at("Text1", 8).text);
    }
}
BENCHMARK(LeaveSSAField)->Unit(benchmark::kMicrosecond);

// Filling every field of the W-2 so that the record has something to carry.
void fillW2(Form& form) {
    Control& wages = form.at("Text1", 5);
    wages.text = "1234.56";
    bool cancel = false;
    form.onValidate(wages, cancel);
}

// Saving the W-2: the record built and written whole.
void SaveFile(benchmark::State& state) {
    OpenedForm opened(state, "TF_W2");
    if (!opened.form) return;
    fillW2(*opened.form);
    const auto path = opened.bench.root / "bench.w2";
    std::string error;
    for (auto _ : state) {
        const std::string bytes =
            buildRecord(opened.form, opened.bench.program->g.document).value_or("") + "\r\n";
        if (!store::writeFileAtomically(path, bytes, error)) {
            state.SkipWithError(error.c_str());
            break;
        }
    }
}
BENCHMARK(SaveFile)->Unit(benchmark::kMicrosecond);

// Opening the saved W-2: the file read into the form it names.
void ReadFile(benchmark::State& state) {
    OpenedForm opened(state, "TF_W2");
    if (!opened.form) return;
    fillW2(*opened.form);
    const auto path = opened.bench.root / "bench.w2";
    std::string error;
    const std::string bytes =
        buildRecord(opened.form, opened.bench.program->g.document).value_or("") + "\r\n";
    if (!store::writeFileAtomically(path, bytes, error)) {
        state.SkipWithError(error.c_str());
        return;
    }
    opened.bench.program->g.document.currentFileName = path.string();
    for (auto _ : state) {
        const Form* read = readDataFile(path.string(), opened.bench.program->parts);
        if (!read || read->name() != "TF_W2") {
            state.SkipWithError(
                ("the file read as " + (read ? read->name() : std::string("nothing"))).c_str());
            break;
        }
    }
}
BENCHMARK(ReadFile)->Unit(benchmark::kMicrosecond);

}  // namespace

std::vector<std::string> drawnForms() {
    std::vector<std::string> forms;
    for (const CatalogueEntry& entry : catalogue())
        if (hasDefinition(entry.form)) forms.push_back(entry.form);
    return forms;
}

void registerFormBenchmarks() {
    for (const std::string& name : drawnForms()) {
        benchmark::RegisterBenchmark(("OpenForm/" + name).c_str(), OpenForm, name)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
}

}  // namespace lw::bench
