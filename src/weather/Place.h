#pragma once

#include <cstdint>
#include <optional>

#include <QTimeZone>

#include "Quantity.h"

namespace zephyrix {

/// Where on earth a place id is, as far as its weather depends on it.
struct Place {
    std::int64_t id;   // the place's uid, at least 1
    double latitude;   // degrees, north positive, -90 to 90
    double longitude;  // degrees, east positive, -180 to 180
    QTimeZone zone;    // valid; its days are the forecast's days
    std::optional<Metres> elevation{};
};

}  // namespace zephyrix
