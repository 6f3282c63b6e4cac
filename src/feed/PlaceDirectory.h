#pragma once

#include <cstdint>
#include <optional>

#include "weather/Place.h"

namespace zephyrix {

/// Knows which place on earth an id means. The first that knows it tells:
///
/// 1. the place that was given for every id, if one was (--latitude, --longitude, --zone);
/// 2. the place that the user has chosen in `zephyrix`, for its own id;
/// 3. the default place, Berlin, for its id;
/// 4. otherwise an invented place in the inhabited latitudes, always the same for an id.
///
/// A place without a zone that the system knows has the time of its longitude, in whole hours.
/// May be asked on any thread.
class PlaceDirectory {
  public:
    explicit PlaceDirectory(std::optional<Place> everyPlace = std::nullopt);

    /// The id is 1 or more.
    [[nodiscard]] Place placeOf(std::int64_t id) const;

  private:
    std::optional<Place> everyPlace_;
};

/// The zone with the time of a longitude in whole hours from UTC.
[[nodiscard]] QTimeZone zoneOfLongitude(double degreesEast);

}  // namespace zephyrix
