#include "TrayHost.h"

#include <utility>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QFileInfo>
#include <QStandardPaths>

namespace zephyrix {

namespace {

constexpr int patience = 250;  // milliseconds

const QString service = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString path = QStringLiteral("/StatusNotifierWatcher");

bool hasSessionBus() {
    // To connect without an address would start a bus on some desktops.
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
                             QStringLiteral("/bus"));
}

bool hostIsRegistered() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question.setAutoStartService(false);
    question << service << QStringLiteral("IsStatusNotifierHostRegistered");
    const QDBusReply<QDBusVariant> answer =
        QDBusConnection::sessionBus().call(question, QDBus::Block, patience);
    return answer.isValid() && answer.value().variant().toBool();
}

}  // namespace

TrayHost::TrayHost() {
    if (!hasSessionBus() || !QDBusConnection::sessionBus().isConnected())
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    auto* const watcher =
        new QDBusServiceWatcher(service, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &TrayHost::ask);
    for (const char* news : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        bus.connect(service, path, service, QLatin1String(news), this, SLOT(ask()));
    present_ = hostIsRegistered();
}

void TrayHost::ask() {
    const bool present = hostIsRegistered();
    if (std::exchange(present_, present) != present)
        Q_EMIT changed();
}

}  // namespace zephyrix
