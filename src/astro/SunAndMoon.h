#pragma once

#include "FullCoordinates.h"

namespace zephyrix {

// Positions by short periodic series from the epoch 1990 January 0.0 (P. Duffett-Smith, "Practical
// Astronomy with your Calculator"). TDT is a Julian day; `lmst` the local sidereal time in radians.

/// The sun: `anomalyMean`, `lon`, `lat`, `distance` (km), `diameter`, `parallax`, `ra` and `dec`;
/// `az` and `alt` only when neither `geolat` (radians) nor `lmst` is 0.
[[nodiscard]] FullCoordinates sunPosition(double TDT, double geolat, double lmst);

/// The moon: `orbitLon`, `lon`, `lat`, `distance` (km), `diameter`, `parallax`, `moonAge`
/// (radians), `phase`, `ra` and `dec`. Unless `lmst` is 0, `ra` and `dec` are those that the
/// observer sees, and the topocentric and geocentric fields, `az` and `alt` are set too.
[[nodiscard]] FullCoordinates moonPosition(const FullCoordinates& sunCoor, double TDT,
                                           const FullCoordinates& observer, double lmst);

}  // namespace zephyrix
