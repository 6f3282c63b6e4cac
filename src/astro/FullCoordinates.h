#pragma once

namespace zephyrix {

/// Where a body or an observer is, in every system that the computations use. Which fields are set
/// is said by the operation that fills them; the others are 0.
struct FullCoordinates {
    // Kilometres from the earth's centre, x towards the vernal equinox, z towards the north pole.
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double lon = 0.0;       // radians, ecliptic; for an observer geographic
    double lat = 0.0;       // radians, ecliptic; for an observer geographic
    double radius = 0.0;    // kilometres, the observer's distance from the earth's centre
    double distance = 0.0;  // kilometres, the body's distance
    double dec = 0.0;       // radians, declination
    double ra = 0.0;        // radians, right ascension, [0, 2 pi)
    double orbitLon = 0.0;  // radians, the moon's true longitude in its orbit
    double diameter = 0.0;  // radians, apparent
    double parallax = 0.0;  // radians, horizontal
    // Radians, as seen from the earth's centre, kept before the topocentric correction.
    double raGeocentric = 0.0;
    double decGeocentric = 0.0;
    // Radians and kilometres, as seen by the observer.
    double raTopocentric = 0.0;
    double decTopocentric = 0.0;
    double distanceTopocentric = 0.0;
    double az = 0.0;       // radians from north over east; degrees where an operation says so
    double alt = 0.0;      // radians above the horizon; degrees where an operation says so
    double moonAge = 0.0;  // radians from the sun, [0, 2 pi); degrees where an operation says so
    double phase = 0.0;    // illuminated fraction, 0 to 1
    double anomalyMean = 0.0;  // radians, the sun's mean anomaly
};

}  // namespace zephyrix
