#pragma once

#include "FullCoordinates.h"

namespace zephyrix {

// From one system of celestial coordinates to the next. Angles are radians and lengths kilometres
// unless said otherwise; TDT is a Julian day. The formulas are those of P. Duffett-Smith,
// "Practical Astronomy with your Calculator".

/// Polar to Cartesian: sets `x`, `y` and `z` of the result, in the unit of `distance`.
[[nodiscard]] FullCoordinates EquPolar2Cart(double lon, double lat, double distance);

/// An observer on the WGS84 ellipsoid: `x`, `y`, `z` and `radius` from the earth's centre, turned
/// by the sidereal time, with the geographic `lon` and `lat`. `height` in kilometres, `gmst` in
/// hours.
[[nodiscard]] FullCoordinates Observer2EquCart(double lon, double lat, double height, double gmst);

/// A body's coordinates with the topocentric fields set, from its `ra`, `dec` and `distance` and
/// the observer's `lat` and `radius`. `lmst` in radians.
[[nodiscard]] FullCoordinates GeoEqu2TopoEqu(FullCoordinates coor, const FullCoordinates& observer,
                                             double lmst);

/// Ecliptic to equatorial: sets `ra` and `dec` from `lon` and `lat`.
void ecl2Equ(FullCoordinates& coor, double TDT);

/// Equatorial to horizontal: sets `az` and `alt` from `ra` and `dec`. `lmst` in radians; the day
/// has no influence.
void equ2Altaz(FullCoordinates& coor, double TDT, double geolat, double lmst);

/// By how many degrees the air lifts a body of true altitude `alt` (radians), at 1015 hPa and
/// 10 degrees Celsius; 0 below -2 and from 90 degrees on.
[[nodiscard]] double Refraction(double alt);

/// Greenwich mean sidereal time in hours, [0, 24).
[[nodiscard]] double greenwichSiderealTime(double julianDay);

}  // namespace zephyrix
