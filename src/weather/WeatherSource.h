#pragma once

#include <optional>

#include "Place.h"
#include "Weather.h"

namespace zephyrix {

/// Where weather comes from: a place goes in, normalised weather comes out. Each source is one
/// class behind this interface and converts the units of what it reads. Asked on any thread, also
/// on several at once.
class WeatherSource {
  public:
    WeatherSource() = default;
    virtual ~WeatherSource() = default;
    WeatherSource(const WeatherSource&) = delete;
    WeatherSource& operator=(const WeatherSource&) = delete;

    /// The weather at a place as it is known now; nothing when the source cannot tell at present.
    [[nodiscard]] virtual std::optional<Weather> weatherAt(const Place& place,
                                                           Instant now) const = 0;
};

}  // namespace zephyrix
