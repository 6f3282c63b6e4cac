#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace zephyrix::testing {

/// `zephyrix-panel` as a user starts it, in a home of its own. Everything runs in the test's event
/// loop, so that a LoopbackServer can answer it.
class PanelProgram {
  public:
    PanelProgram();

    struct Result {
        int exitCode = 0;  // -1 when it was stopped by a signal
        QByteArray out;
        QByteArray err;
        [[nodiscard]] QJsonObject json() const;
    };
    /// Runs to the end.
    Result run(const QStringList& arguments);
    /// Starts it without a display that anyone sees.
    void start(QProcess& process, const QStringList& arguments) const;

    void choosePlace() const;
    /// A value of the panel's own settings, read anew from the file.
    [[nodiscard]] QVariant setting(const QString& key) const;
    void setSetting(const QString& key, const QVariant& value) const;
    [[nodiscard]] const QString& home() const noexcept { return home_; }

  private:
    QString home_;
};

}  // namespace zephyrix::testing
