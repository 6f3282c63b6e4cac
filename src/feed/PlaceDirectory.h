#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

#include "ChosenPlace.h"
#include "model/LocationResult.h"
#include "places/PlaceList.h"
#include "weather/Place.h"

namespace zephyrix {

/// Knows which place on earth an id means. The first that knows it tells:
///
/// 1. the place that was given for every id, if one was (--latitude, --longitude, --zone);
/// 2. the place that the user has chosen in `zephyrix`, for its own id;
/// 3. the default place, Berlin, for its id;
/// 4. the id itself, where it is made of coordinates;
/// 5. the list of places that ships with the programs;
/// 6. where places may be invented, a place in the inhabited latitudes, always the same for an id.
///
/// A place without a zone that the system knows has the time of its longitude, in whole hours.
/// May be asked on any thread.
class PlaceDirectory {
  public:
    /// What becomes of an id that nobody knows: real weather of an invented place would be a lie.
    enum class Unknown : std::uint8_t { Invented, Refused };

    PlaceDirectory(std::optional<Place> everyPlace, Unknown unknown);

    /// The id is 1 or more. Nothing for an unknown one that is refused.
    [[nodiscard]] std::optional<Place> placeOf(std::int64_t id) const;

  private:
    [[nodiscard]] std::optional<Place> listedPlace(std::int64_t id) const;

    std::optional<Place> everyPlace_;
    Unknown unknown_;
    std::optional<Place> defaultPlace_;
    ChosenPlace chosen_;
    mutable std::mutex listMutex_;
    mutable std::unique_ptr<PlaceList> list_;  // opened when it is first asked
};

/// Where the place of a record is, under the record's id; nothing for one that is not valid or has
/// coordinates that are of no use.
[[nodiscard]] std::optional<Place> placeOfRecord(const LocationResult& record);

/// The zone with the time of a longitude in whole hours from UTC.
[[nodiscard]] QTimeZone zoneOfLongitude(double degreesEast);

}  // namespace zephyrix
