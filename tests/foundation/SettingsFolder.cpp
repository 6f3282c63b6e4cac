#include "SettingsFolder.h"

#include <QDir>
#include <QFile>

#include "support/TestHome.h"

namespace zephyrix::testing {

SettingsFolder::SettingsFolder() : before_(qgetenv("XDG_CONFIG_HOME")) {
    const QString configuration = freshFolder();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(configuration));
    path_ = configuration + QStringLiteral("/zephyrix");
}

SettingsFolder::~SettingsFolder() {
    qputenv("XDG_CONFIG_HOME", before_);
}

const QString& SettingsFolder::make() const {
    QDir().mkpath(path_);
    return path_;
}

std::unique_ptr<UserDefaults> openSuite() {
    return UserDefaults::suite(QStringLiteral("group.Zephyrix"));
}

}  // namespace zephyrix::testing
