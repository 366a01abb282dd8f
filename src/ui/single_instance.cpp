#include "ui/single_instance.h"

#include <QFile>

namespace lw::ui {

namespace {

const char kRaise[] = "raise\n";

}  // namespace

SingleInstance::SingleInstance(const QString& lockPath, const QString& requestPath,
                               std::function<void()> onRaise)
    : requestPath_(requestPath), lock_(std::make_unique<QLockFile>(lockPath)), onRaise_(std::move(onRaise)) {
    // A lock left by an instance that died is taken over; a live one is never old enough to be stale.
    lock_->setStaleLockTime(0);
    // A folder that keeps no lock cannot tell of another instance: this one runs as the first.
    first_ = lock_->tryLock(0) || lock_->error() != QLockFile::LockFailedError;
    if (!first_) return;
    // A request left by a start that found no one to answer it is not this instance's to serve.
    QFile requests(requestPath_);
    if (!requests.open(QIODevice::WriteOnly | QIODevice::Truncate)) return;
    requests.close();
    watcher_.addPath(requestPath_);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, &SingleInstance::serveRequests);
}

SingleInstance::~SingleInstance() {
    if (!first_) return;
    // Nobody answers requests once the first has gone: its file goes with it.
    watcher_.removePath(requestPath_);
    QFile::remove(requestPath_);
    lock_->unlock();
}

void SingleInstance::serveRequests() {
    QFile requests(requestPath_);
    if (!requests.open(QIODevice::ReadWrite)) return;
    const QByteArray asked = requests.readAll();
    if (asked.isEmpty()) return;
    requests.resize(0);
    requests.close();
    // A file written over rather than added to is no longer the one watched.
    if (!watcher_.files().contains(requestPath_)) watcher_.addPath(requestPath_);
    if (asked.contains(kRaise) && onRaise_) onRaise_();
}

bool SingleInstance::askFirstToRaise(const QString& title) {
    Q_UNUSED(title);
    QFile requests(requestPath_);
    if (!requests.open(QIODevice::WriteOnly | QIODevice::Append)) return false;
    return requests.write(kRaise) == static_cast<qint64>(sizeof kRaise - 1);
}

}  // namespace lw::ui
