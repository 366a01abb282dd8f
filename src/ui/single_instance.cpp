#include "ui/single_instance.h"

#include <QLocalSocket>

namespace lw::ui {

SingleInstance::SingleInstance(const QString& lockPath, const QString& serverName,
                               std::function<void()> onRaise)
    : serverName_(serverName), lock_(std::make_unique<QLockFile>(lockPath)), onRaise_(std::move(onRaise)) {
    // A lock left by an instance that died is taken over; a live one is never old enough to be stale.
    lock_->setStaleLockTime(0);
    first_ = lock_->tryLock(0);
    if (!first_) return;
    QLocalServer::removeServer(serverName_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    server_.listen(serverName_);
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = server_.nextPendingConnection()) {
            // The request may already be waiting, or come later, or come with the hang-up.
            auto serve = [this, socket] {
                while (socket->canReadLine()) {
                    if (socket->readLine().trimmed() == "raise" && onRaise_) onRaise_();
                }
            };
            connect(socket, &QLocalSocket::readyRead, this, serve);
            connect(socket, &QLocalSocket::disconnected, this, [socket, serve] {
                serve();
                socket->deleteLater();
            });
            serve();
        }
    });
}

SingleInstance::~SingleInstance() {
    server_.close();
    if (first_) lock_->unlock();
}

bool SingleInstance::askFirstToRaise(const QString& title) {
    Q_UNUSED(title);
    QLocalSocket socket;
    socket.connectToServer(serverName_);
    if (!socket.waitForConnected(1000)) return false;
    socket.write("raise\n");
    const bool sent = socket.waitForBytesWritten(1000);
    socket.disconnectFromServer();
    return sent;
}

}  // namespace lw::ui
