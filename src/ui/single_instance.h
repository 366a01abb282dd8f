#pragma once
// One running instance per executable: a lock file held while the first runs, and a request file beside
// it in which a later start asks the first to come to the front.

#include <QFileSystemWatcher>
#include <QLockFile>
#include <QObject>
#include <functional>
#include <memory>

namespace lw::ui {

class SingleInstance : public QObject {
    Q_OBJECT
public:
    // lockPath: the lock file; requestPath: the file the instances share for requests.
    SingleInstance(const QString& lockPath, const QString& requestPath, std::function<void()> onRaise);
    ~SingleInstance() override;

    // True for the first instance, which then watches for later ones.
    bool isFirst() const { return first_; }
    // From a later instance: asks the first to show itself.
    bool askFirstToRaise(const QString& title);

private:
    void serveRequests();

    QString requestPath_;
    std::unique_ptr<QLockFile> lock_;
    QFileSystemWatcher watcher_;
    std::function<void()> onRaise_;
    bool first_ = false;
};

}  // namespace lw::ui
