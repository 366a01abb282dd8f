#pragma once
// The running program: its ports to the outside, its desktop of forms, and its process-wide values.
// One program runs per process; the tests make a fresh one for each case.

#include <memory>

#include "model/desktop.h"
#include "model/globals.h"
#include "model/ports.h"
#include "model/program_parts.h"

namespace lw {

class Program {
public:
    Program(UiPort& ui, PlatformPort& platform);
    ~Program();

    UiPort& ui;
    PlatformPort& platform;
    Desktop desktop;
    Globals g;
    // The set handed to the forms and procedures: references to the ports, the desktop and the state above.
    const ProgramParts parts;
};

// The program of this process. Present from construction of a Program to its destruction.
Program& program();
bool hasProgram();

}  // namespace lw
