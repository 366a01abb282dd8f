#pragma once
// The machine as every unit test sets it up: a clock that stands still, a named user, a settable command
// line and root, the printers it is given, and the sleeps it was asked for (never slept).

#include <optional>
#include <string>
#include <vector>

#include "model/ports.h"

namespace lw::testing {

class FixedPlatform : public PlatformPort {
public:
    DateTime now() override { return clock; }
    std::optional<std::string> environment(const std::string& name) override {
        if (name == "UserName") return user;
        if (name == "ComputerName") return computer;
        return std::nullopt;
    }
    std::string executableName() override { return exeName; }
    std::string executableFolder() override { return appFolder; }
    std::string commandLine() override { return commandLineText; }
    std::string rootFolder() override { return root; }
    bool earlierInstanceRunning() override { return false; }
    void activateEarlierInstance(const std::string&) override {}
    void sleep(int milliseconds) override { sleeps.push_back(milliseconds); }
    std::vector<std::string> printers() override { return machinePrinters; }
    int screenWidthTwips() override { return 19200; }
    bool debuggerAttached() override { return debugger; }

    DateTime clock{2025, 6, 10, 9, 0, 0};
    std::optional<std::string> user = std::string("TESTER");
    std::optional<std::string> computer = std::string("TESTPC");
    std::string exeName = "Ledgerwick_Venturo";
    std::string appFolder = "/app";
    std::string commandLineText;
    std::string root = "/root";
    std::vector<std::string> machinePrinters;
    std::vector<int> sleeps;
    bool debugger = false;
};

}  // namespace lw::testing
