#pragma once
// One running instance per executable: a lock file held while the first runs, and a local socket on
// which a later start asks it to come to the front.

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <functional>
#include <memory>

namespace lw::ui {

class SingleInstance : public QObject {
    Q_OBJECT
public:
    // lockPath: the lock file; serverName: the local socket shared by the instances.
    SingleInstance(const QString& lockPath, const QString& serverName, std::function<void()> onRaise);
    ~SingleInstance() override;

    // True for the first instance, which then listens for later ones.
    bool isFirst() const { return first_; }
    // From a later instance: asks the first to show itself.
    bool askFirstToRaise(const QString& title);

private:
    QString serverName_;
    std::unique_ptr<QLockFile> lock_;
    QLocalServer server_;
    std::function<void()> onRaise_;
    bool first_ = false;
};

}  // namespace lw::ui
