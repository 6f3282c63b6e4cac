#include "OnlyInstance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>

#include "foundation/Log.h"

namespace zephyrix {

namespace {

constexpr int patience = 2000;  // milliseconds that a running panel has to take the request

/// Of two starts at the same moment, one waits here until the other listens.
class StartTurn {
  public:
    explicit StartTurn(const QString& file)
        : file_(::open(QFile::encodeName(file).constData(), O_RDWR | O_CREAT | O_CLOEXEC,
                       S_IRUSR | S_IWUSR)) {
        if (file_ >= 0)
            ::flock(file_, LOCK_EX);
    }
    ~StartTurn() {
        if (file_ >= 0)
            ::close(file_);
    }
    StartTurn(const StartTurn&) = delete;
    StartTurn& operator=(const StartTurn&) = delete;

  private:
    int file_;
};

/// A user who is at two displays at once has a panel on each.
QString displayName() {
    QString name = qEnvironmentVariable("WAYLAND_DISPLAY", qEnvironmentVariable("DISPLAY"));
    return name.replace(QLatin1Char('/'), QLatin1Char('_'));
}

}  // namespace

OnlyInstance::OnlyInstance(const QString& folder) {
    const QString socket =
        QStringLiteral("%1/zephyrix-panel%2")
            .arg(folder.isEmpty()
                     ? QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)
                     : folder,
                 displayName());
    const StartTurn turn(socket + QStringLiteral(".lock"));
    taken_ = showOther(socket);
    if (!taken_)
        listen(socket);
}

bool OnlyInstance::showOther(const QString& socket) {
    QLocalSocket other;
    other.connectToServer(socket);
    if (!other.waitForConnected(patience))
        return false;
    if (!other.waitForDisconnected(patience))
        logLine(QStringLiteral("the panel that runs already does not answer"));
    return true;
}

void OnlyInstance::listen(const QString& socket) {
    QLocalServer::removeServer(socket);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &OnlyInstance::welcome);
    if (!server_.listen(socket))
        logLine(QStringLiteral("a second start will not find this panel: %1: %2")
                    .arg(socket, server_.errorString()));
}

// To connect is the whole request; to be disconnected the answer.
void OnlyInstance::welcome() {
    while (QLocalSocket* other = server_.nextPendingConnection()) {
        other->disconnectFromServer();
        other->deleteLater();
    }
    Q_EMIT shownAgain();
}

}  // namespace zephyrix
