// Runs the benchmarks with an off-screen QGuiApplication (the clip needs its fonts), then prints the peak
// memory of the process.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace lw::bench {
void registerFormBenchmarks();
void registerK1Benchmarks();
void registerOutputBenchmarks();
void registerK1HelpBenchmarks();
}  // namespace lw::bench

namespace {

// The VmHWM line of /proc/self/status, in kB; -1 when it cannot be read.
long peakMemoryKb() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind("VmHWM:", 0) == 0) return std::strtol(line.c_str() + 6, nullptr, 10);
    }
    return -1;
}

}  // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QGuiApplication app(argc, argv);
    lw::bench::registerFormBenchmarks();
    lw::bench::registerK1Benchmarks();
    lw::bench::registerOutputBenchmarks();
    lw::bench::registerK1HelpBenchmarks();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    const long peak = peakMemoryKb();
    std::printf("Peak memory (VmHWM): %ld kB = %.1f MB (budget 100 MB)\n", peak, peak / 1024.0);
    return 0;
}
