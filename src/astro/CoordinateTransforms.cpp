#include "CoordinateTransforms.h"

#include <cmath>

#include "Circle.h"
#include "foundation/Angle.h"

namespace zephyrix {

namespace {

constexpr double julianDay2000 = 2451545.0;  // 2000 January 1, 12:00
constexpr double daysPerCentury = 36525.0;

// The WGS84 ellipsoid.
constexpr double equatorialRadius = 6378.137;            // kilometres
constexpr double squaredAxisRatio = 0.9933056200098587;  // (polar / equatorial radius) squared
constexpr double polarRadiusFactor = 6335.43932729282;   // kilometres, their product

// Refraction.
constexpr double lowestRefracted = -2.0;          // degrees
constexpr double highestIterated = 15.0;          // degrees; above it the short formula holds
constexpr double zenith = 90.0;                   // degrees
constexpr double shortFormulaFactor = 4.5878;     // 0.00452 x 1015 hPa, degrees x kelvin
constexpr double airTemperature = 283.0;          // kelvin
constexpr double airFactor = 1.0053763440860215;  // pressure and temperature against the standard
constexpr double airCorrection = 0.0;             // the share of the second-order term in that air
constexpr int passes = 3;

double squared(double value) {
    return value * value;
}

double centuriesSince2000(double julianDay) {
    return (julianDay - julianDay2000) / daysPerCentury;
}

/// Radians.
double obliquityOfEcliptic(double TDT) {
    const double T = centuriesSince2000(TDT);
    return deg2rad(23.439291666666666 + T * (T * (0.00181 * T - 0.0006) - 46.815) / 3600.0);
}

/// Degrees, by a secant iteration for a body low in the sky. The radians of the altitude go into a
/// formula for degrees; deliberate, because the altitudes that follow have always been computed so.
double refractionNearHorizon(double h) {
    double y = h;
    double y0 = h;
    double D0 = 0.0;
    for (int pass = 0; pass < passes; ++pass) {
        const double N = 1.0 / std::tan(deg2rad(y + 7.31 / (y + 4.4)));
        const double D = N * airFactor / (60.0 + airCorrection * (N + 39.0));
        const double n = y - y0;
        const double d = D - D0 - n;
        y0 = y;
        y = n != 0.0 && d != 0.0 ? y - n * (h + D - y) / d : h + D;
        D0 = D;
    }
    return D0;
}

}  // namespace

FullCoordinates EquPolar2Cart(double lon, double lat, double distance) {
    FullCoordinates cart;
    cart.x = distance * std::cos(lat) * std::cos(lon);
    cart.y = distance * std::cos(lat) * std::sin(lon);
    cart.z = distance * std::sin(lat);
    return cart;
}

FullCoordinates Observer2EquCart(double lon, double lat, double height, double gmst) {
    const double cosLat = std::cos(lat);
    const double sinLat = std::sin(lat);
    const double u = 1.0 / std::sqrt(squared(cosLat) + squaredAxisRatio * squared(sinLat));
    const double A = equatorialRadius * u + height;
    const double B = polarRadiusFactor * u + height;
    const double radius = std::sqrt(squared(A) * squared(cosLat) + squared(B) * squared(sinLat));
    const double geocentricLat = std::acos(A * cosLat / radius);

    FullCoordinates observer =
        EquPolar2Cart(lon, lat < 0.0 ? -geocentricLat : geocentricLat, radius);
    const double turn = gmst / 24.0 * twoPi;
    const double x = observer.x;
    const double y = observer.y;
    observer.x = x * std::cos(turn) - y * std::sin(turn);
    observer.y = x * std::sin(turn) + y * std::cos(turn);
    observer.radius = radius;
    observer.lon = lon;
    observer.lat = lat;
    return observer;
}

FullCoordinates GeoEqu2TopoEqu(FullCoordinates coor, const FullCoordinates& observer, double lmst) {
    const double cosDec = std::cos(coor.dec);
    const double cosLat = std::cos(observer.lat);
    const double x =
        coor.distance * cosDec * std::cos(coor.ra) - observer.radius * cosLat * std::cos(lmst);
    const double y =
        coor.distance * cosDec * std::sin(coor.ra) - observer.radius * cosLat * std::sin(lmst);
    const double z = coor.distance * std::sin(coor.dec) - observer.radius * std::sin(observer.lat);
    coor.distanceTopocentric = std::sqrt(x * x + y * y + z * z);
    coor.decTopocentric = std::asin(z / coor.distanceTopocentric);
    coor.raTopocentric = modulo(std::atan2(y, x), twoPi);
    return coor;
}

void ecl2Equ(FullCoordinates& coor, double TDT) {
    const double obliquity = obliquityOfEcliptic(TDT);
    const double cosObliquity = std::cos(obliquity);
    const double sinObliquity = std::sin(obliquity);
    const double sinLon = std::sin(coor.lon);
    coor.ra = modulo(
        std::atan2(cosObliquity * sinLon - sinObliquity * std::tan(coor.lat), std::cos(coor.lon)),
        twoPi);
    coor.dec =
        std::asin(cosObliquity * std::sin(coor.lat) + sinObliquity * std::cos(coor.lat) * sinLon);
}

void equ2Altaz(FullCoordinates& coor, double /*TDT*/, double geolat, double lmst) {
    const double H = lmst - coor.ra;
    const double cosDec = std::cos(coor.dec);
    const double sinDec = std::sin(coor.dec);
    const double cosLat = std::cos(geolat);
    const double sinLat = std::sin(geolat);
    coor.az = modulo(
        std::atan2(-cosDec * std::sin(H), sinDec * cosLat - cosDec * std::cos(H) * sinLat), twoPi);
    coor.alt = std::asin(cosDec * std::cos(H) * cosLat + sinDec * sinLat);
}

double Refraction(double alt) {
    const double degrees = alt * 180.0 / pi;
    if (degrees < lowestRefracted || degrees >= zenith)
        return 0.0;
    if (degrees > highestIterated)
        return shortFormulaFactor / (airTemperature * std::tan(alt));
    return refractionNearHorizon(alt);
}

double greenwichSiderealTime(double julianDay) {
    const double daysToMidnight = std::floor(julianDay - 0.5);
    const double T = centuriesSince2000(daysToMidnight + 0.5);
    const double gmst = (julianDay - 0.5 - daysToMidnight) * 24.0 * 1.002737909 +
                        T * (2400.051336 + 2.5862e-05 * T) + 6.697374558;
    return modulo(gmst, 24.0);
}

}  // namespace zephyrix
