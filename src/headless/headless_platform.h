#pragma once
// The machine as the script sets it up: a clock that stands still, named user and computer, no waits.

#include "headless/session.h"
#include "model/ports.h"

namespace lw::headless {

class HeadlessPlatform : public PlatformPort {
public:
    explicit HeadlessPlatform(Session& session);

    DateTime now() override;
    std::optional<std::string> environment(const std::string& name) override;
    std::string executableName() override { return session_.edition; }
    std::string executableFolder() override { return session_.executableFolder; }
    std::string commandLine() override;
    std::string rootFolder() override { return session_.root; }
    bool earlierInstanceRunning() override { return session_.running; }
    void activateEarlierInstance(const std::string& title) override;
    void sleep(int milliseconds) override;
    std::vector<std::string> printers() override { return printersInCodePage_; }
    int screenWidthTwips() override { return 1920 * 15; }

private:
    Session& session_;
    long long skippedMs_ = 0;
    std::vector<std::string> printersInCodePage_;
};

}  // namespace lw::headless
