#include "Scenario.h"

#include <algorithm>
#include <array>

namespace zephyrix {

namespace {

using Light = Scenario::Light;
using Content = Scenario::Content;

constexpr std::array table = {
    Scenario{.name = "changing", .summary = "weather that changes from day to day"},
    Scenario{.name = "fair",
             .summary = "some clouds, dry, light wind",
             .cloudCover = Eighths(2),
             .presentWeather = 2,
             .hourlyPrecipitation = Millimetres(0.0),
             .windSpeed = Knots(5),
             .pressure = Hectopascals(1024)},
    Scenario{.name = "clear-night",
             .summary = "a cloudless night, at any time of the day",
             .light = Light::Night,
             .cloudCover = Eighths(0),
             .presentWeather = 2,
             .hourlyPrecipitation = Millimetres(0.0),
             .windSpeed = Knots(3),
             .pressure = Hectopascals(1028)},
    Scenario{.name = "rain",
             .summary = "steady rain",
             .meanTemperature = Celsius(9),
             .dailyWave = 0.4,
             .cloudCover = Eighths(8),
             .presentWeather = 63,
             .hourlyPrecipitation = Millimetres(2.4),
             .windSpeed = Knots(12),
             .pressure = Hectopascals(1001)},
    Scenario{.name = "thunderstorm",
             .summary = "a thunderstorm with rain",
             .meanTemperature = Celsius(23),
             .cloudCover = Eighths(6),
             .presentWeather = 95,
             .hourlyPrecipitation = Millimetres(8.6),
             .windSpeed = Knots(16),
             .pressure = Hectopascals(1007)},
    Scenario{.name = "snow",
             .summary = "steady snow",
             .meanTemperature = Celsius(-4),
             .dailyWave = 0.4,
             .cloudCover = Eighths(8),
             .presentWeather = 73,
             .hourlyPrecipitation = Millimetres(1.1),
             .windSpeed = Knots(9),
             .pressure = Hectopascals(1003)},
    Scenario{.name = "fog",
             .summary = "fog with the sky hidden",
             .meanTemperature = Celsius(4),
             .dailyWave = 0.3,
             .cloudCover = Eighths(8),
             .presentWeather = 45,
             .hourlyPrecipitation = Millimetres(0.0),
             .windSpeed = Knots(1),
             .pressure = Hectopascals(1030)},
    Scenario{.name = "gale",
             .summary = "a gale with driving clouds",
             .meanTemperature = Celsius(8),
             .dailyWave = 0.4,
             .cloudCover = Eighths(6),
             .presentWeather = 18,
             .hourlyPrecipitation = Millimetres(0.0),
             .windSpeed = Knots(38),
             .pressure = Hectopascals(974)},
    Scenario{.name = "polar-day",
             .summary = "the sun stays up, around freezing point",
             .light = Light::Day,
             .meanTemperature = Celsius(2),
             .dailyWave = 0.3,
             .cloudCover = Eighths(3),
             .presentWeather = 2,
             .hourlyPrecipitation = Millimetres(0.0)},
    Scenario{.name = "polar-night",
             .summary = "the sun stays down, deep frost",
             .light = Light::Night,
             .meanTemperature = Celsius(-24),
             .dailyWave = 0.2,
             .cloudCover = Eighths(1),
             .presentWeather = 2,
             .hourlyPrecipitation = Millimetres(0.0)},
    Scenario{.name = "missing",
             .summary = "every number missing (-9999), and no symbol",
             .content = Content::NumbersMissing},
    Scenario{.name = "no-observation",
             .summary = "a document without an observation",
             .content = Content::NoObservation},
    Scenario{.name = "no-forecast",
             .summary = "a document without forecast days",
             .content = Content::NoForecast},
};

}  // namespace

std::span<const Scenario> scenarios() {
    return table;
}

const Scenario* scenarioNamed(std::string_view name) {
    const auto* const found =
        std::find_if(table.begin(), table.end(),
                     [&](const Scenario& scenario) { return scenario.name == name; });
    return found == table.end() ? nullptr : found;
}

}  // namespace zephyrix
