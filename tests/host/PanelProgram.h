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

    /// Another program file than that of the build, or one that runs it: "unshare --mount ...".
    void runAs(const QStringList& command) { command_ = command; }

    /// The built-in place, under another id if one is given.
    void choosePlace(qlonglong id = 0) const;
    /// A value of the settings that all programs share.
    [[nodiscard]] QVariant sharedSetting(const QString& key) const;
    /// A value of the panel's own settings, read anew from the file.
    [[nodiscard]] QVariant setting(const QString& key) const;
    void setSetting(const QString& key, const QVariant& value) const;
    [[nodiscard]] const QString& home() const noexcept { return home_; }

  private:
    QString home_;
    QStringList command_{QStringLiteral(PROGRAM_DIR "/zephyrix-panel")};
};

}  // namespace zephyrix::testing
