#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QVariant>

#include "support/Programs.h"

namespace zephyrix::testing {

/// `zephyrix-panel` as a user starts it, in a home of its own. Everything runs in the test's event
/// loop, so that a LoopbackServer can answer it.
class PanelProgram {
  public:
    PanelProgram();

    /// Runs to the end; the words are separated by blanks.
    Outcome run(const QString& words) { return run(QProcess::splitCommand(words)); }
    Outcome run(const QStringList& arguments);
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
