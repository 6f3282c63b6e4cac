#include "SharedSettings.h"

#include "Command.h"

namespace zephyrix {

std::unique_ptr<UserDefaults> openSharedSettings() {
    auto settings = UserDefaults::suite(QStringLiteral("group.Zephyrix"));
    if (!settings)
        throw CommandError::failure(QStringLiteral("the settings cannot be opened"));
    return settings;
}

void save(UserDefaults& settings) {
    if (!settings.synchronize())
        throw CommandError::failure(
            QStringLiteral("%1 cannot be written, nothing is changed").arg(settings.fileName()));
}

}  // namespace zephyrix
