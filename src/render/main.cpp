// ledgerwick-render: saved documents with the print look, into one PDF or one picture per page.

#include <QApplication>
#include <iostream>
#include <string>
#include <vector>

#include "headless/headless_program.h"
#include "render/render_job.h"

int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    std::string error;
    auto options = lw::render::parseArguments(arguments, error);
    if (!options) {
        std::cerr << "ledgerwick-render: " << error << "\n" << lw::render::kUsage;
        return 2;
    }
    // The pages are drawn off-screen: no display is needed.
    lw::headless::prepareHeadlessQt();
    QApplication app(argc, argv);
    return lw::render::renderDocuments(*options, lw::headless::shippedFilesOf(argv[0]), std::cout, std::cerr);
}
