#pragma once
// The whole program with no window on the screen, as the script runner and ledgerwick-render run it:
// the ports of a session, every form, and the frame's start-up.

#include <memory>
#include <string>

#include "headless/headless_platform.h"
#include "headless/headless_ui.h"
#include "headless/session.h"
#include "model/program.h"

namespace lw::headless {

// Qt draws off-screen and needs no display; a bare machine gets a private runtime folder of its own.
// Call before the QApplication is made. Built with the Qt pictures only (headless_qt.cpp).
void prepareHeadlessQt();
// The folder of the shipped files for the executable named by argv[0].
std::string shippedFilesOf(const char* argv0);

class HeadlessProgram {
public:
    // Starts the program; a start-up that ends it leaves session.ended set.
    explicit HeadlessProgram(Session& session);
    ~HeadlessProgram();
    HeadlessProgram(const HeadlessProgram&) = delete;
    HeadlessProgram& operator=(const HeadlessProgram&) = delete;

    Program& program() { return *program_; }

private:
    std::unique_ptr<HeadlessUi> ui_;
    std::unique_ptr<HeadlessPlatform> platform_;
    std::unique_ptr<Program> program_;
};

}  // namespace lw::headless
