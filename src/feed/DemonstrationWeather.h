#pragma once

#include "Scenario.h"
#include "weather/WeatherSource.h"

namespace zephyrix {

/// Invented but plausible weather, for trying the panel out without a weather service. The same
/// place has the same weather during an hour of its clock, on every machine.
class DemonstrationWeather : public WeatherSource {
  public:
    /// The scenario must outlive this object; those of scenarios() live for ever.
    explicit DemonstrationWeather(const Scenario& scenario) : scenario_(scenario) {}

    /// Never nothing. The observation is of the last full hour, the six forecast days begin today.
    [[nodiscard]] std::optional<Weather> weatherAt(const Place& place, Instant now) const override;

  private:
    const Scenario& scenario_;
};

}  // namespace zephyrix
