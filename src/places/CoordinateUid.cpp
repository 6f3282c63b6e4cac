#include "CoordinateUid.h"

#include <cmath>

namespace zephyrix {

namespace {

constexpr std::int64_t firstUid = 1'000'000'000'000'000;
constexpr std::int64_t latitudeStep = 10'000'000;  // the digits below it are the longitude's
constexpr double stepsPerDegree = 10'000.0;
constexpr std::int64_t latitudeSteps = 1'800'000;
constexpr std::int64_t longitudeSteps = 3'600'000;

}  // namespace

std::int64_t uidOfCoordinate(const Coordinate& coordinate) {
    const std::int64_t north = std::llround((coordinate.latitude + 90.0) * stepsPerDegree);
    const std::int64_t east = std::llround((coordinate.longitude + 180.0) * stepsPerDegree);
    return firstUid + north * latitudeStep + east;
}

std::optional<Coordinate> coordinateOfUid(std::int64_t uid) {
    if (uid < firstUid)
        return std::nullopt;
    const std::int64_t north = (uid - firstUid) / latitudeStep;
    const std::int64_t east = (uid - firstUid) % latitudeStep;
    if (north > latitudeSteps || east > longitudeSteps)
        return std::nullopt;
    return Coordinate{.latitude = static_cast<double>(north) / stepsPerDegree - 90.0,
                      .longitude = static_cast<double>(east) / stepsPerDegree - 180.0};
}

}  // namespace zephyrix
