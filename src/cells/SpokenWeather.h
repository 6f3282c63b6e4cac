#pragma once

#include <optional>

#include <QString>

#include "foundation/Number.h"
#include "meteo/MeteoMapping.h"
#include "model/Obs.h"

namespace zephyrix {

struct ChosenUnits {
    UnitCode temperature = 0;
    UnitCode wind = 0;
    UnitCode precipitation = 0;
    UnitCode pressure = 0;
};

/// What a row shows as text already.
struct ShownObservation {
    QString place;
    QString weather;
    QString time;
};

/// One sentence for screen readers, with words for units and directions: "Berlin, 14 degrees
/// Celsius, light rain, wind south-west 12 kilometres per hour, ...". What is missing is left out.
[[nodiscard]] QString spokenObservation(const Obs& record, const ShownObservation& shown,
                                        const ChosenUnits& units);

/// "Sunday, high 14 degrees Celsius, low 8 degrees Celsius"; the day alone where both are missing.
[[nodiscard]] QString spokenDay(const QString& day, const std::optional<Number>& tx,
                                const std::optional<Number>& tn, UnitCode unit);

}  // namespace zephyrix
