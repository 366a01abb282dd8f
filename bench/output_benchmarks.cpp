// The output budgets: a clip from the command to the picture on the clipboard, and a course book of
// saved documents rendered to one PDF.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "bench_program.h"
#include "documents/record.h"
#include "output/screen_clip.h"
#include "render/render_job.h"

namespace lw::bench {
namespace {

namespace fs = std::filesystem;

// The Clip command on a form: cut, restyled, drawn, on the clipboard, and put back.
void Clip(benchmark::State& state, const std::string& formName) {
    OpenedForm opened(state, formName);
    if (!opened.form) return;
    for (auto _ : state) clipCurrentForm(opened.bench.program->parts);
    if (!opened.bench.ui.reports.empty()) state.SkipWithError(opened.bench.ui.reports.front().c_str());
}

// A hundred saved W-2s rendered as one book of a hundred pages.
void RenderHundredW2(benchmark::State& state) {
    std::vector<std::string> files;
    fs::path folder;
    {
        OpenedForm opened(state, "TF_W2");
        if (!opened.form) return;
        folder = opened.bench.root.parent_path() / ("ledgerwick-bench-render-" + std::to_string(::getpid()));
        fs::create_directories(folder);
        opened.form->at("Text1", 0).text = "123-45-6789";
        opened.form->at("Text1", 4).text = "ABC PLUMBING\r\n1 PIPE RD\r\nANYTOWN, OH 44000";
        opened.form->at("Text1", 13).text = "MARY A SAMPLE\r\n12 MAIN ST\r\nANYTOWN, OH 44000";
        for (int i = 0; i < 100; ++i) {
            opened.form->at("Text1", 5).text = std::to_string(40000 + i) + ".00";
            files.push_back((folder / ("w2-" + std::to_string(i) + ".venturo")).string());
            std::ofstream(files.back(), std::ios::binary)
                << buildRecord(opened.form, opened.bench.program->g.document).value_or("") << "\r\n";
        }
    }
    render::RenderOptions options;
    options.year = 2025;
    options.pdf = (folder / "book.pdf").string();
    options.files = files;
    for (auto _ : state) {
        std::ostringstream out, err;
        if (render::renderDocuments(options, LW_SOURCE_DIR "/data", out, err) != 0) {
            state.SkipWithError(err.str().c_str());
            break;
        }
    }
    std::error_code ec;
    fs::remove_all(folder, ec);
}
BENCHMARK(RenderHundredW2)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

void registerOutputBenchmarks() {
    for (const std::string& name : drawnForms()) {
        benchmark::RegisterBenchmark(("Clip/" + name).c_str(), Clip, name)->Unit(benchmark::kMillisecond);
    }
}

}  // namespace lw::bench
