// The Qt set-up of the programs that run with no window: the native runner, ledgerwick-render and
// ledgerwick-cases draw their pictures off-screen.
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <string>

#include "headless/headless_program.h"

namespace lw::headless {

void prepareHeadlessQt() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        std::string runtime = "/tmp/ledgerwick-runtime-" + std::to_string(getuid());
        mkdir(runtime.c_str(), 0700);
        qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(runtime));
    }
}

}  // namespace lw::headless
