#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QProcess>
#include <QString>

namespace zephyrix::testing {

/// A session bus of the test's own, on which a tray comes and goes.
class TrayBus : public QObject {
    Q_OBJECT

  public:
    TrayBus();
    ~TrayBus() override;

    [[nodiscard]] bool isRunning() const { return bus_.isConnected(); }
    [[nodiscard]] const QString& address() const noexcept { return address_; }

    void trayComes();
    void trayGoes();
    /// The bus name of the program that has put its item into the tray; empty while none has.
    [[nodiscard]] const QString& item() const noexcept { return item_; }
    void clickItem();

  private:
    friend class TrayAdaptor;

    QProcess daemon_;
    QString address_;
    QDBusConnection bus_;
    QString item_;
};

/// What the desktop offers to items.
class TrayAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)

  public:
    explicit TrayAdaptor(TrayBus& tray) : QDBusAbstractAdaptor(&tray), tray_(tray) {}
    [[nodiscard]] bool isHostRegistered() const { return true; }
    [[nodiscard]] int protocolVersion() const { return 0; }

  public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& service) { tray_.item_ = service; }

  private:
    TrayBus& tray_;
};

}  // namespace zephyrix::testing
