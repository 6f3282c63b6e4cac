#pragma once

#include "foundation/UserDefaults.h"
#include "model/LocationResult.h"

namespace zephyrix::testing {

/// The settings that all programs share.
[[nodiscard]] inline std::unique_ptr<UserDefaults> sharedSettings() {
    return UserDefaults::suite(QStringLiteral("group.Zephyrix"));
}

/// Chooses the built-in place, Berlin, with these values in place of its own; at once in the file.
inline void choosePlace(const QVariantMap& changes = {}) {
    QVariantMap place = LocationResult::defaultSearchResult().asDict();
    place.insert(changes);
    sharedSettings()->set(QStringLiteral("location"), place);
}

}  // namespace zephyrix::testing
