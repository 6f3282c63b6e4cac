#pragma once

#include <optional>

#include <QString>
#include <QVariantMap>

#include "foundation/Instant.h"
#include "foundation/Number.h"

namespace zephyrix {

/// What the panel's last weather document says about itself, in the user's language.
struct FeedState {
    QString source;   // "Demonstration weather"; empty where the document does not say
    QString licence;  // its line of licence, likewise
    QString state;    // whether there is weather for the place, and how old it is
};

/// Of the dictionary under "lastWeatherData" of the panel's own store, whatever is in it; the uid
/// is that of the chosen place.
[[nodiscard]] FeedState feedState(const std::optional<QVariantMap>& document,
                                  const std::optional<Number>& uid, Instant now);

}  // namespace zephyrix
