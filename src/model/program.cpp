#include "model/program.h"

#include <stdexcept>

namespace lw {

namespace {
Program* current = nullptr;
}

Program::Program(UiPort& ui_, PlatformPort& platform_)
    : ui(ui_), platform(platform_), desktop(ui_), parts{ui,        platform,  desktop,    g.process,
                                                        g.edition, g.choices, g.document, g.taxpayers,
                                                        g.taxYear, g.rates} {
    if (current) throw std::logic_error("a program is already running in this process");
    current = this;
    // The shared procedures work on CurrentForm; a form that is gone is no longer current.
    desktop.setUnloadObserver([this](Form& form) {
        if (g.document.currentForm == &form) g.document.currentForm = nullptr;
    });
}

Program::~Program() { current = nullptr; }

Program& program() {
    if (!current) throw std::logic_error("no program is running");
    return *current;
}

bool hasProgram() { return current != nullptr; }

}  // namespace lw
