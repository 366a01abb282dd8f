#include "script/headless_program.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QFileInfo>
#include <QString>

#include "forms/register_forms.h"
#include "model/app_error.h"
#include "shell/frame_window_model.h"
#include "shell/paths.h"

namespace lw::script {

void prepareHeadlessQt() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        std::string runtime = "/tmp/ledgerwick-runtime-" + std::to_string(getuid());
        mkdir(runtime.c_str(), 0700);
        qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(runtime));
    }
}

std::string shippedFilesOf(const char* argv0) {
    return shippedFilesFolder(QFileInfo(QString::fromLocal8Bit(argv0)).absolutePath().toStdString());
}

HeadlessProgram::HeadlessProgram(Session& session)
    : ui_(std::make_unique<ScriptUi>(session)),
      platform_(std::make_unique<ScriptPlatform>(session)),
      program_(std::make_unique<Program>(*ui_, *platform_)) {
    registerAllForms();
    try {
        loadFrame();
    } catch (const ProgramEnded&) {
        session.ended = true;
    }
}

HeadlessProgram::~HeadlessProgram() {
    program_.reset();
    platform_.reset();
    ui_.reset();
}

}  // namespace lw::script
