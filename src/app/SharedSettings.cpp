#include "SharedSettings.h"

#include "Command.h"

namespace zephyrix {

namespace {

std::unique_ptr<UserDefaults> openSuite(const QString& name) {
    auto settings = UserDefaults::suite(name);
    if (!settings)
        throw CommandError::failure(QStringLiteral("the settings cannot be opened"));
    return settings;
}

}  // namespace

std::unique_ptr<UserDefaults> openSharedSettings() {
    return openSuite(QStringLiteral("group.Zephyrix"));
}

std::unique_ptr<UserDefaults> openPanelSettings() {
    return openSuite(QStringLiteral("zephyrix-panel"));
}

void save(UserDefaults& settings) {
    if (!settings.synchronize())
        throw CommandError::failure(
            QStringLiteral("%1 cannot be written, nothing is changed").arg(settings.fileName()));
}

}  // namespace zephyrix
