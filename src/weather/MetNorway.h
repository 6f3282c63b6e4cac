#pragma once

#include "WeatherService.h"

namespace zephyrix {

/// MET Norway's Locationforecast 2.0: computed weather for any place on earth, at its best in the
/// Nordic countries. It tells time steps in UTC, here gathered into the days of the place, and the
/// precipitation of the hours to come. Of the day under way only what is left of it is known.
class MetNorway : public WeatherService {
  public:
    [[nodiscard]] const ServiceTerms& terms() const override;
    [[nodiscard]] bool isAtHome(const Place& place) const override;
    [[nodiscard]] QString requestFor(const Place& place) const override;
    [[nodiscard]] Weather read(const QByteArray& answer, const Place& place,
                               Instant now) const override;
};

}  // namespace zephyrix
