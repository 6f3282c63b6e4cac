#include "SunAndMoon.h"

#include <cmath>

#include "Circle.h"
#include "CoordinateTransforms.h"

namespace zephyrix {

namespace {

constexpr double epoch = 2447891.5;  // Julian day of 1990 January 0.0, the epoch of all elements

// Angles are radians, rates radians a day.
namespace sun {
constexpr double meanMotion = 0.017202791632524146;
constexpr double longitudeAtEpoch = 4.87650757829735;
constexpr double longitudeOfPerigee = 4.935239984568769;
constexpr double equationOfCentre = 0.033426;  // twice the eccentricity
constexpr double eccentricity = 0.016713;
constexpr double semiLatusRectum = 0.999720675631;  // in mean distances
constexpr double diameterAtMeanDistance = 0.00930483893457233;
constexpr double meanDistance = 149598500.0;  // kilometres
constexpr double earthRadius = 6378.137;      // kilometres
}  // namespace sun

namespace moon {
constexpr double meanMotion = 0.22997150421858628;
constexpr double longitudeAtEpoch = 5.556284436750021;
constexpr double perigeeMotion = 0.001944368345221015;
constexpr double perigeeAtEpoch = 0.6342598060246725;
constexpr double nodeAtEpoch = 5.559050068029439;
constexpr double nodeMotion = 0.0009242199067718253;  // backwards
constexpr double evection = 0.022233749341155764;
constexpr double annualEquation = 0.003242821750205464;
constexpr double thirdCorrection = 0.00645771823237902;  // to the mean anomaly
constexpr double equationOfCentre = 0.10975677534091541;
constexpr double fourthCorrection = 0.0037350045992678655;  // to the longitude
constexpr double variation = 0.011489502465878671;
constexpr double nodeCorrection = 0.0027925268031909274;
constexpr double cosInclination = 0.9959703209727009;
constexpr double sinInclination = 0.08968344184706122;
constexpr double eccentricity = 0.0549;
constexpr double semiLatusRectum = 0.99698599;  // in mean distances
constexpr double diameterAtMeanDistance = 0.009042550854582622;
constexpr double parallaxAtMeanDistance = 0.016592845198710092;
constexpr double meanDistance = 384401.0;  // kilometres
}  // namespace moon

/// The moon's way in its orbit, corrected for what the sun does to it.
struct MoonOrbit {
    double trueLongitude;
    double trueAnomaly;
    double nodeLongitude;
};

MoonOrbit moonOrbit(const FullCoordinates& sunCoor, double TDT) {
    const double D = TDT - epoch;
    const double l = moon::meanMotion * D + moon::longitudeAtEpoch;
    const double Mm = l - moon::perigeeMotion * D - moon::perigeeAtEpoch;
    const double N = moon::nodeAtEpoch - moon::nodeMotion * D;
    const double sinMs = std::sin(sunCoor.anomalyMean);

    const double Ev = moon::evection * std::sin(2.0 * (l - sunCoor.lon) - Mm);
    const double Ae = moon::annualEquation * sinMs;
    const double A3 = moon::thirdCorrection * sinMs;
    const double correctedMm = Mm + Ev - Ae - A3;
    const double Ec = moon::equationOfCentre * std::sin(correctedMm);
    const double A4 = moon::fourthCorrection * std::sin(2.0 * correctedMm);
    const double correctedL = l + Ev + Ec - Ae + A4;
    const double V = moon::variation * std::sin(2.0 * (correctedL - sunCoor.lon));
    return {.trueLongitude = correctedL + V,
            .trueAnomaly = correctedMm + Ec,
            .nodeLongitude = N - moon::nodeCorrection * sinMs};
}

}  // namespace

FullCoordinates sunPosition(double TDT, double geolat, double lmst) {
    FullCoordinates coor;
    const double D = TDT - epoch;
    coor.anomalyMean = sun::meanMotion * D + sun::longitudeAtEpoch - sun::longitudeOfPerigee;
    const double v = coor.anomalyMean + sun::equationOfCentre * std::sin(coor.anomalyMean);
    coor.lon = modulo(v + sun::longitudeOfPerigee, twoPi);
    coor.lat = 0.0;
    const double distance = sun::semiLatusRectum / (1.0 + sun::eccentricity * std::cos(v));
    coor.diameter = sun::diameterAtMeanDistance / distance;
    coor.distance = distance * sun::meanDistance;
    coor.parallax = sun::earthRadius / coor.distance;
    ecl2Equ(coor, TDT);
    if (geolat != 0.0 && lmst != 0.0)
        equ2Altaz(coor, TDT, geolat, lmst);
    return coor;
}

FullCoordinates moonPosition(const FullCoordinates& sunCoor, double TDT,
                             const FullCoordinates& observer, double lmst) {
    const MoonOrbit orbit = moonOrbit(sunCoor, TDT);
    FullCoordinates coor;
    coor.orbitLon = orbit.trueLongitude;
    const double fromNode = orbit.trueLongitude - orbit.nodeLongitude;
    coor.lon = modulo(orbit.nodeLongitude +
                          std::atan2(std::sin(fromNode) * moon::cosInclination, std::cos(fromNode)),
                      twoPi);
    coor.lat = std::asin(std::sin(fromNode) * moon::sinInclination);
    ecl2Equ(coor, TDT);
    const double distance =
        moon::semiLatusRectum / (1.0 + moon::eccentricity * std::cos(orbit.trueAnomaly));
    coor.diameter = moon::diameterAtMeanDistance / distance;
    coor.parallax = moon::parallaxAtMeanDistance / distance;
    coor.distance = distance * moon::meanDistance;
    if (lmst != 0.0) {
        coor.raGeocentric = coor.ra;
        coor.decGeocentric = coor.dec;
        coor = GeoEqu2TopoEqu(coor, observer, lmst);
        coor.ra = coor.raTopocentric;
        coor.dec = coor.decTopocentric;
        equ2Altaz(coor, TDT, observer.lat, lmst);
    }
    coor.moonAge = modulo(orbit.trueLongitude - sunCoor.lon, twoPi);
    coor.phase = (1.0 - std::cos(coor.moonAge)) / 2.0;
    return coor;
}

}  // namespace zephyrix
