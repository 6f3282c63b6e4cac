#pragma once

#include <cstdint>
#include <optional>

#include "model/Coordinate.h"

namespace zephyrix {

/// The uid of a place that is in no list: it is its coordinates, in steps of 0.0001 degrees (11 m).
/// So a feed server that is asked for the uid knows where on earth it is, without a list of its
/// own. All such uids are 10^15 or more; those of listed places are far below.
///
/// The latitude is -90 to 90, the longitude -180 to 180.
[[nodiscard]] std::int64_t uidOfCoordinate(const Coordinate& coordinate);

/// The coordinates in a uid, up to half a step off; nothing for a uid that was not made so.
[[nodiscard]] std::optional<Coordinate> coordinateOfUid(std::int64_t uid);

}  // namespace zephyrix
