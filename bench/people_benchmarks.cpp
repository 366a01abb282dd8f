// The forms of a case's people: Load TP from a store that holds two taxpayers and seven dependants, and
// the driver's license working out its dates.

#include <benchmark/benchmark.h>

#include <string>

#include "bench_program.h"
#include "model/form.h"
#include "model/program.h"
#include "store/user_inf.h"
#include "taxpayer/load_tp.h"

namespace lw::bench {
namespace {

void storeWholeCase() {
    const ProgramParts& parts = program().parts;
    writeUserInf(parts, "TP1NameAddr",
                 "JOHN Q DOE JR\xBB"
                 "12 MAIN ST\xBB"
                 "ANYTOWN, OH 44000");
    writeUserInf(parts, "TP1SSN", "123-45-6789");
    writeUserInf(parts, "TP1DOB", "03/15/1980");
    writeUserInf(parts, "TP2NameAddr",
                 "MARY DOE\xBB"
                 "12 MAIN ST\xBB"
                 "ANYTOWN, OH 44000");
    writeUserInf(parts, "TP2SSN", "234-56-7890");
    writeUserInf(parts, "TP2DOB", "07/04/1982");
    for (int k = 1; k <= 7; ++k)
        writeUserInf(parts, "Dependent" + std::to_string(k),
                     "CHILD " + std::to_string(k) +
                         "\xB7"
                         "3" +
                         std::to_string(k) + "5-67-890" + std::to_string(k));
}

void LoadTP(benchmark::State& state, const std::string& formName) {
    OpenedForm opened(state, formName);
    if (!opened.form) return;
    storeWholeCase();
    for (auto _ : state) {
        readTaxpayers(opened.bench.program->parts, "TP 1");
        if (opened.form->at("Text1", 0).text.empty() && opened.form->at("Text1", 13).text.empty()) {
            state.SkipWithError("nothing was filled");
            break;
        }
        benchmark::DoNotOptimize(opened.form->at("Text1", 0).text);
    }
}

void LoadTPOnW2(benchmark::State& state) { LoadTP(state, "TF_W2"); }
void LoadTPOnCards(benchmark::State& state) { LoadTP(state, "F2_SS_ITIN"); }

// Leaving a license's birth date: the edit, then the issue date moved off weekends and holidays and the
// expiration date.
void LeaveBirthDate(benchmark::State& state) {
    OpenedForm opened(state, "F3_DL");
    if (!opened.form) return;
    Control& birth = opened.form->at("Text1", 1);
    for (auto _ : state) {
        birth.text = "06/15/1980";
        bool cancel = false;
        opened.form->onValidate(birth, cancel);
        if (cancel || opened.form->at("Text1", 8).text.empty()) {
            state.SkipWithError("the dates were not filled");
            break;
        }
    }
}

}  // namespace

BENCHMARK(LeaveBirthDate)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadTPOnW2)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadTPOnCards)->Unit(benchmark::kMicrosecond);

}  // namespace lw::bench
