#pragma once

#include <optional>
#include <vector>

#include <QDate>
#include <QString>

#include "Quantity.h"
#include "foundation/Instant.h"

namespace zephyrix {

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
    std::optional<Millimetres> precipitation{};  // fallen during the period before `time`
    std::optional<Hours> precipitationPeriod{};
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
    QString source;  // "demonstration": where it comes from, in one word
    std::optional<Observation> observation{};
    std::optional<std::vector<ForecastDay>> days{};  // from today on, in their order
};

}  // namespace zephyrix
