#include "headless/headless_program.h"

#include <filesystem>

#include "forms/register_forms.h"
#include "model/app_error.h"
#include "shell/frame_window_model.h"
#include "shell/paths.h"

namespace lw::headless {

std::string shippedFilesOf(const char* argv0) {
    // The executable's folder made absolute and clean, so the paths the program shows read plainly.
    std::error_code ec;
    std::filesystem::path executable = std::filesystem::absolute(argv0, ec);
    if (ec) executable = argv0;
    return shippedFilesFolder(executable.lexically_normal().parent_path().string());
}

HeadlessProgram::HeadlessProgram(Session& session)
    : ui_(std::make_unique<HeadlessUi>(session)),
      platform_(std::make_unique<HeadlessPlatform>(session)),
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

}  // namespace lw::headless
