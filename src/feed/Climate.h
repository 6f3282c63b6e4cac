#pragma once

namespace zephyrix {

/// What the temperature of a place does in an average year: degrees Celsius.
struct Climate {
    double yearMean;
    double seasonSwing;  // how far the warmest day of the year lies above the mean
    double daySwing;     // how far the warmest hour of a clear day lies above the day's mean
};

/// The climate of the lowlands at a latitude, in degrees, north positive.
[[nodiscard]] Climate climateAt(double latitude);

/// The season, from -1 (coldest days) to 1 (warmest days), at a time in hours since 1970. North of
/// the equator the warmest days are around 20 July, south of it half a year later.
[[nodiscard]] double seasonAt(double latitude, double hours);

}  // namespace zephyrix
