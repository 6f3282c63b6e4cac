#include "TrayBus.h"

#include <QDBusMessage>
#include <QStandardPaths>

namespace zephyrix::testing {

namespace {

const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString connectionName = QStringLiteral("tray");

}  // namespace

TrayBus::TrayBus() : bus_(QString()) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    if (program.isEmpty())
        return;
    daemon_.start(program, {QStringLiteral("--session"), QStringLiteral("--nofork"),
                            QStringLiteral("--print-address=1")});
    QByteArray said;
    while (!said.endsWith('\n') && daemon_.waitForReadyRead())
        said += daemon_.readAllStandardOutput();
    address_ = QString::fromUtf8(said.trimmed());
    bus_ = QDBusConnection::connectToBus(address_, connectionName);
    new TrayAdaptor(*this);
    bus_.registerObject(QStringLiteral("/StatusNotifierWatcher"), this);
}

TrayBus::~TrayBus() {
    QDBusConnection::disconnectFromBus(connectionName);
    daemon_.terminate();
    daemon_.waitForFinished();
}

void TrayBus::trayComes() {
    bus_.registerService(watcher);
}

void TrayBus::trayGoes() {
    item_.clear();
    bus_.unregisterService(watcher);
}

void TrayBus::clickItem() {
    QDBusMessage click = QDBusMessage::createMethodCall(
        item_, QStringLiteral("/StatusNotifierItem"), QStringLiteral("org.kde.StatusNotifierItem"),
        QStringLiteral("Activate"));
    bus_.send(click << 0 << 0);
}

}  // namespace zephyrix::testing
