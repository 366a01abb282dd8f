#pragma once
// The machine under the window program: clock, environment, names and folders, printers, the screen,
// waits, and the single running instance of each executable.

#include <QStringList>
#include <functional>
#include <memory>

#include "model/ports.h"

namespace lw::ui {

class SingleInstance;

class QtPlatformPort : public PlatformPort {
public:
    QtPlatformPort(int argc, char** argv);
    ~QtPlatformPort() override;

    DateTime now() override;
    // The variable in the code page, or nothing when it is not set. "UserName" and "ComputerName", the
    // names the program asks for, fall back to the user and host names of this system.
    std::optional<std::string> environment(const std::string& name) override;
    std::string executableName() override;
    std::string executableFolder() override;
    std::string commandLine() override;
    // $LEDGERWICK_ROOT, else $XDG_DATA_HOME/ledgerwick, else ~/.local/share/ledgerwick.
    std::string rootFolder() override;
    // Takes the lock of this executable's name in the root folder; a second instance finds it held.
    bool earlierInstanceRunning() override;
    // Asks the first instance to raise its window; `title` is not needed to find it.
    void activateEarlierInstance(const std::string& title) override;
    // Waits while the screen goes on painting; the operator's input waits until after.
    void sleep(int milliseconds) override;
    // The deliberate waits so far, in milliseconds.
    long long slept() const { return slept_; }
    std::vector<std::string> printers() override;
    int screenWidthTwips() override;
    bool debuggerAttached() override;

    // What the first instance does when a later one asks it to show itself; by default every main
    // window is raised and activated.
    void setRaiseHandler(std::function<void()> handler);

private:
    QString rootPath() const;
    QString instanceKey() const;

    QStringList arguments_;
    std::unique_ptr<SingleInstance> instance_;
    std::function<void()> raise_;
    long long slept_ = 0;
};

}  // namespace lw::ui
