// ledgerwick-cases: makes practice cases, each a household with its documents, filled through the forms.
#include <QApplication>
#include <QHashSeed>
#include <iostream>
#include <vector>

#include "cases/case_arguments.h"
#include "cases/cases_window.h"
#include "cases/class_set.h"
#include "headless/headless_program.h"

int main(int argc, char** argv) {
    // The printed pages list their fonts in the order of a hash table: a fixed seed keeps that order, and
    // so the bytes of case.pdf, the same from one run to the next.
    QHashSeed::setDeterministicGlobalSeed();
    std::vector<std::string> arguments(argv + 1, argv + argc);
    std::string error;
    auto parsed = lw::cases::parseCaseArguments(arguments, error);
    if (!parsed) {
        std::cerr << "ledgerwick-cases: " << error << "\n" << lw::cases::kCasesUsage;
        return 2;
    }
    const std::string shipped = lw::headless::shippedFilesOf(argv[0]);
    const std::string userRoot = lw::cases::userRootFolder();
    if (parsed->window) {
        QApplication app(argc, argv);
        lw::cases::CasesWindow window(shipped, userRoot);
        window.show();
        return app.exec();
    }
    if (parsed->listProfiles) {
        try {
            for (const auto& profile : lw::cases::readProfiles(lw::cases::profileFileFor(shipped, userRoot)))
                std::cout << profile.name << "\t" << profile.title << "\n";
            return 0;
        } catch (const std::exception& e) {
            std::cerr << "ledgerwick-cases: " << e.what() << "\n";
            return 2;
        }
    }
    lw::headless::prepareHeadlessQt();
    QApplication app(argc, argv);
    try {
        lw::cases::ClassSet set(parsed->options, shipped, userRoot);
        const int failed = set.make(
            std::cerr, [](int done, int count) { std::cout << "case " << done << " of " << count << "\n"; });
        std::cout << (parsed->options.count - failed) << " cases made in " << parsed->options.out << "\n";
        return failed == 0 ? 0 : 1;
    } catch (const lw::cases::ClassSetRefused& refused) {
        std::cerr << "ledgerwick-cases: " << refused.why << "\n";
        return 2;
    } catch (const std::exception& e) {
        std::cerr << "ledgerwick-cases: the class set stopped: " << e.what() << "\n";
        return 1;
    }
}
