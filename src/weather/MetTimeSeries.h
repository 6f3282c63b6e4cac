#pragma once

#include <optional>
#include <vector>

#include <QJsonObject>

#include "MetSymbolCode.h"
#include "Weather.h"

namespace zephyrix {

/// The hours after a time step, as "next_1_hours" and "next_6_hours" tell them.
struct MetPeriod {
    Hours length;
    std::optional<MetSymbol> symbol{};
    std::optional<Millimetres> precipitation{};
    std::optional<Celsius> highest{};
    std::optional<Celsius> lowest{};
};

/// One entry of "timeseries".
struct MetStep {
    Instant time;
    Observation instant;  // what is measured at that time, not yet completed
    std::optional<MetPeriod> nextHour{};
    std::optional<MetPeriod> nextSixHours{};

    /// The one that tells most exactly what comes; null when there is none.
    [[nodiscard]] const MetPeriod* shortestPeriod() const noexcept;
};

/// The time steps of an answer in the order of their times, each time once, at most a thousand.
/// Entries without a time are left out. Throws UnreadableAnswer when there is none at all.
[[nodiscard]] std::vector<MetStep> metSteps(const QJsonObject& answer);

}  // namespace zephyrix
