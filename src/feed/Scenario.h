#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "weather/Quantity.h"

namespace zephyrix {

/// A kind of demonstration weather that can be asked for by name. What a scenario leaves open
/// follows the place and the time.
struct Scenario {
    enum class Light : std::uint8_t { OfThePlace, Day, Night };
    enum class Content : std::uint8_t { Everything, NumbersMissing, NoObservation, NoForecast };

    std::string_view name;
    std::string_view summary;  // for --help
    Light light = Light::OfThePlace;
    Content content = Content::Everything;
    std::optional<Celsius> meanTemperature{};  // of the day
    double dailyWave = 1.0;                    // factor of the daily wave of the temperature
    std::optional<Eighths> cloudCover{};
    std::optional<int> presentWeather{};  // synoptic code ww
    std::optional<Millimetres> hourlyPrecipitation{};
    std::optional<Knots> windSpeed{};
    std::optional<Hectopascals> pressure{};
};

/// All of them; the first is what is shown when none is asked for.
[[nodiscard]] std::span<const Scenario> scenarios();

/// The scenario of this exact name; null when there is none.
[[nodiscard]] const Scenario* scenarioNamed(std::string_view name);

}  // namespace zephyrix
