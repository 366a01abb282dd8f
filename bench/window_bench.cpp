// The window bench: what the operator feels in the real Qt window. Each figure runs from the delivery
// of the input event to the end of the paint that shows its result; the start figures run from the
// process's start to its first painted frame. Prints "window NAME median MS p90 MS" lines and keeps
// them in a file, against which the next run shows its change.

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "app/window_program.h"
#include "catalogue/catalogue_table.h"
#include "catalogue/definitions.h"
#include "model/program.h"
#include "text/case.h"
#include "ui/frame_window.h"
#include "ui/input_bridge.h"
#include "ui/qt_platform_port.h"

namespace lw::bench {
namespace {

// Twenty runs each. A profile may ask for fewer (--runs N) and for the figures whose names begin with a
// prefix alone (--only PREFIX); such a partial run keeps the last full results as they were.
int kRuns = 20;
std::string onlyPrefix;

bool wanted(const std::string& name) { return name.rfind(onlyPrefix, 0) == 0; }

struct Figure {
    std::string name;
    double median;
    double p90;
    double cpuMedian = -1;  // the process's own processor time, which the machine's load hardly changes
    double cpuP90 = -1;
};

// The processor time of every timed input since the last figure was taken.
std::vector<double> cpuSamples;

double at(std::vector<double>& samples, double q) {
    std::sort(samples.begin(), samples.end());
    return samples[static_cast<std::size_t>(q * (samples.size() - 1) + 0.5)];
}

Figure figureOf(const std::string& name, std::vector<double> samples) {
    Figure figure{name, at(samples, 0.5), at(samples, 0.9)};
    if (!cpuSamples.empty()) {
        figure.cpuMedian = at(cpuSamples, 0.5);
        figure.cpuP90 = at(cpuSamples, 0.9);
    }
    cpuSamples.clear();
    return figure;
}

double processorMs() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return now.tv_sec * 1e3 + now.tv_nsec / 1e6;
}

// Lets Qt deliver what the input left behind, the repaint and its flush to the screen included.
void paintNow() {
    QApplication::sendPostedEvents();
    QApplication::processEvents();
    // The views of replaced forms go as they would between two turns of the event loop.
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

double timed(const std::function<void()>& input) {
    QElapsedTimer clock;
    const double processorBefore = processorMs();
    clock.start();
    input();
    paintNow();
    const double elapsed = clock.nsecsElapsed() / 1e6;
    cpuSamples.push_back(processorMs() - processorBefore);
    return elapsed;
}

void key(int code, const QString& text = QString(), Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* target = QApplication::focusWidget();
    if (!target) return;
    QKeyEvent press(QEvent::KeyPress, code, modifiers, text);
    QApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, code, modifiers, text);
    QApplication::sendEvent(target, &release);
}

void choose(ui::FrameWindow& window, const std::string& item) {
    if (QAction* action = window.menuAction(QString::fromStdString(item))) action->trigger();
}

void focusField(const char* name, int index, const std::string& text) {
    ui::forwardInput([&] {
        Form* form = program().desktop.activeChild();
        Control& field = form->at(name, index);
        field.text = text;
        program().desktop.setFocus(field);
    });
    paintNow();
}

// A figure that measured nothing is worse than none: the bench stops when an input did not land.
void require(bool held, const char* what) {
    if (held) return;
    std::fprintf(stderr, "window bench: %s\n", what);
    std::exit(1);
}

std::string fieldText(int index) { return program().desktop.activeChild()->at("Text1", index).text; }

std::vector<Figure> measureInWindow(ui::FrameWindow& window) {
    std::vector<Figure> figures;
    window.activateWindow();
    QApplication::setActiveWindow(&window);
    paintNow();
    choose(window, "mnuW2");
    paintNow();

    std::vector<double> samples;
    if (wanted("digit")) {
        focusField("Text1", 2, "");
        for (int i = 0; i < kRuns; ++i) {
            samples.push_back(timed([] { key(Qt::Key_7, QStringLiteral("7")); }));
            require(fieldText(2) == "7", "the typed digit did not reach box 1 of the W-2");
            key(Qt::Key_Backspace);
            paintNow();
        }
        figures.push_back(figureOf("digit", samples));
    }

    if (wanted("tab")) {
        samples.clear();
        for (int i = 0; i < kRuns; ++i) {
            focusField("Text1", 2, "1234.5");
            samples.push_back(timed([] { key(Qt::Key_Tab); }));
            require(fieldText(2) == "$1,234.50" &&
                        program().desktop.focus() != &program().desktop.activeChild()->at("Text1", 2),
                    ("Tab out of box 1 of the W-2 left \"" + fieldText(2) + "\"").c_str());
        }
        figures.push_back(figureOf("tab", samples));
    }

    // The first opening of each form in the session, before anything of it is kept.
    std::vector<double> firstWall, firstProcessor;
    for (const CatalogueEntry& entry : catalogue()) {
        const std::string item = entry.menuItem;
        if (!hasDefinition(entry.form) || item.rfind("mnu", 0) != 0 || item == "mnuControlConfigure")
            continue;
        const std::string name = "menu-" + text::toUpper(std::string(entry.form).substr(3));
        if (!wanted(name)) continue;
        samples.clear();
        for (int i = 0; i < kRuns; ++i) {
            choose(window, item == "mnu1099Int" ? "mnuW2" : "mnu1099Int");
            paintNow();
            samples.push_back(timed([&] { choose(window, item); }));
            require(program().desktop.activeChild()->name() == entry.form,
                    "a form did not open from its menu");
        }
        firstWall.push_back(samples.front());
        firstProcessor.push_back(cpuSamples.front());
        figures.push_back(figureOf(name, samples));
    }
    if (!firstWall.empty()) {
        cpuSamples = firstProcessor;
        figures.push_back(figureOf("first-open", firstWall));
    }

    if (wanted("switch")) {
        samples.clear();
        for (int i = 0; i < kRuns; ++i)
            samples.push_back(timed([&] { choose(window, i % 2 ? "mnuW2" : "mnu1099Int"); }));
        figures.push_back(figureOf("switch", samples));
    }
    if (!wanted("k1-page-turn")) return figures;

    // A K-1 turns its page when the focus crosses the limit of a column: Tab from the last row of the
    // Top half, and Shift+Tab back from the first row of the Bottom half, each with the repaint.
    choose(window, "mnuK11065");
    paintNow();
    require(program().desktop.activeChild()->name() == "TF_K11065", "the K-1 did not open");
    const Control& tabs = program().desktop.activeChild()->at("SSTab1");
    samples.clear();
    for (int i = 0; i < kRuns; ++i) {
        focusField("Text3", 13, "");
        samples.push_back(timed([] { key(Qt::Key_Tab); }));
        require(tabs.listIndex == 1, "Tab did not turn the K-1 to its Bottom half");
        focusField("Text3", 14, "");
        samples.push_back(timed([] { key(Qt::Key_Backtab, QString(), Qt::ShiftModifier); }));
        require(tabs.listIndex == 0, "Shift+Tab did not turn the K-1 back to its Top half");
    }
    figures.push_back(figureOf("k1-page-turn", samples));
    return figures;
}

// The peak resident memory of the process so far, in MB: every form has been opened by now.
double peakMemoryMb() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.rfind("VmHWM:", 0) == 0) return std::strtol(line.c_str() + 6, nullptr, 10) / 1024.0;
    return -1;
}

// The bench plays the Venturo edition: the program is told its edition by the executable's name.
int runAsEdition(const ui::WindowProgramWatch& watch) {
    static std::string edition = (QApplication::applicationDirPath() + "/Ledgerwick_Venturo").toStdString();
    static char* argv[] = {edition.data(), nullptr};
    return ui::runWindowProgram(1, argv, watch);
}

// The child of a start measure: reports the waits behind it at its first painted frame, and ends.
int startChild(int argc, char** argv) {
    QApplication app(argc, argv);
    ui::WindowProgramWatch watch;
    watch.frameShown = [](ui::FrameWindow& window, ui::QtPlatformPort& platform) {
        window.repaint();
        std::printf("first-paint slept %lld\n", platform.slept());
        std::fflush(stdout);
        std::_Exit(0);
    };
    return runAsEdition(watch);
}

std::vector<Figure> measureStart(const QString& self) {
    std::vector<double> firstPaint, beyondWaits;
    for (int i = 0; i < kRuns; ++i) {
        QTemporaryDir root;
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LEDGERWICK_ROOT"), root.path());
        child.setProcessEnvironment(environment);
        QElapsedTimer clock;
        clock.start();
        child.start(self, {QStringLiteral("--start-child")});
        if (!child.waitForReadyRead(10000)) break;
        const double elapsed = clock.nsecsElapsed() / 1e6;
        const QByteArray line = child.readAllStandardOutput();
        child.waitForFinished(5000);
        long long slept = 0;
        if (std::sscanf(line.constData(), "first-paint slept %lld", &slept) != 1) break;
        firstPaint.push_back(elapsed);
        beyondWaits.push_back(elapsed - static_cast<double>(slept));
    }
    if (firstPaint.empty()) return {};
    return {figureOf("start-first-paint", firstPaint), figureOf("start-beyond-waits", beyondWaits)};
}

std::map<std::string, double> lastMedians(const std::string& path) {
    std::map<std::string, double> medians;
    std::ifstream in(path);
    std::string word, name;
    double median = 0;
    while (in >> word >> name >> word >> median) {
        medians[name] = median;
        in.ignore(1000, '\n');
    }
    return medians;
}

}  // namespace
}  // namespace lw::bench

int main(int argc, char** argv) {
    using namespace lw::bench;
    if (argc > 1 && std::string(argv[1]) == "--start-child") return startChild(argc, argv);
    std::string results = "window-bench.txt";
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--runs" && i + 1 < argc)
            kRuns = std::max(1, std::atoi(argv[++i]));
        else if (arg == "--only" && i + 1 < argc)
            onlyPrefix = argv[++i];
        else
            results = arg;
    }
    QTemporaryDir root;
    qputenv("LEDGERWICK_ROOT", root.path().toLocal8Bit());
    QApplication app(argc, argv);
    std::vector<Figure> figures;
    if (wanted("start")) figures = measureStart(QApplication::applicationFilePath());
    lw::ui::WindowProgramWatch watch;
    watch.started = [&](lw::ui::FrameWindow& window, lw::ui::QtPlatformPort&, lw::ui::QtUiPort&) {
        for (const Figure& figure : measureInWindow(window)) figures.push_back(figure);
        return false;
    };
    runAsEdition(watch);
    const double memory = peakMemoryMb();

    const std::map<std::string, double> before = lastMedians(results);
    std::ostringstream table;
    for (const Figure& f : figures) {
        char line[160];
        std::snprintf(line, sizeof line, "window %s median %.2f MS p90 %.2f MS", f.name.c_str(), f.median,
                      f.p90);
        table << line << "\n";
        std::printf("%s", line);
        if (f.cpuMedian >= 0) std::printf("   (processor %.2f, p90 %.2f)", f.cpuMedian, f.cpuP90);
        if (auto it = before.find(f.name); it != before.end())
            std::printf("   (last run %.2f, %+.0f%%)", it->second,
                        100.0 * (f.median - it->second) / it->second);
        std::printf("\n");
    }
    std::printf("window memory peak %.1f MB after every form (budget 50 MB)\n", memory);
    if (onlyPrefix.empty()) std::ofstream(results) << table.str();
    return 0;
}
