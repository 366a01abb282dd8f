#include "ui/qt_platform_port.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMainWindow>
#include <QPrinterInfo>
#include <QScreen>
#include <QSysInfo>
#include <QThread>
#include <algorithm>

#include "shell/paths.h"
#include "ui/form_painter.h"
#include "ui/qt_text.h"
#include "ui/single_instance.h"

namespace lw::ui {

namespace {

// Paths go to the file system as its own bytes, the way the store opens them.
std::string nativePath(const QString& path) { return QFile::encodeName(QDir::cleanPath(path)).toStdString(); }

void raiseMainWindows() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (!qobject_cast<QMainWindow*>(widget) || !widget->isVisible()) continue;
        widget->setWindowState((widget->windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
        widget->show();
        widget->raise();
        widget->activateWindow();
    }
}

}  // namespace

QtPlatformPort::QtPlatformPort(int argc, char** argv) : raise_(raiseMainWindows) {
    for (int i = 0; i < argc; ++i) arguments_ << QString::fromLocal8Bit(argv[i]);
}

QtPlatformPort::~QtPlatformPort() = default;

DateTime QtPlatformPort::now() {
    const QDateTime local = QDateTime::currentDateTime();
    const QDate date = local.date();
    const QTime time = local.time();
    return DateTime{date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

std::optional<std::string> QtPlatformPort::environment(const std::string& name) {
    const QString variable = QString::fromStdString(name);
    if (qEnvironmentVariableIsSet(variable.toLocal8Bit().constData()))
        return toCp1252Lossy(qEnvironmentVariable(variable.toLocal8Bit().constData()));
    // The names of the classic desktop stand for this system's own user and host names.
    if (variable.compare(QLatin1String("UserName"), Qt::CaseInsensitive) == 0) {
        for (const char* other : {"USER", "LOGNAME"})
            if (qEnvironmentVariableIsSet(other)) return toCp1252Lossy(qEnvironmentVariable(other));
        return toCp1252Lossy(QDir::home().dirName());
    }
    if (variable.compare(QLatin1String("ComputerName"), Qt::CaseInsensitive) == 0)
        return toCp1252Lossy(QSysInfo::machineHostName());
    return std::nullopt;
}

std::string QtPlatformPort::executableName() {
    const QString program =
        arguments_.isEmpty() ? QCoreApplication::applicationFilePath() : arguments_.first();
    return toCp1252Lossy(QFileInfo(program).completeBaseName());
}

std::string QtPlatformPort::executableFolder() {
    const QString folder = QCoreApplication::instance() ? QCoreApplication::applicationDirPath()
                                                        : QFileInfo(arguments_.value(0)).absolutePath();
    return shippedFilesFolder(nativePath(folder));
}

std::string QtPlatformPort::commandLine() { return toCp1252Lossy(arguments_.mid(1).join(QLatin1Char(' '))); }

QString QtPlatformPort::rootPath() const {
    const QString root = qEnvironmentVariable("LEDGERWICK_ROOT");
    if (!root.isEmpty()) return root;
    QString data = qEnvironmentVariable("XDG_DATA_HOME");
    if (data.isEmpty()) data = QDir::homePath() + QStringLiteral("/.local/share");
    return data + QStringLiteral("/ledgerwick");
}

std::string QtPlatformPort::rootFolder() { return nativePath(rootPath()); }

QString QtPlatformPort::instanceKey() const {
    const QString program =
        arguments_.isEmpty() ? QCoreApplication::applicationFilePath() : arguments_.first();
    return QFileInfo(program).completeBaseName().toLower();
}

bool QtPlatformPort::earlierInstanceRunning() {
    if (!instance_) {
        const QString root = QDir::cleanPath(rootPath());
        QDir().mkpath(root);
        const QString key = instanceKey();
        const QString base = root + QLatin1Char('/') + key;
        instance_ = std::make_unique<SingleInstance>(base + QStringLiteral(".lock"),
                                                     base + QStringLiteral(".requests"), [this] {
                                                         if (raise_) raise_();
                                                     });
    }
    return !instance_->isFirst();
}

void QtPlatformPort::activateEarlierInstance(const std::string& title) {
    if (!instance_) earlierInstanceRunning();
    if (instance_ && !instance_->isFirst()) instance_->askFirstToRaise(toQString(title));
}

void QtPlatformPort::setRaiseHandler(std::function<void()> handler) { raise_ = std::move(handler); }

void QtPlatformPort::sleep(int milliseconds) {
    if (milliseconds <= 0) return;
    slept_ += milliseconds;
    if (!QCoreApplication::instance()) {
        QThread::msleep(static_cast<unsigned long>(milliseconds));
        return;
    }
    QElapsedTimer timer;
    timer.start();
    for (qint64 left = milliseconds; left > 0; left = milliseconds - timer.elapsed()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, static_cast<int>(left));
        QThread::msleep(static_cast<unsigned long>(std::min<qint64>(left, 10)));
    }
}

std::vector<std::string> QtPlatformPort::printers() {
    QStringList names;
    const QString preferred = QPrinterInfo::defaultPrinterName();
    if (!preferred.isEmpty()) names << preferred;
    for (const QString& name : QPrinterInfo::availablePrinterNames())
        if (!names.contains(name)) names << name;
    std::vector<std::string> printers;
    for (const QString& name : names) printers.push_back(toCp1252Lossy(name));
    return printers;
}

int QtPlatformPort::screenWidthTwips() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const int pixels = screen ? screen->geometry().width() : 1024;
    return static_cast<int>(pixels * kTwipsPerPixel);
}

bool QtPlatformPort::debuggerAttached() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly | QIODevice::Text)) return false;
    while (!status.atEnd()) {
        const QByteArray line = status.readLine();
        if (line.startsWith("TracerPid:")) return line.mid(10).trimmed().toInt() != 0;
    }
    return false;
}

}  // namespace lw::ui
