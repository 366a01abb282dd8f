// ledgerwick-render: saved documents with the print look, into one PDF or one picture per page.
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QFileInfo>
#include <iostream>
#include <string>
#include <vector>

#include "render/render_job.h"
#include "shell/paths.h"

int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    std::string error;
    auto options = lw::render::parseArguments(arguments, error);
    if (!options) {
        std::cerr << "ledgerwick-render: " << error << "\n" << lw::render::kUsage;
        return 2;
    }
    // The pages are drawn off-screen: no display is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        std::string runtime = "/tmp/ledgerwick-runtime-" + std::to_string(getuid());
        mkdir(runtime.c_str(), 0700);
        qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(runtime));
    }
    QApplication app(argc, argv);
    const std::string folder =
        lw::shippedFilesFolder(QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath().toStdString());
    return lw::render::renderDocuments(*options, folder, std::cout, std::cerr);
}
