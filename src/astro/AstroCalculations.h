#pragma once

#include "FullCoordinates.h"
#include "foundation/Instant.h"
#include "model/Coordinate.h"

namespace zephyrix {

/// The Julian day of an instant, and the moon as it stands at an instant over a place. Any thread.
class AstroCalculations {
  public:
    /// The Julian day, from the seconds since 1970.
    [[nodiscard]] static double fastJulian(Instant date);
    /// The Julian day, from the date and the whole second of time in UTC. It agrees with
    /// fastJulian() from 1900 March to 2100 February.
    [[nodiscard]] static double julianTimeWithDate(Instant date);
    /// The same as julianTimeWithDate(), under the name that an instance offers.
    [[nodiscard]] static double JulianDayWithDate(Instant date);

    /// The moon as an observer at sea level sees it: all fields that moonPosition() sets, but `az`
    /// and `alt` (with refraction) in degrees, rounded to 2 and 1 decimals, and `moonAge` in
    /// degrees, rounded to 3 decimals, so that it may read 360.
    [[nodiscard]] static FullCoordinates moonPositionWithDate(Instant date,
                                                              const Coordinate& coordinates);
};

}  // namespace zephyrix
