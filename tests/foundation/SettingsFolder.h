#pragma once

#include <memory>

#include <QByteArray>
#include <QString>

#include "foundation/UserDefaults.h"

namespace zephyrix::testing {

/// While it lives, settings stores lie in a folder of their own, which does not exist yet.
class SettingsFolder {
  public:
    SettingsFolder();
    ~SettingsFolder();
    SettingsFolder(const SettingsFolder&) = delete;
    SettingsFolder& operator=(const SettingsFolder&) = delete;

    /// Where the stores' files lie.
    [[nodiscard]] const QString& path() const { return path_; }
    /// Makes the folder; its path.
    const QString& make() const;

  private:
    QByteArray before_;
    QString path_;
};

/// The suite "group.Zephyrix" of the settings folder.
[[nodiscard]] std::unique_ptr<UserDefaults> openSuite();

}  // namespace zephyrix::testing
