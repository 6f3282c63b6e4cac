#pragma once

#include <memory>
#include <vector>

#include "ServiceWeather.h"

namespace zephyrix {

/// The best weather that several services have for a place: the first that answers, those first
/// that are at home there; when none answers, what was fetched last. Where a station is near, its
/// observation takes the place of the computed one. All that had a part are named.
class AutomaticWeather : public WeatherSource {
  public:
    /// The services in their general order; all of them must outlive it.
    explicit AutomaticWeather(const std::vector<const ServiceWeather*>& services);

    [[nodiscard]] std::optional<Weather> weatherAt(const Place& place, Instant now) const override;

  private:
    using Services = std::vector<const ServiceWeather*>;

    [[nodiscard]] static std::optional<Weather> firstOf(const Services& services,
                                                        const Place& place, Instant now);

    Services forecasts_;
    Services observations_;
};

}  // namespace zephyrix
