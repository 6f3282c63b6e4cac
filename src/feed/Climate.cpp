#include "Climate.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace zephyrix {

namespace {

struct Row {
    double latitude;  // degrees from the equator
    Climate climate;
};

// Rounded from the climate of coastal and lowland stations.
constexpr std::array<Row, 8> table = {{
    {0.0, {26.5, 1.0, 4.0}},
    {20.0, {25.0, 4.0, 5.0}},
    {35.0, {17.0, 9.0, 5.5}},
    {52.0, {10.0, 9.5, 4.5}},
    {60.0, {5.0, 11.5, 4.0}},
    {70.0, {-2.0, 12.5, 2.5}},
    {80.0, {-13.0, 15.0, 1.2}},
    {90.0, {-19.0, 17.0, 0.6}},
}};

constexpr double hoursPerYear = 365.2425 * 24.0;
constexpr double warmestHourOfTheNorth = 200.0 * 24.0;  // 20 July, from the year's beginning

}  // namespace

Climate climateAt(double latitude) {
    const double distance = std::fabs(latitude);
    std::size_t i = 1;
    while (i + 1 < table.size() && table[i].latitude < distance)
        ++i;
    const Row& below = table[i - 1];
    const Row& above = table[i];
    const double part = (distance - below.latitude) / (above.latitude - below.latitude);
    return {std::lerp(below.climate.yearMean, above.climate.yearMean, part),
            std::lerp(below.climate.seasonSwing, above.climate.seasonSwing, part),
            std::lerp(below.climate.daySwing, above.climate.daySwing, part)};
}

double seasonAt(double latitude, double hours) {
    const double north =
        std::cos(2.0 * std::numbers::pi * (hours - warmestHourOfTheNorth) / hoursPerYear);
    return latitude < 0.0 ? -north : north;
}

}  // namespace zephyrix
