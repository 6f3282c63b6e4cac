#pragma once

#include "WeatherService.h"

namespace zephyrix {

/// Bright Sky: what the stations of Germany's weather service measure. No forecast: it is asked for
/// the observation of places that have such a station near.
class BrightSky : public WeatherService {
  public:
    static constexpr Metres farthestStation{25'000.0};

    [[nodiscard]] const ServiceTerms& terms() const override;
    [[nodiscard]] bool forecasts() const override { return false; }
    [[nodiscard]] bool covers(const Place& place) const override;
    [[nodiscard]] QString requestFor(const Place& place) const override;
    /// Throws NothingHere when the station is too far away, and UnreadableAnswer also when the
    /// observation is older than 90 minutes.
    [[nodiscard]] Weather read(const QByteArray& answer, const Place& place,
                               Instant now) const override;
};

}  // namespace zephyrix
