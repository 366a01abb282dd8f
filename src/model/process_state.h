#pragma once
// What the program learns about its own run: the command words, the machine and user, and its phase.

#include <string>

namespace lw {

struct ProcessState {
    std::string commandWords;       // the command line, with the word "debug" taken out
    bool debug = false;             // faults go to standard error as well
    bool starting = false;          // the frame is still setting itself up
    bool quitting = false;          // the frame is closing
    std::string computerNameUpper;  // in capitals, for the error report
    std::string userNameUpper;
};

}  // namespace lw
