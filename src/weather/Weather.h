#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QDate>
#include <QString>

#include "Quantity.h"
#include "foundation/Instant.h"

namespace zephyrix {

/// Whether precipitation fell in the hours before the time of an observation, as a station measures
/// it, or is forecast for the hours after it, as some services give it.
enum class PrecipitationTime : std::uint8_t { Before, After };

/// What is observed at a place at one time. What was not measured is absent.
struct Observation {
    Instant time;
    std::optional<int> symbol{};  // weather symbol code of seven digits
    std::optional<Celsius> temperature{};
    std::optional<Celsius> dewPoint{};
    std::optional<Degrees>
        windDirection{};               // where it blows from, 1 to 360; 0 when calm, 990 turning
    std::optional<Knots> windSpeed{};  // mean of ten minutes
    std::optional<Knots> gusts{};
    std::optional<Millimetres> precipitation{};  // of the period before or after `time`
    std::optional<Hours> precipitationPeriod{};
    PrecipitationTime precipitationTime = PrecipitationTime::Before;
    std::optional<Eighths> cloudCover{};
    std::optional<int> presentWeather{};  // synoptic code ww, 0 to 99
    std::optional<Hectopascals> pressure{};
};

/// One calendar day of the place.
struct ForecastDay {
    QDate date;
    std::optional<int> symbol{};
    std::optional<Celsius> highest{};
    std::optional<Celsius> lowest{};
};

/// The weather of one place, in the units and terms of this program, whatever its source speaks.
struct Weather {
    QString source;  // "demonstration", "Open-Meteo": who tells it
    std::optional<Observation> observation{};
    std::optional<std::vector<ForecastDay>> days{};  // from today on, in their order
    QString licence{};                               // the line that the source wants to be shown
    QString sourceUrl{};                             // of the source, for people
    std::optional<Instant> fetched{};                // when the source was asked
    std::optional<Instant> validUntil{};             // before that, asking again brings nothing new
    bool isHeldOver = false;  // the source should have been asked again and could not
};

}  // namespace zephyrix
